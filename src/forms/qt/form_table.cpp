#include "forms/qt/form_table.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace tallyhut {
namespace {

struct NamedTable {
    std::string_view form;
    const FormTable& table;
};

constexpr std::array kTables{
    NamedTable{"BlindFrm", kBlindFrmTable},
    NamedTable{"CWFrm", kCWFrmTable},
    NamedTable{"Form2", kForm2Table},
    NamedTable{"Form5", kForm5Table},
    NamedTable{"Form6", kForm6Table},
    NamedTable{"GraphQSO", kGraphQSOTable},
    NamedTable{"PacketSpotfrm", kPacketSpotfrmTable},
    NamedTable{"PhoneFrm", kPhoneFrmTable},
    NamedTable{"RigControlfrm", kRigControlfrmTable},
    NamedTable{"SectionMap", kSectionMapTable},
    NamedTable{"frmBandPlan", kFrmBandPlanTable},
    NamedTable{"frmCWStrings", kFrmCWStringsTable},
    NamedTable{"frmCheckLog", kFrmCheckLogTable},
    NamedTable{"frmCodePractice", kFrmCodePracticeTable},
    NamedTable{"frmEditCon", kFrmEditConTable},
    NamedTable{"frmFrequencyTest", kFrmFrequencyTestTable},
    NamedTable{"frmImport", kFrmImportTable},
    NamedTable{"frmKnownCalls", kFrmKnownCallsTable},
    NamedTable{"frmNetwork", kFrmNetworkTable},
    NamedTable{"frmPorts", kFrmPortsTable},
    NamedTable{"frmRigTune", kFrmRigTuneTable},
    NamedTable{"frmSections", kFrmSectionsTable},
    NamedTable{"frmStationID", kFrmStationIDTable},
    NamedTable{"frmWinKey", kFrmWinKeyTable},
    NamedTable{"frmbndstats", kFrmBndStatsTable},
};

int Number(std::string_view digits) {
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

/// The next word of the text, which loses it.
std::string_view TakeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    return word;
}

/// "optComm(0-9)" is optComm(0), optComm(1) and so on; all others are themselves.
std::vector<std::string> NamesIn(std::string_view name) {
    const std::size_t open = name.find('(');
    const std::size_t dash = name.find('-', open);
    if (open == std::string_view::npos || dash == std::string_view::npos) {
        return {std::string{name}};
    }
    std::vector<std::string> names;
    const int last = Number(name.substr(dash + 1));
    for (int i = Number(name.substr(open + 1)); i <= last; ++i) {
        names.push_back(std::string{name.substr(0, open + 1)} + std::to_string(i) + ')');
    }
    return names;
}

}  // namespace

std::vector<ToldControl> ControlsIn(std::string_view controls) {
    std::vector<ToldControl> told;
    for (std::string_view word = TakeWord(controls); !word.empty(); word = TakeWord(controls)) {
        const std::size_t colon = std::min(word.find(':'), word.size());
        const std::string_view room = word.substr(colon).substr(colon < word.size() ? 1 : 0);
        for (const std::string& name : NamesIn(word.substr(0, colon))) {
            told.push_back({name, Number(room), room == "*"});
        }
    }
    return told;
}

FormTable TableOf(std::string_view formName) {
    const auto* const found = std::ranges::find(kTables, formName, &NamedTable::form);
    return found == kTables.end() ? FormTable{} : found->table;
}

}  // namespace tallyhut
