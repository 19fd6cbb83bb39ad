#pragma once

#include <string>

#include "app/program.h"
#include "console/command_words.h"
#include "console/console_dialogs.h"
#include "console/console_pump.h"
#include "console/device_commands.h"
#include "console/json_output.h"
#include "platform/sim/clock.h"

namespace tallyhut {

/// The driver's commands: each is checked, and then done as the operator would do it. What cannot be taken is an error
/// line, and nothing has changed.
struct Commands {
    Program& program;
    JsonOutput& out;
    ConsolePump& pump;
    ConsoleDialogs& dialogs;
    sim::Clock* virtualClock;  ///< null with the machine's clock
    const DeviceCommands& devices;

    /// Runs one line; an empty one does nothing. `putAt` tells a command that comes at its moment from a typed one.
    void Run(const std::string& line, bool putAt);

    void Type(CommandWords& words);
    void Keys(CommandWords& words);
    void Click(CommandWords& words);
    void Hover(CommandWords& words);
    void Focus(CommandWords& words);
    void Activate(CommandWords& words);
    void Caret(CommandWords& words);
    void Set(CommandWords& words);
    void Pick(CommandWords& words);
    void RightClick(CommandWords& words);
    void DoubleClick(CommandWords& words);
    void Column(CommandWords& words);
    void Menu(CommandWords& words);
    void Close(CommandWords& words);
    void AnswerDialog(CommandWords& words);
    void Get(CommandWords& words);
    void Rows(CommandWords& words);
    void ListForms(CommandWords& words);
    void Dump(CommandWords& words);
    void Advance(CommandWords& words);
    void At(CommandWords& words);
    void Settle(CommandWords& words);
    [[noreturn]] void Quit(CommandWords& words);

private:
    void Dispatch(CommandWords& words, bool putAt);
    /// Throws ConsoleError for a name that is none, and for what cannot be put at a moment.
    void CheckPutAt(const std::string& name) const;
    void ClickRow(CommandWords& words, MouseButton button, bool twice);
};

}  // namespace tallyhut
