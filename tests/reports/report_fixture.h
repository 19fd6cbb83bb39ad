#pragma once

#include <vector>

#include "contest/contact_log.h"
#include "contest/preferences.h"

namespace tallyhut {

inline Preferences CwStation() {
    Preferences station;
    station.gOwnCall = "W9ZZZ";
    station.gOwnPrec = "A";
    station.gOwnCheck = "72";
    station.gOwnSection = "IL";
    return station;
}

inline Preferences PhoneStation() {
    Preferences station = CwStation();
    station.gContestMode = 1;
    return station;
}

inline ContactLog LogOf(const std::vector<Contact>& contacts) {
    ContactLog log;
    for (const Contact& contact : contacts) {
        log.Add(contact);
    }
    return log;
}

/// One contact of a usual kind; tests change what they speak of.
inline Contact Usual() {
    return {.Ns = "137",
            .Nr = "88",
            .P = "A",
            .Call = "W1XX",
            .Ck = "72",
            .Sec = "MDC",
            .Date = "2026/11/07",
            .Time = "21:04:33",
            .Bnd = "40",
            .Frq = "7.025"};
}

/// A log that holds every odd case at once.
inline std::vector<Contact> OddContacts() {
    std::vector<Contact> contacts;
    const auto add = [&contacts](const auto& change) {
        Contact contact = Usual();
        contact.Ns = std::to_string(contacts.size() + 1);
        change(contact);
        contacts.push_back(contact);
    };
    add([](Contact&) {});
    add([](Contact& c) { c.Call = "K1MD", c.Sec = "MD", c.Bnd = "160", c.Time = "21:05", c.Frq = ""; });
    add([](Contact& c) { c.Call = "VE3ON", c.Sec = "ON", c.Bnd = "80", c.Time = "5", c.Frq = "  3.55 "; });
    add([](Contact& c) { c.Call = "VE8NT", c.Sec = "NT", c.Bnd = "20", c.Time = "12:5", c.Date = "11/7/26"; });
    add([](Contact& c) { c.Call = "KP4XX", c.Sec = "PR", c.Bnd = "15", c.Time = ""; });
    add([](Contact& c) { c.Call = "KH6XX", c.Sec = "PAC", c.Bnd = "10", c.Date = "no date"; });
    add([](Contact& c) { c.Call = "KL7AA", c.Sec = "AK", c.Bnd = "6", c.Date = ""; });
    add([](Contact& c) { c.Call = "VP2MM", c.Sec = "VI", c.Bnd = "", c.Time = "1:2:3"; });
    add([](Contact& c) { c.Call = "W1AW/3456789X", c.Sec = "EPA", c.Nr = "12345", c.Time = "21:10:00"; });
    add([](Contact& c) { c.Call = "NOCALL", c.Sec = "EMA", c.Nr = "", c.P = "", c.Ck = "", c.Time = "21"; });
    add([](Contact& c) { c.Call = "W1XX", c.Sec = "MDC", c.Ns = "12345678", c.Nr = "999999999999999999"; });
    add([](Contact& c) { c.Call = "N\xD6 1\xC4", c.Sec = "LAX", c.Time = "-1", c.Date = "2/30/2026"; });
    add([](Contact& c) { c.Call = "", c.Sec = "", c.Bnd = "7", c.Time = "21:15:59"; });
    add([](Contact& c) { c.Call = "AA1A", c.Sec = "CT", c.Date = "11/7", c.Time = "21:16:01"; });
    return contacts;
}

}  // namespace tallyhut
