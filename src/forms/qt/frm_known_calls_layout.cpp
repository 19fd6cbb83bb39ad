#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group("Exchanges of earlier contests"),
    OneLine("lblHistoryFile", "txtHistory:* cmdHistory", RowLook::Data),
    Under("chkHistory lblHistory:*"),
    Group("Super check partial"),
    OneLine("lblScpFile", "txtScp:* cmdScp", RowLook::Data),
    Under("chkScp lblScpCount:*"),
    Text("lblScpNote"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kFrmKnownCallsTable{kRows};

}  // namespace tallyhut
