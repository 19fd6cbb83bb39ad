#include <array>

#include "forms/qt/form_table.h"

namespace tallyhut {
namespace {

constexpr std::array kRows{
    Column(1),
    Group("Contacts"),
    OneLine("", "chkContacts"),
    OneLine("lblContacts", "txtContacts:*", RowLook::Data),
    Group("Radio"),
    OneLine("", "chkRadio"),
    OneLine("lblRadio", "txtRadio:*", RowLook::Data),
    Group("How it is sent"),
    OneLine("lblApp", "txtApp:20", RowLook::Data),
    Text("lblAppNote lblNote lblNetwork"),
    Main("cmdDone"),
};

}  // namespace

const FormTable kFrmNetworkTable{kRows};

}  // namespace tallyhut
