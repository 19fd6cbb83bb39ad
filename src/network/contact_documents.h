#pragma once

#include <string>
#include <string_view>

#include "contest/contact_record.h"
#include "contest/preferences.h"

namespace tallyhut {

/// Who tells the news.
struct NewsOrigin {
    std::string app;          ///< what readers know the sender by
    std::string stationName;  ///< of the computer
};

/// A contact as other programs are told of it.
struct ContactFacts {
    const NewsOrigin& origin;
    const Preferences& preferences;
    const Contact& contact;
    const Contact& before;  ///< as it was before an edit; the contact itself for a new one
    std::string id;         ///< 32 hexadecimal digits
    bool isNewSection = false;
    bool isDuplicate = false;
    int presentYear = 0;  ///< for a date without a year
};

// The documents. Two of them have the same elements.
std::string ContactInfo(const ContactFacts& facts);
std::string ContactReplace(const ContactFacts& facts);
/// Of the contact as it was before.
std::string ContactDelete(const ContactFacts& facts);

/// The mode of a voice contact on a band of so many metres, by what is usual: LSB on 160, 80 and 40, USB elsewhere.
std::string_view PhoneSideband(std::string_view band);

/// A frequency in tens of hertz; 14.0421 MHz is 1404210. "0" for one that no radio has.
std::string TensOfHertz(double megahertz);

}  // namespace tallyhut
