#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform_error.h"
#include "platform/sim/machine.h"
#include "tests/program_units.h"

namespace tallyhut {

inline constexpr const char* kFolder = "/contest";
inline constexpr const char* kLogPath = "/contest/Log.txt";
inline constexpr const char* kPreferencesPath = "/contest/nspref.txt";
inline constexpr const char* kWavesPath = "/contest/wave2.txt";

/// A file of no messages, as a fresh installation gets it.
inline constexpr const char* kNoWaves =
    "\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"0\"\r\n0\r\n\"0\"\r\n\"&H378\"\r\n";

/// What the operator is told about a log that cannot be read, as the simulated dialogs write it down.
inline constexpr const char* kFileErrorLine =
    "message \"File Error\" \"Error opening file.  This error is annoying but correctable.  In all likelihood, a "
    "character "
    "such as a quote got into your data or one of your entries has an invalid date/time format.  Close this program "
    "and "
    "open log.txt in the program's working directory with a text editor such as notepad.  Inspect the data and fix any "
    "errors you see (remove any extra quotes and make sure your date and time entries are valid).\" OK Critical";

/// One contact of a usual kind; tests change what they speak of.
inline Contact Worked(const std::string& call, const std::string& section = "MDC") {
    return {.Ns = "137",
            .Nr = "88",
            .P = "A",
            .Call = call,
            .Ck = "72",
            .Sec = section,
            .Date = "2026/11/07",
            .Time = "21:04:33",
            .Bnd = "40",
            .Frq = ""};
}

/// So many contacts with serial numbers from 1 and calls W1X, W2X and on.
inline std::vector<Contact> ManyContacts(int count) {
    std::vector<Contact> contacts;
    for (int n = 1; n <= count; ++n) {
        contacts.push_back(Worked("W" + std::to_string(n) + "X"));
        contacts.back().Ns = std::to_string(n);
    }
    return contacts;
}

inline std::string LogText(const std::vector<Contact>& contacts) {
    std::string text;
    for (const Contact& contact : contacts) {
        text += WriteRecord(contact);
    }
    return text;
}

/// The whole program on a simulated machine, in a folder that has settings. Keys go the way of the operator's keys.
struct ProgramFixture : testing::Test, sim::Machine {
    ProgramFixture() : sim::Machine{{2026, 11, 7, 21, 4, 33}} {}

    Preferences stored;  ///< what nspref.txt holds at the start
    std::unique_ptr<ProgramUnits> program;

    void PutLog(const std::vector<Contact>& contacts) { files.Put(kLogPath, LogText(contacts)); }

    /// Starts the program on the folder as it stands, with `stored` as its settings, and continues its log; an empty
    /// one where there is none.
    void Start() {
        files.Put(kPreferencesPath, WritePreferences(stored));
        if (!files.contents.contains(kLogPath) && !files.FolderExists(kLogPath)) {
            files.Put(kLogPath, "");
        }
        if (!files.contents.contains(kWavesPath)) {
            files.Put(kWavesPath, kNoWaves);
        }
        StartContinuing();
    }
    /// Starts the program on the folder as it stands: the station form is closed with Done, the question answered Yes.
    void StartContinuing() {
        MakeProgram();
        pump.OnWait([this] { program->desk.PostClick(program->stationForm.Command1, kLeftButton); });
        dialogs.answers.push_front(Answer::Yes);
        program->Start();
        program->desk.RunPending();
        dialogs.boxes.clear();
        operationsOfStart_ = files.Operations();
    }
    /// How often the program has changed a file since its start.
    int Operations() const { return files.Operations() - operationsOfStart_; }
    void MakeProgram() {
        program.reset();  // it lets go of the folder
        files.AddFolder(environment.documentsFolder);
        files.Put("/data/wave2.txt", kNoWaves);
        for (const char* name : {"BandPlan.txt", "readns.txt"}) {
            files.Put(std::string{"/data/"} + name, "");
        }
        program = std::make_unique<ProgramUnits>(Lend(), kFolder);
    }
    void StartInMode(int mode) {
        stored.gTabMode = static_cast<std::uint8_t>(mode);
        Start();
    }
    void StartWith(const std::vector<Contact>& contacts, int mode = 1) {
        PutLog(contacts);
        StartInMode(mode);
    }
    /// With the operating time on, so that nothing reminds of it.
    void StartOnTime(int mode = 1) {
        StartInMode(mode);
        program->time.gTimeOn = 1;
    }

    Desk& TheDesk() { return program->desk; }
    Form1& Main() { return program->form1; }

    void Post(std::string_view text) {
        for (const char character : text) {
            TheDesk().PostKey(KeyForCharacter(static_cast<unsigned char>(character)));
        }
    }
    void PostNamed(std::string_view name) {
        const std::optional<Key> key = KeyByName(name);
        ASSERT_TRUE(key) << name;
        TheDesk().PostKey(*key);
    }
    void Type(std::string_view text) {
        for (const char character : text) {
            Post({&character, 1});
            TheDesk().RunPending();
        }
    }
    void Press(std::string_view name) {
        PostNamed(name);
        TheDesk().RunPending();
    }
    void Click(Control& control) {
        TheDesk().PostClick(control, kLeftButton);
        TheDesk().RunPending();
    }
    void ChooseMenu(MenuEntry& entry) {
        TheDesk().PostMenu(entry);
        TheDesk().RunPending();
    }
    void PassTime(Tick milliseconds) {
        clock.Advance(milliseconds);
        TheDesk().RunPending();
    }

    /// Puts a text into a field, the caret behind it, as it stands after typing.
    void Fill(TextBox& field, std::string_view text) {
        field.SetText(text);
        field.SetCaret(static_cast<int>(text.size()));
    }
    void FillAll(std::string_view num, std::string_view pre, std::string_view call, std::string_view ck,
                 std::string_view sec) {
        Fill(Main().txtNum, num);
        Fill(Main().txtPre, pre);
        Fill(Main().txtCall, call);
        Fill(Main().txtCK, ck);
        Fill(Main().txtSec, sec);
    }
    void Focus(TextBox& field) {
        field.SetFocus();
        TheDesk().RunPending();
    }

    /// The five fields in the order of the exchange: "88|A|W1XX|72|MDC".
    std::string Fields() {
        return Main().txtNum.Text() + '|' + Main().txtPre.Text() + '|' + Main().txtCall.Text() + '|' +
               Main().txtCK.Text() + '|' + Main().txtSec.Text();
    }
    std::string FocusedField() { return Main().Focus() == nullptr ? "" : Main().Focus()->FullName(); }
    std::string Dialog() { return Main().lblDialog.Caption(); }
    Colour DialogGround() { return Main().lblDialog.State().backColor; }
    std::string Partials() { return Main().lblDupe.Caption(); }
    std::string Row(std::size_t row) {
        std::string text;
        for (std::size_t column = 0; column < Main().ListView1.State().columns.size(); ++column) {
            text += (column == 0 ? "" : "|") + Main().ListView1.Cell(row, column);
        }
        return text;
    }

    std::string LogOnDisk() const { return files.contents.contains(kLogPath) ? files.contents.at(kLogPath) : ""; }
    std::vector<std::string> LogLines() const {
        std::vector<std::string> lines;
        const std::string text = LogOnDisk();
        for (std::size_t begin = 0; begin < text.size();) {
            const std::size_t end = text.find("\r\n", begin);
            lines.push_back(text.substr(begin, end - begin));
            begin = end == std::string::npos ? text.size() : end + 2;
        }
        return lines;
    }

    /// The status that the program ends with in this step; nothing if it goes on.
    template <typename Step>
    static std::optional<int> EndStatusOf(Step step) {
        try {
            step();
        } catch (const ProgramEnd& end) {
            return end.status;
        }
        return std::nullopt;
    }

private:
    int operationsOfStart_ = 0;
};

}  // namespace tallyhut
