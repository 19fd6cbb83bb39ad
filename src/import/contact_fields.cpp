#include "import/contact_fields.h"

#include <algorithm>
#include <array>
#include <optional>

#include "contest/bands.h"
#include "values/date_time.h"
#include "values/format.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kMostSerialDigits = 5;  // what the field of the entry row takes
constexpr std::size_t kLongestCall = 20;
constexpr std::size_t kLongestSection = 4;
constexpr std::size_t kDateDigits = 8;
constexpr std::size_t kShown = 20;
constexpr double kKilohertzPerMegahertz = 1000;

constexpr std::string_view kMorse = "CW";
constexpr std::array<std::string_view, 6> kPhoneModes{"PH", "SSB", "USB", "LSB", "FM", "AM"};

bool IsLetter(char c) {
    return c >= 'A' && c <= 'Z';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The band of a frequency in MHz; empty for none. What no band comes near is not made a float, which might not hold
/// it.
std::string_view BandOf(double megahertz) {
    constexpr double kBeyondAllBands = 1000;
    return megahertz > 0 && megahertz < kBeyondAllBands ? ContestBand(static_cast<float>(megahertz)) : "";
}

std::string NoSuch(std::string_view what, std::string_view text) {
    std::string told = '"' + std::string{text.substr(0, kShown)} + (text.size() > kShown ? "..." : "") + "\" is no ";
    return told.append(what);
}

/// "20261107" of that, of "2026-11-07" and of "2026/11/07".
std::string DateDigits(std::string_view date) {
    constexpr std::array<std::size_t, 2> kStrokes{4, 7};
    std::string digits{date};
    if (date.size() == kDateDigits + kStrokes.size() && date[4] == date[7] && (date[4] == '-' || date[4] == '/')) {
        digits.erase(kStrokes[1], 1).erase(kStrokes[0], 1);
    }
    return digits;
}

}  // namespace

bool IsDigits(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, IsDigit);
}

bool IsCall(std::string_view text) {
    return !text.empty() && text.size() <= kLongestCall &&
           std::ranges::all_of(text, [](char c) { return IsLetter(c) || IsDigit(c) || c == '/'; });
}

bool IsSectionCode(std::string_view text) {
    return !text.empty() && text.size() <= kLongestSection &&
           std::ranges::all_of(text, [](char c) { return IsLetter(c) || IsDigit(c); });
}

void ContactFields::Refuse(std::string_view what, std::string_view text) {
    if (refused.empty()) {
        refused = NoSuch(what, text);
    }
}

std::string ContactFields::Serial(std::string_view text) {
    std::string digits{text.substr(std::min(text.find_first_not_of('0'), text.size() - (text.empty() ? 0 : 1)))};
    if (!IsDigits(text) || digits.size() > kMostSerialDigits) {
        Refuse("serial number", text);
    }
    return digits;
}

void ContactFields::TakeSent(std::string_view serial) {
    contact.Ns = Serial(serial);
}

void ContactFields::TakeReceived(std::string_view serial) {
    contact.Nr = Serial(serial);
}

void ContactFields::TakePrecedence(std::string_view precedence) {
    contact.P = UpperCase(precedence);
    if (contact.P.size() != 1 || !IsLetter(contact.P.front())) {
        Refuse("precedence", precedence);
    }
}

void ContactFields::TakeCall(std::string_view call) {
    contact.Call = UpperCase(call);
    if (!IsCall(contact.Call)) {
        Refuse("call", call);
    }
}

void ContactFields::TakeCheck(std::string_view check) {
    const bool isYear = check.size() == 4;
    contact.Ck = check.substr(isYear ? 2 : 0);
    if (!IsDigits(check) || contact.Ck.size() > 2) {
        Refuse("check", check);
    }
}

void ContactFields::TakeSection(std::string_view section) {
    contact.Sec = UpperCase(section);
    if (!IsSectionCode(contact.Sec)) {
        Refuse("section", section);
    }
}

void ContactFields::TakeDate(std::string_view date) {
    const std::string digits = DateDigits(date);
    if (digits.size() == kDateDigits && IsDigits(digits)) {
        const std::string told = digits.substr(0, 4) + '/' + digits.substr(4, 2) + '/' + digits.substr(6);
        if (IsDate(told)) {
            contact.Date = told;
            return;
        }
    }
    Refuse("date", date);
}

void ContactFields::TakeTime(std::string_view time) {
    if (IsDigits(time) && (time.size() == 4 || time.size() == 6)) {
        std::string told{time.substr(0, 2)};
        for (std::size_t at = 2; at < time.size(); at += 2) {
            told.append(":").append(time.substr(at, 2));
        }
        if (IsTime(told)) {
            contact.Time = told;
            return;
        }
    }
    Refuse("time", time);
}

void ContactFields::TakeBand(std::string_view band) {
    const std::string name = UpperCase(band);
    const Band* row = name.ends_with('M') ? FindBand(name.substr(0, name.size() - 1)) : nullptr;
    if (row == nullptr || row->kilohertz.empty()) {
        Refuse("band of the contest", band);
        return;
    }
    contact.Bnd = row->name;
}

void ContactFields::TakeMode(std::string_view mode) {
    const std::string name = UpperCase(mode);
    phone = std::ranges::find(kPhoneModes, name) != kPhoneModes.end();
    if (!phone && name != kMorse) {
        Refuse("mode of the contest", mode);
    }
}

void ContactFields::TakeKilohertz(std::string_view frequency) {
    const std::optional<double> kilohertz = ParseNumber(frequency);
    const double megahertz = kilohertz.value_or(0) / kKilohertzPerMegahertz;
    contact.Bnd = BandOf(megahertz);
    if (contact.Bnd.empty()) {
        Refuse("frequency of the contest", frequency);
        return;
    }
    if (ParseNumber(FindBand(contact.Bnd)->kilohertz) != kilohertz) {
        contact.Frq = FormatNumber(megahertz, "#####.##0");
    }
}

void ContactFields::TakeMegahertz(std::string_view frequency) {
    std::string number = Trim(frequency);
    if (const std::size_t comma = number.find(','); comma != std::string::npos) {
        number[comma] = '.';
    }
    const std::string_view band = BandOf(ParseNumber(number).value_or(0));
    if (!contact.Bnd.empty() && contact.Bnd != band) {
        remark = NoSuch("frequency of the band", frequency);
    } else if (band.empty()) {
        Refuse("frequency of the contest", frequency);
    } else {
        contact.Bnd = band;
        contact.Frq = number;
    }
}

}  // namespace tallyhut
