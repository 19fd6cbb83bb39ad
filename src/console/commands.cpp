#include "console/commands.h"

#include <unistd.h>

#include <algorithm>
#include <array>

#include "console/console_error.h"
#include "console/target.h"
#include "console/text_encoding.h"
#include "support/told_names.h"
#include "values/format.h"
#include "values/utf8.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

/// Moments add up, so that a command needs one; more are a driver's mistake.
constexpr int kMostMoments = 10;

struct CommandRow {
    std::string_view name;
    void (Commands::*run)(CommandWords&);
    bool reads = false;      ///< taken while a dialog waits
    bool movesTime = false;  ///< not to be put at a moment
};

constexpr std::array kCommands{
    CommandRow{"type", &Commands::Type},
    CommandRow{"key", &Commands::Keys},
    CommandRow{"click", &Commands::Click},
    CommandRow{"hover", &Commands::Hover},
    CommandRow{"focus", &Commands::Focus},
    CommandRow{"activate", &Commands::Activate},
    CommandRow{"caret", &Commands::Caret},
    CommandRow{"set", &Commands::Set},
    CommandRow{"pick", &Commands::Pick},
    CommandRow{"rclick", &Commands::RightClick},
    CommandRow{"dblclick", &Commands::DoubleClick},
    CommandRow{"column", &Commands::Column},
    CommandRow{"menu", &Commands::Menu},
    CommandRow{"close", &Commands::Close},
    CommandRow{.name = "answer", .run = &Commands::AnswerDialog, .reads = true},
    CommandRow{.name = "get", .run = &Commands::Get, .reads = true},
    CommandRow{.name = "rows", .run = &Commands::Rows, .reads = true},
    CommandRow{.name = "forms", .run = &Commands::ListForms, .reads = true},
    CommandRow{.name = "dump", .run = &Commands::Dump, .reads = true},
    CommandRow{.name = "advance", .run = &Commands::Advance, .movesTime = true},
    CommandRow{.name = "at", .run = &Commands::At},
    CommandRow{.name = "settle", .run = &Commands::Settle, .movesTime = true},
    CommandRow{"quit", &Commands::Quit},
};

struct ButtonName {
    std::string_view name;
    MouseButton button;
};

constexpr std::array kButtonNames{ButtonName{"left", kLeftButton}, ButtonName{"right", kRightButton},
                                  ButtonName{"middle", kMiddleButton}};

const CommandRow* FindCommand(const std::string& name) {
    const auto* row = std::ranges::find(kCommands, name, &CommandRow::name);
    return row == kCommands.end() ? nullptr : row;
}

void CheckSomeForm(const Desk& desk) {
    if (desk.Active() == nullptr) {
        throw ConsoleError{"no form takes keys"};
    }
}

/// Line ends and tabs of a typed text are the keys that make them.
unsigned char KeyCharacter(char character) {
    return static_cast<unsigned char>(character == '\n' ? '\r' : character);
}

bool IsPlainCaption(const MenuEntry& entry, const std::string& text) {
    std::string caption = entry.Caption();
    std::erase(caption, '&');
    return entry.Caption() == text || caption == text;
}

MenuEntry& FindMenu(const Form& form, const std::string& nameOrCaption) {
    const std::string wanted = FromUtf8(nameOrCaption);
    for (Control* control : form.Controls()) {
        if (control->kind != ControlKind::Menu) {
            continue;
        }
        auto& entry = static_cast<MenuEntry&>(*control);
        if (entry.name != wanted && !IsPlainCaption(entry, wanted)) {
            continue;
        }
        if (!entry.IsShown() || !entry.State().enabled) {
            throw ConsoleError{"the menu entry is hidden or disabled: " + nameOrCaption};
        }
        if (!entry.Entries().empty()) {
            throw ConsoleError{"the menu entry opens others: " + nameOrCaption};
        }
        return entry;
    }
    throw ConsoleError{"no menu entry " + nameOrCaption};
}

std::size_t RowCountOf(const Control& control) {
    if (control.kind == ControlKind::ListView) {
        return static_cast<const ListView&>(control).RowCount();
    }
    if (control.kind != ControlKind::List) {
        throw ConsoleError{"no list: " + control.FullName()};
    }
    return control.State().items.size();
}

TextBox& AsTextBox(Control& control) {
    if (control.kind != ControlKind::TextBox) {
        throw ConsoleError{"no text field: " + control.FullName()};
    }
    return static_cast<TextBox&>(control);
}

}  // namespace

void Commands::Run(const std::string& line, bool putAt) {
    try {
        CommandWords words{line};
        if (!words.AtEnd()) {
            Dispatch(words, putAt);
        }
    } catch (const ConsoleError& error) {
        out.Error(error.what());
    } catch (const ValueError& error) {  // a value that has no text, such as a number that is not finite
        out.Error(error.what());
    }
}

void Commands::CheckPutAt(const std::string& name) const {
    const CommandRow* row = FindCommand(name);
    if (row == nullptr && !devices.contains(name)) {
        throw ConsoleError{"unknown command " + name};
    }
    if (row != nullptr && row->movesTime) {
        throw ConsoleError{name + " cannot be put at a moment"};
    }
}

void Commands::Dispatch(CommandWords& words, bool putAt) {
    const std::string name = words.Take("command").text;
    const CommandRow* row = FindCommand(name);
    const auto device = devices.find(name);
    if (row == nullptr && device == devices.end()) {
        throw ConsoleError{"unknown command " + name};
    }
    if (!dialogs.Waiting().empty() && (row == nullptr || !row->reads)) {
        throw ConsoleError{"a dialog waits for its answer"};
    }
    if (putAt) {
        CheckPutAt(name);
    }
    if (row != nullptr) {
        (this->*row->run)(words);
    } else {
        device->second(words);
    }
}

void Commands::Type(CommandWords& words) {
    const std::string text = FromUtf8(words.Take("text").text);
    words.CheckEnd();
    CheckSomeForm(program.desk);
    for (const char character : text) {
        program.desk.PostKey(KeyForCharacter(KeyCharacter(character)));
    }
}

void Commands::Keys(CommandWords& words) {
    std::vector<Key> keys;
    do {
        const std::string& name = words.Take("key name").text;
        const std::optional<Key> key = KeyByName(name);
        if (!key) {
            throw ConsoleError{"unknown key " + name};
        }
        keys.push_back(*key);
    } while (!words.AtEnd());
    CheckSomeForm(program.desk);
    for (const Key& key : keys) {
        program.desk.PostKey(key);
    }
}

void Commands::Click(CommandWords& words) {
    Control& control = ActableControl(program.desk, words.Take("target").text);
    MouseButton button = kLeftButton;
    bool twice = false;
    while (!words.AtEnd()) {
        const std::string& word = words.Take("button").text;
        const auto* const named = std::ranges::find(kButtonNames, word, &ButtonName::name);
        if (word == "double") {
            twice = true;
        } else if (named != kButtonNames.end()) {
            button = named->button;
        } else {
            throw ConsoleError{"unknown button " + word};
        }
    }
    if (control.kind == ControlKind::Menu) {
        throw ConsoleError{"a menu entry is clicked with menu: " + control.name};
    }
    program.desk.PostClick(control, button, twice);
}

void Commands::Hover(CommandWords& words) {
    Control& control = ActableControl(program.desk, words.Take("target").text);
    std::optional<Point> pointer;
    if (control.kind == ControlKind::Raster && !words.AtEnd()) {
        const int x = words.TakeNumber("x");
        pointer = {static_cast<double>(x), static_cast<double>(words.TakeNumber("y"))};
    }
    words.CheckEnd();
    program.desk.PostAction([this, &control, pointer] {
        if (pointer) {
            static_cast<Raster&>(control).pointer = *pointer;
        }
        program.desk.Call(control.MouseMove);
    });
}

void Commands::Focus(CommandWords& words) {
    Control& control = ActableControl(program.desk, words.Take("target").text);
    words.CheckEnd();
    if (!control.CanTakeFocus()) {
        throw ConsoleError{"takes no focus: " + control.FullName()};
    }
    program.desk.PostAction([this, &control] {
        program.desk.Activate(control.form);
        control.SetFocus();
    });
}

void Commands::Activate(CommandWords& words) {
    const std::string& name = words.Take("form").text;
    words.CheckEnd();
    Form& form = LoadedForm(program.desk, name);
    if (!form.IsVisible() || program.desk.IsBlockedByModal(form)) {
        throw ConsoleError{"the form is hidden or stands under a modal one: " + name};
    }
    program.desk.PostAction([this, &form] { program.desk.Activate(form); });
}

void Commands::Caret(CommandWords& words) {
    TextBox& box = AsTextBox(ActableControl(program.desk, words.Take("target").text));
    const int position = words.TakeNumber("position");
    const int length = words.AtEnd() ? 0 : words.TakeNumber("length");
    words.CheckEnd();
    program.desk.PostAction([&box, position, length] { box.Select(position, length); });
}

void Commands::Set(CommandWords& words) {
    TextBox& box = AsTextBox(ActableControl(program.desk, words.Take("target").text));
    const std::string text = FromUtf8(words.Take("text").text);
    words.CheckEnd();
    if (box.State().locked) {
        throw ConsoleError{"locked: " + box.FullName()};
    }
    program.desk.PostAction([&box, text] { box.ReplaceByPaste(text); });
}

void Commands::ClickRow(CommandWords& words, MouseButton button, bool twice) {
    Control& control = ActableControl(program.desk, words.Take("target").text);
    const int row = words.TakeNumber("row");
    words.CheckEnd();
    if (row < 0 || static_cast<std::size_t>(row) >= RowCountOf(control)) {
        throw ConsoleError{"no such row in " + control.FullName()};
    }
    program.desk.PostRowClick(control, row, button, twice);
}

void Commands::Pick(CommandWords& words) {
    ClickRow(words, kLeftButton, false);
}

void Commands::RightClick(CommandWords& words) {
    ClickRow(words, kRightButton, false);
}

void Commands::DoubleClick(CommandWords& words) {
    ClickRow(words, kLeftButton, true);
}

void Commands::Column(CommandWords& words) {
    Control& control = ActableControl(program.desk, words.Take("target").text);
    const int column = words.TakeNumber("column");
    words.CheckEnd();
    const auto columns = static_cast<int>(control.State().columns.size());
    if (control.kind != ControlKind::ListView || column < 1 || column > columns) {
        throw ConsoleError{"no such column in " + control.FullName()};
    }
    program.desk.PostAction(
        [this, &control, column] { program.desk.Call(static_cast<ListView&>(control).ColumnClick, column); });
}

void Commands::Menu(CommandWords& words) {
    const std::string& nameOrCaption = words.Take("menu entry").text;
    words.CheckEnd();
    CheckSomeForm(program.desk);
    program.desk.PostMenu(FindMenu(*program.desk.Active(), nameOrCaption));
}

void Commands::Close(CommandWords& words) {
    CheckSomeForm(program.desk);
    Form* form = program.desk.Active();
    if (!words.AtEnd()) {
        form = &LoadedForm(program.desk, words.Take("form").text);
    }
    words.CheckEnd();
    if (!form->IsVisible() || program.desk.IsBlockedByModal(*form)) {
        throw ConsoleError{"the form is hidden or stands under a modal one: " + form->name};
    }
    program.desk.PostAction([form] { form->RequestClose(); });
}

void Commands::AnswerDialog(CommandWords& words) {
    if (dialogs.Waiting().empty()) {
        throw ConsoleError{"no dialog waits"};
    }
    const CommandWord reply = words.Take("answer");
    words.CheckEnd();
    dialogs.TakeAnswer(reply);
}

void Commands::Get(CommandWords& words) {
    const std::string& text = words.Take("target").text;
    words.CheckEnd();
    if (text == "$clock") {
        out.Result({{"value", virtualClock != nullptr
                                  ? virtualClock->IsoNow()
                                  : FormatDateTime(program.machine.clock.Now(), "yyyy-mm-dd") + 'T' +
                                        FormatDateTime(program.machine.clock.Now(), "hh:nn:ss") + ".000"}});
    } else if (text.starts_with('$')) {
        const std::optional<ToldNames::Value> value = program.told.Find(std::string_view{text}.substr(1));
        if (!value) {
            throw ConsoleError{"unknown name " + text};
        }
        const auto* number = std::get_if<double>(&*value);
        out.Result({{"value", number != nullptr ? NumberJson(*number) : Json(ToUtf8(std::get<std::string>(*value)))}});
    } else {
        out.Result({{"value", PropertyOf(FindTarget(program.desk, text, true))}});
    }
}

void Commands::Rows(CommandWords& words) {
    const Target target = FindTarget(program.desk, words.Take("target").text, false);
    words.CheckEnd();
    if (target.control == nullptr) {
        throw ConsoleError{"a list is wanted, not a form"};
    }
    out.Result({{"rows", RowsOf(*target.control)}});
}

void Commands::ListForms(CommandWords& words) {
    words.CheckEnd();
    out.Result({{"forms", FormsOf(program.desk)}});
}

void Commands::Dump(CommandWords& words) {
    const Form& form = LoadedForm(program.desk, words.Take("form").text);
    words.CheckEnd();
    out.Result({{"controls", ControlsOf(form)}});
}

void Commands::Advance(CommandWords& words) {
    const Tick milliseconds = words.TakeMilliseconds();
    words.CheckEnd();
    if (virtualClock == nullptr) {
        throw ConsoleError{"the clock is the machine's: --clock gives one that can be moved"};
    }
    const Tick target = virtualClock->TickMs() + milliseconds;
    for (;;) {
        std::optional<Tick> due = program.desk.NextDue();
        if (const std::optional<Tick> put = pump.NextPut(); put && (!due || *put < *due)) {
            due = put;
        }
        // A timer that its own handler has made late, beyond the target, waits for the next command.
        if (!due || *due > target || virtualClock->TickMs() > target) {
            break;
        }
        virtualClock->AdvanceTo(*due);
        program.desk.RunPending();
    }
    virtualClock->AdvanceTo(target);
    pump.NoteTimeMoved();
}

void Commands::At(CommandWords& words) {
    const Tick milliseconds = words.TakeMilliseconds();
    const std::string line{words.Rest()};
    std::string name = words.Take("command").text;
    for (int moments = 1; name == "at"; ++moments) {
        if (moments == kMostMoments) {
            throw ConsoleError{"at is nested deeper than " + std::to_string(kMostMoments)};
        }
        words.TakeMilliseconds();
        name = words.Take("command").text;
    }
    CheckPutAt(name);
    pump.PutAt(milliseconds, line);
}

void Commands::Settle(CommandWords& words) {
    const Tick milliseconds = words.TakeMilliseconds();
    words.CheckEnd();
    pump.Settle(milliseconds, program.desk);
}

/// As a lost power line: nothing of the program runs any more.
void Commands::Quit(CommandWords& words) {
    words.CheckEnd();
    out.Exit(0);
    _exit(0);
}

}  // namespace tallyhut
