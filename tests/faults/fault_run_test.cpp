// The whole program through the works of a contest, while one call of the system for a file fails: no contact whose
// commit has returned may be lost, nothing be half a record, and nothing go wrong without a word.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <new>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "platform/temporary_name.h"
#include "tests/console/console_driver.h"
#include "tests/faults/fault_state.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using Seconds = std::chrono::duration<double>;

/// Files by their path in the folder.
using Snapshot = std::map<std::string, std::string>;

std::string ContentOf(const fs::path& path) {
    std::ostringstream content;
    content << std::ifstream{path, std::ios::binary}.rdbuf();
    return content.str();
}

Snapshot SnapshotOf(const std::string& folder) {
    Snapshot files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files[fs::relative(entry.path(), folder).string()] = ContentOf(entry.path());
        }
    }
    return files;
}

/// Files that hold contacts: the log, what the program has kept of it, and the operator's archive.
bool HoldsContacts(const std::string& path) {
    return path == "Log.txt" || path.ends_with(".log");
}

/// The fields of a line of texts in quotes; none where it is not whole.
std::vector<std::string> FieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    if (!line.starts_with('"') || !line.ends_with("\"\r")) {
        return fields;
    }
    std::istringstream rest{line.substr(0, line.size() - 1)};
    std::string field;
    while (std::getline(rest, field, ',')) {
        if (field.size() < 2 || field.front() != '"' || field.back() != '"') {
            return {};
        }
        fields.push_back(field.substr(1, field.size() - 2));
    }
    return fields;
}

/// The calls of a log; nothing where a record is not whole.
std::optional<std::vector<std::string>> CallsIn(const std::string& content) {
    constexpr std::size_t kFields = 10;
    constexpr std::size_t kCall = 3;
    std::vector<std::string> calls;
    std::istringstream lines{content};
    for (std::string line; std::getline(lines, line);) {
        const std::vector<std::string> fields = FieldsOf(line);
        if (fields.size() != kFields || lines.eof()) {
            return std::nullopt;
        }
        calls.push_back(fields[kCall]);
    }
    return calls;
}

struct Fault {
    std::uint64_t failAt = 0;  ///< the call, counted from 1; 0 for none
    int error = 0;
    bool forGood = false;  ///< all calls behind it fail too
};

/// A kind of fault, and at which calls it is tried. Every call and error comes in one of the rows; rows run side by
/// side.
struct FaultKind {
    const char* name;
    int error = 0;
    std::uint64_t first = 1;
    bool forGood = false;
};

constexpr std::uint64_t kStep = 2;

void PrintTo(const FaultKind& kind, std::ostream* out) {
    *out << kind.name;
}

/// The state that the test shares with the program, in a file of its own beside the contest's folder.
class SharedFaults {
public:
    SharedFaults() : path_{folder_.At("faults")} {
        std::ofstream{path_} << std::string(sizeof(FaultState), '\0');
        const int file = open(path_.c_str(), O_RDWR | O_CLOEXEC);
        memory_ = mmap(nullptr, sizeof(FaultState), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        close(file);
        state_ = new (memory_) FaultState;
        if (fs::is_directory("/dev/shm")) {
            setenv("TMPDIR", "/dev/shm", 1);  // what a disk takes for its flushes would be most of the time
        }
        setenv("LD_PRELOAD", TALLYHUT_FAULT_SHIM, 1);
        setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
        setenv(kFaultVariable, path_.c_str(), 1);
    }
    SharedFaults(const SharedFaults&) = delete;
    SharedFaults& operator=(const SharedFaults&) = delete;
    ~SharedFaults() {
        unsetenv("LD_PRELOAD");
        unsetenv(kFaultVariable);
        munmap(memory_, sizeof(FaultState));
    }

    /// From now on calls for files of the folder are counted from 1, and fail as told.
    FaultState& Begin(const std::string& folder, const Fault& fault) {
        state_ = new (memory_) FaultState{};
        std::strncpy(state_->folder, folder.c_str(), FaultState::kLongest - 1);
        state_->failAt = fault.failAt;
        state_->error = fault.error;
        state_->forGood = fault.forGood;
        return *state_;
    }

private:
    TemporaryFolder folder_;
    std::string path_;
    void* memory_ = nullptr;
    FaultState* state_ = nullptr;
};

/// The operator: does one thing after the other, answers what is asked, and keeps in mind what was logged.
class Operator {
public:
    explicit Operator(const std::string& folder)
        : folder_{folder},
          program_{folder, {"--clock", ConsoleDriver::kStart, "--port", "1=sim"}, ConsoleDriver::Questions::Open} {
        Answer(program_.Greeting());
    }

    /// Does nothing once the program has ended.
    void Do(const std::string& command, const std::string& file = "") {
        if (HasEnded()) {
            return;
        }
        file_ = file;
        const auto begin = std::chrono::steady_clock::now();
        Answer(program_.Do(command));
        longestWait = std::max(longestWait, Seconds{std::chrono::steady_clock::now() - begin}.count());
    }

    void LogContact(const std::string& call) {
        for (const char* field : {"txtNum", "txtPre", "txtCall", "txtCK", "txtSec"}) {
            Do(std::string{"set Form1."} + field + " \"\"");
        }
        Do("focus Form1.txtNum");
        const std::size_t before = CallsInMemory().size();
        Do("type 1a" + call + "72ct");
        Do("key Enter");
        if (CallsInMemory().size() == before + 1) {
            owed.insert(call);
        }
        CheckLog("a commit");
    }

    void EditLatest(const std::string& call) {
        const std::string former = Latest();
        inDoubt = {former, call};
        owed.erase(former);
        Do("pick Form1.ListView1 0");
        Do("click Form1.cmdEdit");
        Do("set txtEditCall \"" + call + "\"");
        Do("click cmdDone");
        Settle();
        CheckLog("an edit");
    }

    void DeleteLatest() {
        const std::string former = Latest();
        inDoubt = {former, ""};
        owed.erase(former);
        Do("pick Form1.ListView1 0");
        Do("click Form1.cmdDelete");
        Settle();
        CheckLog("a delete");
    }

    /// By the close box, or by the end of input where a form stands in its way.
    void Close() {
        Do("close Form1");
        if (!HasEnded()) {
            program_.CloseInput();
        }
        status = program_.Wait();
    }

    bool HasEnded() const { return !program_.LastTurn().starts_with(R"({"ready")"); }

    /// What the program shows must be what the disk holds, as long as it goes on.
    void CheckLog(const std::string& behind) {
        if (HasEnded() || !program_.LastTurn().starts_with(R"({"ready":"idle")")) {
            return;
        }
        std::vector<std::string> shown = CallsInMemory();
        std::ranges::reverse(shown);
        if (CallsIn(ContentOf(folder_ + "/Log.txt")) != shown) {
            wrong.insert("memory and disk differ behind " + behind);
        }
    }

    std::set<std::string> owed;  ///< calls whose commit has returned and that nobody has taken back
    std::set<std::string>
        inDoubt;                  ///< one of them must be there: the program ended in the change from one to the other
    std::set<std::string> told;   ///< titles and texts of all boxes
    std::set<std::string> wrong;  ///< what was seen on the way
    double longestWait = 0;       ///< seconds that a command took
    int status = -1;              ///< of the exit

private:
    std::string Latest() {
        const std::vector<std::string> calls = CallsInMemory();
        return calls.empty() ? "" : calls.front();
    }

    /// Whichever of the calls in doubt the list shows is owed.
    void Settle() {
        if (HasEnded()) {
            return;
        }
        for (const std::string& call : CallsInMemory()) {
            if (inDoubt.contains(call)) {
                owed.insert(call);
            }
        }
        inDoubt.clear();
    }

    /// Newest first, as the list shows them.
    std::vector<std::string> CallsInMemory() {
        constexpr std::size_t kCallColumn = 4;
        std::vector<std::string> calls;
        if (HasEnded()) {
            return calls;
        }
        const std::vector<std::string> lines = program_.Do("rows Form1.ListView1");
        const Json reply = lines.empty() ? Json{} : Json::parse(lines.front());
        for (const Json& row : reply.value("rows", Json::array())) {
            calls.push_back(row.at(kCallColumn).get<std::string>());
        }
        return calls;
    }

    void Answer(std::vector<std::string> lines) {
        for (;;) {
            for (const std::string& line : lines) {
                const Json event = Json::parse(line);
                if (event.value("event", "") == "msgbox") {
                    told.insert(event.at("title").get<std::string>() + ": " + event.value("text", ""));
                }
            }
            if (!program_.LastTurn().starts_with(R"({"ready":"answer")") || lines.empty()) {
                return;
            }
            lines = program_.Do("answer " + AnswerTo(Json::parse(lines.back())));
        }
    }

    std::string AnswerTo(const Json& event) {
        const std::string kind = event.value("event", "");
        if (event.value("title", "") == "Open existing log?") {
            return fs::exists(folder_ + "/Log.txt") ? "Yes" : "No";
        }
        if (kind == "msgbox") {
            return event.value("buttons", "") == "YesNo" ? "Yes" : "OK";
        }
        if (kind == "inputbox") {
            return event.value("title", "").starts_with("WARNING") ? "\"YES\"" : "\"\"";
        }
        return file_.empty() ? "Cancel" : Json(file_).dump();
    }

    std::string folder_;
    ConsoleDriver program_;
    std::string file_;  ///< what the next file dialog is answered with
};

/// What an operator does in and after a contest, in short.
void Work(Operator& op, const std::string& folder) {
    op.Do("click Command1");
    op.Do("click cmdLogOn");
    op.Do("menu mnu20");
    op.LogContact("K1AA");
    op.LogContact("K1AB");
    op.EditLatest("K1AC");
    op.LogContact("K1AD");
    op.DeleteLatest();
    op.Do("menu mnuArchive", folder + "/archive.log");
    op.LogContact("K1AE");
    op.Do("menu mnuWriteLog");
    op.Do("menu mnuWriteDupe");
    op.Do("menu mnuCabrillo");
    op.Do("set Text5 \"Pat\"");
    op.Do("click Command4", folder + "/entry.cbr");
    op.Do("click Command1");
    op.Do("click Command3");
    op.Do("menu expADIF", folder + "/log.adi");
    op.Do("menu mnuExport");
    op.Do("menu mnuSetup");
    op.Do("set Text1 \"W9ZZZ\"");
    op.Do("click Command1");
    op.Do("menu mnuPorts");
    op.Do("pick lstPorts 1");
    op.Do("set txtDevice \"/dev/ttyUSB7\"");
    op.Do("click cmdUse");
    op.Do("click cmdDone");
    op.Do("menu mnuRig");
    op.Do("click cmdDone");
    op.Do("menu mnuRestore", folder + "/archive.log");
    op.CheckLog("a restore");
    op.LogContact("K1AF");
    op.Do("menu mnuNew");
    op.CheckLog("a new log");
    op.LogContact("K1AG");
    op.Do("click cmdLogOn");
    op.LogContact("K1AH");
    op.Close();
}

/// A folder in which a contest has begun, for copies.
Snapshot BeginContest() {
    const ContestFolder folder;
    Operator op{folder.Path()};
    op.Do("click Command1");
    op.LogContact("W1AA");
    op.LogContact("W1AB");
    op.Close();
    return SnapshotOf(folder.Path());
}

/// One run of the work, of whose calls one fails.
struct Weekend {
    std::uint64_t calls = 0;
    Snapshot files;  ///< what is left
    std::set<std::string> owed, inDoubt, told, wrong;
    double longestWait = 0;
    int status = 0;
    std::string failure;  ///< what failed, of which file
};

std::string WithoutFolder(std::string text, const std::string& folder) {
    for (std::size_t at = text.find(folder); at != std::string::npos; at = text.find(folder)) {
        text.replace(at, folder.size(), "FOLDER");
    }
    return text;
}

Weekend RunWork(SharedFaults& shared, const Snapshot& start, const Fault& fault) {
    const ContestFolder folder;
    for (const auto& [path, content] : start) {
        fs::create_directories(fs::path{folder.Path() + '/' + path}.parent_path());
        folder.Write(path, content);
    }
    FaultState& faults = shared.Begin(folder.Path(), fault);
    Operator op{folder.Path()};
    op.owed = {"W1AA", "W1AB"};
    Work(op, folder.Path());
    Weekend run;
    run.calls = faults.calls;
    run.owed = op.owed;
    run.inDoubt = op.inDoubt;
    run.wrong = op.wrong;
    run.longestWait = op.longestWait;
    run.status = op.status;
    for (const std::string& box : op.told) {
        run.told.insert(WithoutFolder(box, folder.Path()));
    }
    for (const auto& [path, content] : SnapshotOf(folder.Path())) {
        if (!IsTemporaryName(fs::path{path}.filename().string())) {  // the next start removes it
            run.files[path] = WithoutFolder(content, folder.Path());
        }
    }
    run.failure = std::string{faults.call} + ' ' + WithoutFolder(faults.path, folder.Path());
    return run;
}

/// Contacts that stand neither in the log nor in a copy of it.
std::set<std::string> LostIn(const Weekend& run) {
    std::set<std::string> kept{""};  // a contact that may be deleted may be nowhere
    for (const auto& [path, content] : run.files) {
        if (HoldsContacts(path)) {
            const auto calls = CallsIn(content).value_or(std::vector<std::string>{});
            kept.insert(calls.begin(), calls.end());
        }
    }
    std::set<std::string> lost;
    std::ranges::set_difference(run.owed, kept, std::inserter(lost, lost.end()));
    const auto isKept = [&kept](const std::string& call) { return kept.contains(call); };
    if (!run.inDoubt.empty() && std::ranges::none_of(run.inDoubt, isKept)) {
        lost.insert(run.inDoubt.begin(), run.inDoubt.end());
    }
    return lost;
}

bool AreWholeLines(const std::string& content) {
    return content.empty() || content.ends_with("\r\n");
}

std::set<std::string> WrongIn(const Weekend& run) {
    std::set<std::string> wrong = run.wrong;
    for (const auto& [path, content] : run.files) {
        const bool isHalf =
            HoldsContacts(path) ? !CallsIn(content) : path.ends_with("nsonoff.txt") && !AreWholeLines(content);
        const bool isDamaged = path == "nspref.txt" && std::ranges::count(content, '\n') != 19;
        if (isHalf || isDamaged) {
            wrong.insert(path + " is not whole");
        }
    }
    return wrong;
}

/// What may differ without a box, by rule: these two reports, the backup that is made beside something else, what is
/// kept beneath the backups for want of one that can be read, and settings that could not be read, of which the message
/// line tells.
bool MayDifferSilently(const std::string& path) {
    return path == "ASCIILog.txt" || path == "ASCIIDup.txt" || path == "nspref-damaged.txt" ||
           path.find("/BACKUP/") != std::string::npos || path.find("/KEPT/") != std::string::npos;
}

bool HasToldMore(const Weekend& run, const Weekend& whole) {
    return !std::ranges::includes(whole.told, run.told);
}

/// What differs from a run in which nothing failed; empty where a box has told of the failure.
std::set<std::string> SilentIn(const Weekend& run, const Weekend& whole) {
    std::set<std::string> differing;
    for (const auto* other : {&whole.files, &run.files}) {
        for (const auto& [path, content] : *other) {
            const auto found = run.files.find(path);
            const auto meant = whole.files.find(path);
            const bool isAsMeant =
                found != run.files.end() && meant != whole.files.end() && found->second == meant->second;
            if (!isAsMeant && !MayDifferSilently(path)) {
                differing.insert(path);
            }
        }
    }
    if (run.status != whole.status) {
        differing.insert("exit status " + std::to_string(run.status));
    }
    return HasToldMore(run, whole) ? std::set<std::string>{} : differing;
}

std::string Listed(const std::set<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ", ") + text;
    }
    return list;
}

struct FaultRun : testing::TestWithParam<FaultKind> {};

TEST_P(FaultRun, WhateverFailsNothingIsLostHalfOrSilent) {
    const FaultKind& kind = GetParam();
    SharedFaults shared;
    const Snapshot start = BeginContest();
    const Weekend whole = RunWork(shared, start, {});
    ASSERT_EQ(whole.status, 0);
    ASSERT_EQ(WrongIn(whole), std::set<std::string>{});
    ASSERT_EQ(LostIn(whole), std::set<std::string>{});
    std::size_t runs = 0, lost = 0, wrong = 0, silent = 0;
    double longestWait = 0;
    for (std::uint64_t failAt = kind.first; failAt <= whole.calls; failAt += kStep) {
        Weekend run = RunWork(shared, start, {.failAt = failAt, .error = kind.error, .forGood = kind.forGood});
        if (kind.forGood && HasToldMore(run, whole)) {
            run.wrong.clear();  // the screen cannot follow a disk that says nothing any more
        }
        ++runs;
        lost += LostIn(run).size();
        wrong += WrongIn(run).size();
        silent += SilentIn(run, whole).empty() ? 0 : 1;
        longestWait = std::max(longestWait, run.longestWait);
        const std::string what = "call " + std::to_string(failAt) + ", " + run.failure;
        EXPECT_EQ(Listed(LostIn(run)), "") << what;
        EXPECT_EQ(Listed(WrongIn(run)), "") << what;
        EXPECT_EQ(Listed(SilentIn(run, whole)), "") << what;
    }
    std::cout << kind.name << ": " << runs << " runs of " << whole.calls << " calls, " << lost << " contacts lost, "
              << wrong << " logs wrong, " << silent << " silent failures, longest wait " << longestWait << " s\n";
}

INSTANTIATE_TEST_SUITE_P(
    Errors, FaultRun,
    testing::Values(FaultKind{"InputOutputErrorAtOddCalls", EIO, 1}, FaultKind{"InputOutputErrorAtEvenCalls", EIO, 2},
                    FaultKind{"FullDiskAtOddCalls", ENOSPC, 1}, FaultKind{"FullDiskAtEvenCalls", ENOSPC, 2},
                    FaultKind{"NoRightAtOddCalls", EACCES, 1}, FaultKind{"NoRightAtEvenCalls", EACCES, 2},
                    FaultKind{"DiskThatDies", EIO, 1, true}),
    [](const auto& kind) { return kind.param.name; });

}  // namespace
}  // namespace tallyhut
