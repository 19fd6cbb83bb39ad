#pragma once

#include "log/entry_fields.h"
#include "log/message_line.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// The main form as the units of the log work it: the form, the desk that it lies on, its entry fields and its message
/// line.
struct Panel {
    Form1& form;
    Desk& desk;
    EntryFields fields;
    MessageLine message;
};

}  // namespace tallyhut
