#include "console/told_state.h"

#include <array>

#include "values/number.h"

namespace tallyhut {
namespace {

struct Variable {
    std::string_view name;
    ToldValue (*value)(const Program&);
};

/// The arithmetic types become a number as they print, texts stay.
template <typename Value>
ToldValue Told(const Value& value) {
    if constexpr (std::is_arithmetic_v<Value>) {
        return TrimmedNumber(PlainText(value));
    } else {
        return std::string{value};
    }
}

ToldValue Told(bool value) {
    return value ? 1.0 : 0.0;
}

constexpr std::array kVariables{
    Variable{"WorkingDirectory", [](const Program& p) { return Told(p.directories.WorkingDirectory); }},
    Variable{"DataDirectory", [](const Program& p) { return Told(p.directories.DataDirectory); }},
    Variable{"SharedDirectory", [](const Program& p) { return Told(p.directories.SharedDirectory); }},
    Variable{"gContactCount", [](const Program& p) { return Told(p.log.gContactCount); }},
    Variable{"gSavedCount", [](const Program& p) { return Told(p.log.gSavedCount); }},
    Variable{"gFrq", [](const Program& p) { return Told(p.log.gFrq); }},
    Variable{"gSectionCount", [](const Program& p) { return Told(p.sections.gSectionCount); }},
    Variable{"gSectionsWorked", [](const Program& p) { return Told(p.sections.gSectionsWorked); }},
    Variable{"gCarryKey", [](const Program& p) { return Told(p.entry.gCarryKey); }},
    Variable{"gCarryFrom", [](const Program& p) { return Told(p.entry.gCarryFrom); }},
    Variable{"gPassedCallTwice", [](const Program& p) { return Told(p.fields.gPassedCallTwice); }},
    Variable{"gIncomplete", [](const Program& p) { return Told(p.commit.gIncomplete); }},
    Variable{"gBadSection", [](const Program& p) { return Told(p.commit.gBadSection); }},
    Variable{"gIsDupe", [](const Program& p) { return Told(p.duplicates.gIsDupe); }},
    Variable{"gPartialOn", [](const Program& p) { return Told(p.duplicates.gPartialOn); }},
    Variable{"gListAll", [](const Program& p) { return Told(p.list.gListAll); }},
    Variable{"gTimeOn", [](const Program& p) { return Told(p.time.gTimeOn); }},
    Variable{"gCtrlKeyTaken", [](const Program& p) { return Told(p.keys.gCtrlKeyTaken); }},
    Variable{"RxBuffer", [](const Program& p) { return Told(p.rigState.RxBuffer); }},
    Variable{"RigFrequency", [](const Program& p) { return Told(p.rigState.RigFrequency); }},
    Variable{"RigMode", [](const Program& p) { return Told(p.rigState.RigMode); }},
    Variable{"ReadPhase", [](const Program& p) { return Told(p.rigState.ReadPhase); }},
    Variable{"ModeTurn", [](const Program& p) { return Told(p.rigState.ModeTurn); }},
    Variable{"VfoDigit", [](const Program& p) { return Told(p.rigState.VfoDigit); }},
    Variable{"FormLoading", [](const Program& p) { return Told(p.rigSetup.FormLoading); }},
    Variable{"gOwnCall", [](const Program& p) { return Told(p.preferences.gOwnCall); }},
    Variable{"gOwnPrec", [](const Program& p) { return Told(p.preferences.gOwnPrec); }},
    Variable{"gOwnCheck", [](const Program& p) { return Told(p.preferences.gOwnCheck); }},
    Variable{"gOwnSection", [](const Program& p) { return Told(p.preferences.gOwnSection); }},
    Variable{"gUtcOffset", [](const Program& p) { return Told(p.preferences.gUtcOffset); }},
    Variable{"gContestMode", [](const Program& p) { return Told(p.preferences.gContestMode); }},
    Variable{"gTabMode", [](const Program& p) { return Told(p.preferences.gTabMode); }},
    Variable{"gStationSet", [](const Program& p) { return Told(p.preferences.gStationSet); }},
    Variable{"gBand", [](const Program& p) { return Told(p.preferences.gBand); }},
    Variable{"gOpSeconds", [](const Program& p) { return Told(p.preferences.gOpSeconds); }},
    Variable{"gColorWorked", [](const Program& p) { return Told(p.preferences.gColorWorked); }},
    Variable{"gColorNeeded", [](const Program& p) { return Told(p.preferences.gColorNeeded); }},
    Variable{"gFormScale", [](const Program& p) { return Told(p.preferences.gFormScale); }},
    Variable{"gVoiceNav", [](const Program& p) { return Told(p.preferences.gVoiceNav); }},
    Variable{"gRigName", [](const Program& p) { return Told(p.preferences.gRigName); }},
    Variable{"gTaskbar", [](const Program& p) { return Told(p.preferences.gTaskbar); }},
    Variable{"gColorNeededSpots", [](const Program& p) { return Told(p.preferences.gColorNeededSpots); }},
    Variable{"gAudioAlert", [](const Program& p) { return Told(p.preferences.gAudioAlert); }},
};

struct ContactTable {
    std::string_view name;
    std::string Contact::*field;
};

constexpr std::array kContactTables{
    ContactTable{"Ns", &Contact::Ns},     ContactTable{"Nr", &Contact::Nr},     ContactTable{"P", &Contact::P},
    ContactTable{"Call", &Contact::Call}, ContactTable{"Ck", &Contact::Ck},     ContactTable{"Sec", &Contact::Sec},
    ContactTable{"Date", &Contact::Date}, ContactTable{"Time", &Contact::Time}, ContactTable{"Bnd", &Contact::Bnd},
    ContactTable{"Frq", &Contact::Frq},
};

struct SectionColumn {
    std::string_view name;
    ToldValue (*value)(const Program&, int section);
};

constexpr std::array kSectionColumns{
    SectionColumn{"SectionCode", [](const Program& p, int i) { return Told(p.sections.SectionCode(i)); }},
    SectionColumn{"SectionName", [](const Program& p, int i) { return Told(p.sections.SectionName(i)); }},
    SectionColumn{"SectionQsos",
                  [](const Program& p, int i) { return Told(p.sections.SectionQsos.at(static_cast<std::size_t>(i))); }},
};

}  // namespace

IndexedName SplitIndex(std::string_view nameAndIndex) {
    const std::size_t open = nameAndIndex.find('(');
    if (open == std::string_view::npos || nameAndIndex.back() != ')') {
        return {.name = nameAndIndex};
    }
    const std::string_view inside = nameAndIndex.substr(open + 1, nameAndIndex.size() - open - 2);
    const bool digits =
        !inside.empty() && inside.size() < 7 && inside.find_first_not_of("0123456789") == std::string_view::npos;
    if (!digits) {
        return {.name = nameAndIndex};
    }
    return {.name = nameAndIndex.substr(0, open), .index = ToInt32(TrimmedNumber(inside))};
}

std::optional<ToldValue> FindToldValue(const Program& program, std::string_view nameAndIndex) {
    const IndexedName told = SplitIndex(nameAndIndex);
    if (told.index < 0) {
        for (const Variable& variable : kVariables) {
            if (variable.name == told.name) {
                return variable.value(program);
            }
        }
        return std::nullopt;
    }
    for (const ContactTable& table : kContactTables) {
        if (table.name == told.name && told.index >= 1 && told.index <= program.log.gContactCount) {
            return program.log.Row(told.index).*table.field;
        }
    }
    for (const SectionColumn& column : kSectionColumns) {
        if (column.name == told.name && told.index >= 1 && told.index <= program.sections.gSectionCount) {
            return column.value(program, told.index);
        }
    }
    return std::nullopt;
}

}  // namespace tallyhut
