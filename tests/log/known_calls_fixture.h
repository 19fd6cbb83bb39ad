#pragma once

#include "tests/log/editing_fixture.h"

namespace tallyhut {

inline constexpr const char* kHistoryPath = "/home/operator/history.txt";
inline constexpr const char* kScpPath = "/contest/MASTER.SCP";

/// A program that knows calls from its start.
struct KnownCallsFixture : EditingFixture {
    std::string history =
        "!!Order!!,Call,Sect,CK,UserText\r\n"
        "W1XX,MDC,72,\r\n"
        "K9ZO,IL,69,\r\n"
        "K1NOCK,CT,,\r\n"
        "K1NOSEC,,88,\r\n"
        "K1BAD,XYZ,5,\r\n";

    void StartWithHistory(int mode = 1, const std::vector<Contact>& contacts = {}) {
        files.Put(kHistoryPath, history);
        settings.values[{"Machine", "CallHistory"}] = kHistoryPath;
        settings.values[{"Machine", "FillFromHistory"}] = "1";
        StartOnDesk(contacts, mode);
        program->time.gTimeOn = 1;
    }
    void StartWithCalls(const std::string& calls, const std::vector<Contact>& contacts = {}) {
        files.Put(kScpPath, calls);
        StartOnDesk(contacts);
    }
    /// The boxes of a start on the folder as it stands: so many tell something before the usual question.
    std::vector<std::string> BoxesOfStart(int told) {
        files.Put(kPreferencesPath, WritePreferences(stored));
        files.Put(kLogPath, "");
        files.Put(kWavesPath, kNoWaves);
        MakeProgram();
        pump.OnWait([this] { program->desk.PostClick(program->stationForm.Command1, kLeftButton); });
        dialogs.answers.assign(static_cast<std::size_t>(told), Answer::OK);
        dialogs.answers.push_back(Answer::Yes);
        program->Start();
        program->desk.RunPending();
        return TakeBoxes();
    }

    frmKnownCalls& KnownForm() { return program->logPart.knownCallsForm; }
    std::string Line() { return Main().lblScp.Caption(); }
    /// Check and section, a suggestion in brackets: "(72) MDC".
    std::string Suggested() { return Marked(Main().txtCK) + ' ' + Marked(Main().txtSec); }

private:
    static std::string Marked(const TextBox& field) {
        const bool suggested = field.State().foreColor == kSuggestion;
        return suggested ? '(' + field.Text() + ')' : field.Text();
    }
};

}  // namespace tallyhut
