#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

/// What the operator presses, and which recordings are heard of it, in order. One with a dash behind it is cut off by
/// the next at once.
struct SpokenStep {
    std::string command;  ///< of the console; "wait 3000" lets milliseconds pass
    std::vector<std::string> heard = {};
};

/// The recordings of the contest; each lies in the contest's folder, with .wav behind its name.
inline constexpr std::string_view kRecordings[] = {"Call",  "Number", "Prec",     "Check", "Section", "Dupe",
                                                   "NavEn", "NavDis", "Needspot", "cq",    "tu"};

/// A contest by keyboard and ear, from the station form of a fresh folder on: two contacts, a duplicate, a section that
/// is none, a number that is missing. The screen is looked at nowhere.
inline const std::vector<SpokenStep> kSpokenContest{
    // The station form, and the log of a fresh folder.
    {"type \"w9zzz\""},
    {"key Tab"},
    {"type \"a\""},
    {"key Tab"},
    {"type \"72\""},
    {"key Tab"},
    {"type \"il\""},
    {"key Tab Tab Right Enter"},
    {"answer Yes"},
    // Settings, Voice Navigation.
    {"key Alt+S V"},
    {"key Down", {"NavEn", "Call"}},
    {"key Down", {"NavEn"}},
    {"key Enter"},
    // Settings, Phone: two messages.
    {"key Ctrl+P"},
    {"type \"cq.wav\""},
    {"key Tab Tab Tab"},
    {"type \"tu.wav\""},
    {"key Enter"},
    // TabOrder, Begin in Call Field; Time On.
    {"key Alt+T Down Down Enter", {"Call"}},
    {"key Alt+L", {"Call"}},
    // A contact.
    {"key F1", {"cq"}},
    {"type \"w1xx\""},
    {"key Space", {"Number"}},
    {"type \"88\""},
    {"type \"a\"", {"Prec"}},
    {"type \"72\"", {"Check"}},
    {"type \"mdc\"", {"Section"}},
    {"key Enter", {"Call"}},
    {"key F2", {"tu"}},
    // The same station again.
    {"type \"w1xx\""},
    {"key Space", {"Dupe", "Number-", "Call"}},
    {"wait 3000"},
    // A section that is none: nothing is heard, and it is typed anew.
    {"type \"k2yy\""},
    {"key Space", {"Number"}},
    {"type \"12\""},
    {"type \"b\"", {"Prec"}},
    {"type \"64\"", {"Check"}},
    {"type \"xyz\"", {"Section"}},
    {"key Enter"},
    {"key Backspace Backspace Backspace"},
    {"type \"nny\""},
    {"key Enter", {"Call"}},
    // Without a number nothing is logged, and the field that lacks it is told.
    {"type \"n3zz\""},
    {"key Space", {"Number"}},
    {"key Tab", {"Prec"}},
    {"type \"a\""},
    {"type \"5\"", {"Check"}},
    {"type \"5\""},
    {"type \"epa\"", {"Section"}},
    {"key Enter", {"Number"}},
    {"type \"7\""},
    {"key Enter", {"Call"}},
    // Esc empties the row.
    {"type \"n4\""},
    {"key Esc"},
    {"key Tab", {"Number"}},
    {"key Esc", {"Call"}},
};

}  // namespace tallyhut
