#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using Moment = std::chrono::sys_seconds;

constexpr int kContacts = 2'500;
constexpr int kHoursToUtc = 5;
constexpr seconds kRedLine{3};

constexpr std::array kSectionCodes{"CT",  "EMA", "ME",  "NH",  "RI",  "VT",  "WMA", "NNY", "ENY", "NLI", "NNJ", "SNJ",
                                   "WNY", "DE",  "EPA", "MDC", "WPA", "AL",  "GA",  "KY",  "NC",  "NFL", "SC",  "SFL",
                                   "TN",  "VA",  "PR",  "VI",  "AR",  "LA",  "MS",  "NM",  "NTX", "OK",  "STX", "WTX",
                                   "EB",  "LAX", "ORG", "SB",  "SCV", "SDG", "SF",  "SJV", "SV",  "PAC", "AZ",  "EWA",
                                   "ID",  "MT",  "NV",  "OR",  "UT",  "WWA", "WY",  "AK",  "MI",  "OH",  "WV",  "IL",
                                   "IN",  "WI",  "CO",  "IA",  "KS",  "MN",  "MO",  "NE",  "ND",  "SD",  "NL",  "MAR",
                                   "QC",  "ONN", "MB",  "SK",  "AB",  "BC",  "NT",  "WCF", "ONS", "ONE", "GTA"};
static_assert(kSectionCodes.size() == 83);

constexpr std::array kBandOrder{"160", "80", "40", "20", "15", "10"};

template <typename... Values>
std::string Print(const char* picture, Values... values) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), picture, values...);
    return text.data();
}

struct DateAndTime {
    explicit DateAndTime(Moment at)
        : date{std::chrono::floor<std::chrono::days>(at)}, time{at - std::chrono::floor<std::chrono::days>(at)} {}

    int Year() const { return static_cast<int>(date.year()); }
    unsigned Month() const { return static_cast<unsigned>(date.month()); }
    unsigned Day() const { return static_cast<unsigned>(date.day()); }
    std::string Time() const {
        return Print("%02d:%02d:%02d", static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                     static_cast<int>(time.seconds().count()));
    }
    std::string LogDate() const { return Print("%04d/%02u/%02u", Year(), Month(), Day()); }
    std::string ShortDate() const { return Print("%u/%u/%d", Month(), Day(), Year()); }
    std::string ClockOption() const { return Print("%04d-%02u-%02uT", Year(), Month(), Day()) + Time(); }
    std::string BackupName() const {
        return Print("%04d%02u%02u%02d%02d.log", Year(), Month(), Day(), static_cast<int>(time.hours().count()),
                     static_cast<int>(time.minutes().count()));
    }

    std::chrono::year_month_day date;
    std::chrono::hh_mm_ss<seconds> time;
};

std::string Duration(seconds total) {
    const auto count = static_cast<long>(total.count());
    return Print("%02ld:%02ld:%02ld", count / 3'600 % 100, count / 60 % 60, count % 60);
}

struct LoggedContact {
    std::string Ns, Nr, P, Call, Ck, Sec, Date, Time, Bnd;

    std::string Line() const {
        std::string line;
        for (const std::string& field : {Ns, Nr, P, Call, Ck, Sec, Date, Time, Bnd}) {
            line += '"' + field + "\",";
        }
        return line + "\"\"\r\n";
    }
    Moment At() const {
        int year = 0;
        unsigned month = 0;
        unsigned day = 0;
        int hour = 0;
        int minute = 0;
        int second = 0;  // an edited time may have none
        std::sscanf(Date.c_str(), "%d/%u/%u", &year, &month, &day);
        std::sscanf(Time.c_str(), "%d:%d:%d", &hour, &minute, &second);
        const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{month},
                                               std::chrono::day{day}};
        return std::chrono::sys_days{date} + hours{hour} + minutes{minute} + seconds{second};
    }
};

/// What the weekend must come to, worked out from the rules of the contest and of the files alone.
struct Expected {
    Moment localNow = std::chrono::sys_days{std::chrono::year{2026} / 11 / 7} + hours{15} + minutes{58};
    std::vector<LoggedContact> log;
    std::string timeRecords;  ///< nsonoff.txt
    std::string band = "40";
    bool timeOn = false;
    seconds total{};  ///< operating time before the last Time On
    Moment onAt{};
    Moment bandAt{};
    std::string totalShown = "00:00:00";
    std::string bandTimeShown = "00:00:00";
    Moment redUntil{};           ///< keys wait for this moment
    std::size_t savedCount = 0;  ///< contacts after the first reload of the run that found any

    DateAndTime Local() const { return DateAndTime{localNow}; }
    Moment UtcNow() const { return localNow + hours{kHoursToUtc}; }
    DateAndTime Utc() const { return DateAndTime{UtcNow()}; }

    void Pass(seconds time) {
        localNow += time;
        if (timeOn) {
            totalShown = Duration(total + (localNow - onAt));
            bandTimeShown = Duration(localNow - bandAt);
        }
    }
    void AwaitRedLine() {
        if (redUntil > localNow) {
            Pass(redUntil - localNow);
        }
    }
    void RecordTime(int on, const std::string& lastField) {
        timeRecords +=
            std::to_string(on) + ",\"" + Utc().ShortDate() + "\",\"" + Utc().Time() + "\"," + lastField + "\r\n";
    }
    void TimeOn() {
        timeOn = true;
        onAt = localNow;
        bandAt = localNow;
        RecordTime(1, '"' + totalShown + '"');
    }
    void StopClock() {
        total += localNow - onAt;
        timeOn = false;
    }
    void TimeOff() {
        StopClock();
        RecordTime(0, '"' + totalShown + '"');
    }
    void CloseTime(bool withTotal) {
        if (timeOn) {
            StopClock();
            RecordTime(0, withTotal ? '"' + totalShown + '"' : "");
        }
    }
    void BeginRun() {
        timeOn = false;
        totalShown = "00:00:00";
        bandTimeShown = "00:00:00";
        redUntil = {};
        savedCount = log.size();
    }
    void ReloadLog() { savedCount = savedCount == 0 ? log.size() : savedCount; }
    void ChooseBand(const std::string& chosen) {
        band = chosen;
        bandAt = localNow;
    }
    int NextSerial() const { return log.empty() ? 1 : std::stoi(log.back().Ns) + 1; }
    void Log(LoggedContact contact) {
        if (!timeOn) {
            TimeOn();
        }
        contact.Ns = std::to_string(NextSerial());
        contact.Date = Utc().LogDate();
        contact.Time = Utc().Time();
        contact.Bnd = band;
        log.push_back(contact);
    }

    std::string LogText() const {
        std::string text;
        for (const LoggedContact& contact : log) {
            text += contact.Line();
        }
        return text;
    }
    std::size_t Sections() const {
        std::set<std::string> worked;
        for (const LoggedContact& contact : log) {
            worked.insert(contact.Sec);
        }
        return worked.size();
    }
    /// Contacts of less than so many seconds ago, looked for from the newest to the first that is an hour old.
    int Within(seconds span) const {
        int count = 0;
        for (auto contact = log.rbegin(); contact != log.rend(); ++contact) {
            const seconds age = UtcNow() - contact->At();
            count += age < span ? 1 : 0;
            if (age >= hours{1}) {
                break;
            }
        }
        return count;
    }
    std::string DuplicateLine(std::size_t row) const {
        const LoggedContact& contact = log[row];
        return "Duplicate " + contact.Call + " " + contact.Sec + " " + contact.Date.substr(5) + " " + contact.Time +
               " ON " + contact.Bnd + "  Rec#  " + std::to_string(row + 1) + "  Serial Rcvd: " + contact.Nr;
    }
};

/// The date of the time records is that of the locale.
const bool plainLocale = setenv("LC_ALL", "C", 1) == 0;

/// An operator, a program and what must come of it.
struct WeekendTest : testing::Test {
    ContestFolder folder;
    std::unique_ptr<ConsoleDriver> program;
    Expected expected;
    std::mt19937 random{20261107};
    std::vector<std::string> sections{kSectionCodes.begin(), kSectionCodes.end()};
    std::string backups;
    int callsMade = 0;
    int duplicates = 0;
    int edits = 0;
    int deletes = 0;
    int bandChanges = 0;
    int timesOff = 0;

    WeekendTest() { std::shuffle(sections.begin(), sections.end(), random); }

    std::size_t Below(std::size_t bound) { return random() % bound; }
    template <typename Table>
    auto OneOf(const Table& table) {
        return table[Below(table.size())];
    }
    /// A text of the program without the quotes of JSON and the blanks around it.
    std::string Shown(const std::string& target) {
        std::string text = program->Get(target);
        const std::size_t first = text.find_first_not_of("\" ");
        const std::size_t last = text.find_last_not_of("\" ");
        return first == std::string::npos ? "" : text.substr(first, last - first + 1);
    }
    bool IsIn(const std::string& form) const {
        return program->LastTurn().find("\"form\":\"" + form + '"') != std::string::npos;
    }

    void StartProgram() {
        program = std::make_unique<ConsoleDriver>(
            folder.Path(), std::vector<std::string>{"--clock", expected.Local().ClockOption(), "--utc-offset",
                                                    std::to_string(kHoursToUtc)});
        ASSERT_EQ(program->LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
        backups = Shown("$DataDirectory") + "/BACKUP";
        expected.BeginRun();
    }
    std::vector<std::string> BackupNames() const {
        std::vector<std::string> names;
        for (const auto& file : std::filesystem::directory_iterator{backups}) {
            names.push_back(file.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    void Pass(seconds time) {
        program->Do("advance " + std::to_string(time.count() * 1'000));
        expected.Pass(time);
    }
    void Type(const std::string& keys) { program->Do("type \"" + keys + '"'); }
    void TypeOver(const std::string& field, const std::string& text) {
        program->Do("focus " + field);
        program->Do("key Home Shift+End");
        Type(text);
    }

    std::string NewCall() {
        constexpr std::array kPrefixes{"W", "K", "N", "AA", "VE", "KB"};
        const int n = callsMade++;
        std::string call = OneOf(kPrefixes) + std::to_string(Below(10));
        for (const int letter : {n / 676 % 26, n / 26 % 26, n % 26}) {
            call += static_cast<char>('A' + letter);
        }
        return n % 40 == 39 ? call + "/7" : call;
    }
    LoggedContact NewContact(int number) {
        // A further section is met every 30 contacts, so that the count of sections grows all the weekend.
        const auto met = std::min(sections.size(), static_cast<std::size_t>(number / 30 + 1));
        LoggedContact contact;
        contact.Nr = std::to_string(1 + Below(1'500));
        contact.P = OneOf(std::string{"ABQUMS"});
        contact.Call = NewCall();
        contact.Ck = Print("%02u", static_cast<unsigned>(Below(100)));
        contact.Sec = number % 30 == 0 ? sections[met - 1] : sections[Below(met)];
        return contact;
    }
    /// What is typed up to the end of the call: behind a call with a stroke a blank is needed.
    static std::string BeginOfExchange(const LoggedContact& contact) {
        const bool stroke = contact.Call.find('/') != std::string::npos;
        return contact.Nr + contact.P + contact.Call + (stroke ? " " : "");
    }

    void WorkContact(int number) {
        const LoggedContact contact = NewContact(number);
        std::string keys = BeginOfExchange(contact) + contact.Ck + contact.Sec + "\\r";
        if (number % 3 != 0) {
            std::transform(keys.begin(), keys.end(), keys.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        }
        Type(keys);
        expected.AwaitRedLine();
        expected.Log(contact);
    }

    /// The three ways to a duplicate: leaving the call, Enter in the call, Enter behind a call typed last.
    void TryDuplicate() {
        const std::size_t row = Below(expected.log.size());
        LoggedContact again = expected.log[row];
        again.Nr = "77";
        const int way = duplicates++ % 3;
        expected.AwaitRedLine();
        if (way == 0) {
            const std::string keys = BeginOfExchange(again);
            Type(keys.ends_with(' ') ? keys : keys + "7");
        } else if (way == 1) {
            Type(again.Nr + again.P + again.Call + "\\r");
        } else {
            Type(again.Nr + again.P);
            program->Do("focus txtCK");
            Type(again.Ck + again.Sec);
            program->Do("focus txtCall");
            Type(again.Call + "\\r");
        }
        EXPECT_EQ(Shown("Form1.lblDialog"), expected.DuplicateLine(row));
        EXPECT_EQ(Shown("lblDialog.backColor"), "255");
        for (const char* field : {"txtNum", "txtPre", "txtCall", "txtCK", "txtSec"}) {
            EXPECT_EQ(Shown(field), "") << field << ", way " << way;
        }
        EXPECT_TRUE(program->LastTurn().ends_with(R"("focus":"txtNum"})")) << program->LastTurn();
        expected.redUntil = expected.localNow + kRedLine;
        if (duplicates % 2 == 0) {
            Pass(seconds{4});
        }
    }

    void EditContact() {
        const int kind = edits++ % 9;
        const bool listsAll = edits % 5 == 0;
        if (listsAll) {
            program->Do("click cmdList");
        }
        const std::size_t listed = listsAll ? expected.log.size() : std::min<std::size_t>(20, expected.log.size());
        const std::size_t row = kind == 1 ? 0 : Below(listed);
        LoggedContact& contact = expected.log[expected.log.size() - 1 - row];
        program->Do("rclick ListView1 " + std::to_string(row));
        ASSERT_TRUE(IsIn("frmEditCon")) << program->LastTurn();
        struct Change {
            std::string field;
            std::string& value;
            std::string text;
        };
        const std::array changes{
            Change{"txtEditSec", contact.Sec, OneOf(sections)},
            Change{"txtEditNumSent", contact.Ns, std::to_string(std::stoi(contact.Ns) + 3)},
            Change{"txtEditNum", contact.Nr, std::to_string(1 + Below(999))},
            Change{"txtEditPre", contact.P, "Q"},
            Change{"txtEditCall", contact.Call, NewCall()},
            Change{"txtEditCk", contact.Ck, "99"},
            Change{"txtEditBnd", contact.Bnd, "15"},
            Change{"txtEditTime", contact.Time, contact.Time.substr(0, 5)},
        };
        if (kind < static_cast<int>(changes.size())) {
            const Change& change = changes.at(static_cast<std::size_t>(kind));
            TypeOver(change.field, change.text);
            program->Do("click cmdDone");
            change.value = change.text;
        } else {  // a call that is logged is refused, and the close box leaves everything as it was
            const std::size_t other = contact.Call == expected.log[0].Call ? 1 : 0;
            TypeOver("txtEditCall", expected.log[other].Call);
            program->Do("click cmdDone");
            ASSERT_TRUE(IsIn("frmEditCon")) << program->LastTurn();
            EXPECT_EQ(Shown("Label1.visible"), "true");
            program->Do("close");
        }
        ASSERT_EQ(program->LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
        expected.ReloadLog();
        if (listsAll) {
            program->Do("click cmdList");
        }
        CheckLog("an edit");
    }

    void DeleteContact() {
        const std::size_t row = deletes++ % 5 == 0 ? 0 : Below(std::min<std::size_t>(20, expected.log.size()));
        const std::string pick = "pick ListView1 " + std::to_string(row);
        if (deletes == 3) {
            program->Do(pick);
            program->Do("click cmdDelete");
            program->Do("answer No");
            program->Do("focus txtNum");
        }
        program->Do(pick);
        program->Do("click cmdDelete");
        ASSERT_EQ(program->LastTurn(), R"({"ready":"answer","dialog":"msgbox"})");
        program->Do("answer Yes");
        expected.log.erase(expected.log.end() - 1 - static_cast<std::ptrdiff_t>(row));
        expected.ReloadLog();
        CheckLog("a delete");
    }

    void ChangeBand() {
        std::string next = OneOf(kBandOrder);
        if (bandChanges++ % 2 == 0) {
            program->Do("menu mnu" + next);
        } else {
            const auto* here = std::find(kBandOrder.begin(), kBandOrder.end(), expected.band);
            next = here + 1 == kBandOrder.end() ? kBandOrder.front() : *(here + 1);
            program->Do("click Label30 left double");
        }
        expected.ChooseBand(next);
        EXPECT_EQ(Shown("Label30"), next);
    }

    /// Half an hour and more off the air; back by the button or by the next contact.
    void TakeTimeOff() {
        program->Do("click cmdLogOn");
        expected.TimeOff();
        const DateAndTime back{expected.UtcNow() + minutes{30}};
        EXPECT_EQ(Shown("lblDialog"), "Logged Off at " + expected.Utc().ShortDate() + " " + expected.Utc().Time() +
                                          " Log On after " + back.Time());
        Pass(minutes{31} + seconds{Below(600)});
        EXPECT_EQ(Shown("lblAQSO20"), "0");
        if (timesOff++ % 2 == 0) {
            program->Do("click cmdLogOn");
            expected.TimeOn();
        }
    }

    void CheckLog(const std::string& behind) const {
        ASSERT_TRUE(folder.Read("Log.txt") == expected.LogText())
            << "the log is another behind " << behind << ", " << expected.log.size() << " contacts";
    }
    void CheckFiles() const {
        CheckLog("a checkpoint");
        EXPECT_EQ(folder.Read("nsonoff.txt"), expected.timeRecords);
        std::vector<std::string> settings{""};
        for (const char character : folder.Read("nspref.txt")) {
            if (character == '\n') {
                settings.emplace_back();
            } else if (character != '\r') {
                settings.back() += character;
            }
        }
        ASSERT_EQ(settings.size(), 20U);
        EXPECT_EQ(settings[9], '"' + expected.band + '"');
        EXPECT_EQ(settings[10], std::to_string(expected.total.count()));
    }
    /// Right behind a contact, a change of the log or a start, when the rates are fresh.
    void Check(int number) {
        SCOPED_TRACE("contact " + std::to_string(number));
        CheckFiles();
        const std::size_t worked = expected.Sections();
        const std::size_t count = expected.log.size();
        EXPECT_EQ(Shown("lblTotCon"), std::to_string(count));
        EXPECT_EQ(Shown("lblTotSec"), std::to_string(worked));
        EXPECT_EQ(Shown("lblsectogo"), std::to_string(kSectionCodes.size() - worked));
        EXPECT_EQ(Shown("lblTotScore"), std::to_string(worked * count * 2));
        EXPECT_EQ(Shown("lblNumCurCon"), std::to_string(expected.NextSerial()));
        EXPECT_EQ(Shown("lblAQSO20"), std::to_string(expected.Within(minutes{20}) * 3));
        EXPECT_EQ(Shown("lblAQSO60"), std::to_string(expected.Within(minutes{60})));
        EXPECT_EQ(Shown("lblttrack"), expected.totalShown);
        EXPECT_EQ(Shown("lbltimeon"), expected.bandTimeShown);
        EXPECT_EQ(Shown("$clock"), expected.Local().ClockOption() + ".000");
        EXPECT_EQ(Shown("$gTimeOn"), expected.timeOn ? "1" : "0");
    }

    void CloseWindow() {
        std::vector<std::string> names = BackupNames();
        program->Do("close");
        EXPECT_EQ(program->Wait(), 0);
        ASSERT_NE(expected.savedCount, expected.log.size()) << "the run has logged something";
        names.push_back(expected.Local().BackupName());
        EXPECT_EQ(BackupNames(), names);
        EXPECT_TRUE(folder.Read(std::filesystem::relative(backups, folder.Path()).string() + '/' + names.back()) ==
                    expected.LogText());
        expected.CloseTime(false);
        CheckFiles();
    }
    void ExitByMenu() {
        const std::vector<std::string> names = BackupNames();
        program->Do("menu mnuExit");
        EXPECT_EQ(program->Wait(), 0);
        EXPECT_EQ(BackupNames(), names);
        expected.CloseTime(true);
        CheckFiles();
    }
    void LosePower() {
        kill(program->Process(), SIGKILL);
        EXPECT_EQ(program->Wait(), 128 + SIGKILL);
        CheckFiles();  // of the operating time nothing is kept but what the last Time Off kept
    }
    void StartAgain(int number) {
        expected.localNow += minutes{2};
        StartProgram();
        Check(number);
        program->Do("click cmdLogOn");
        expected.TimeOn();
    }

    void Operate(int first, int last) {
        for (int number = first; number <= last && !HasFatalFailure(); ++number) {
            Pass(seconds{8 + Below(40)});
            if (number % 41 == 17) {
                TryDuplicate();
            }
            if (number % 100 == 60) {
                EditContact();
            }
            if (number % 166 == 100) {
                DeleteContact();
            }
            if (number % 60 == 30) {
                ChangeBand();
            }
            if (number % 400 == 350) {
                TakeTimeOff();
            }
            WorkContact(number);
            if (number % 250 == 0) {
                Check(number);
            }
        }
    }
};

TEST_F(WeekendTest, EverythingThatTheWeekendCameToIsThereInTheEnd) {
    StartProgram();
    program->Do("click cmdLogOn");
    expected.TimeOn();

    Operate(1, 700);
    CloseWindow();
    StartAgain(700);
    Operate(701, 1'300);
    LosePower();
    StartAgain(1'300);
    Operate(1'301, 1'900);
    ExitByMenu();
    StartAgain(1'900);
    Operate(1'901, kContacts);
    Check(kContacts);
    CloseWindow();

    EXPECT_EQ(expected.log.size(), static_cast<std::size_t>(kContacts - deletes));
    EXPECT_GE(duplicates, 60);
    EXPECT_GE(edits, 25);
    EXPECT_GE(deletes, 15);
    EXPECT_GE(timesOff, 6);
    EXPECT_GT(expected.total, hours{10});
}

TEST(EndOfARun, ASignalToTerminateLeavesTheFilesOfTheCloseBox) {
    std::vector<std::vector<std::string>> left;
    for (const bool bySignal : {false, true}) {
        const ContestFolder folder;
        ConsoleDriver program{folder.Path()};
        const std::string data = program.Get("$DataDirectory");
        program.Do("click cmdLogOn");
        program.LogContact("88aw1xx72mdc");
        program.Do("advance 60000");
        if (bySignal) {
            kill(program.Process(), SIGTERM);
        } else {
            program.Do("close");
        }
        EXPECT_EQ(program.Wait(), 0);
        std::vector<std::string> files;
        for (const char* name : {"Log.txt", "nspref.txt", "nsonoff.txt"}) {
            files.push_back(folder.Read(name));
        }
        for (const auto& backup : std::filesystem::directory_iterator{data.substr(1, data.size() - 2) + "/BACKUP"}) {
            files.push_back(backup.path().filename().string());
        }
        EXPECT_EQ(files.size(), 4U) << "three files and one backup";
        EXPECT_TRUE(files[2].ends_with("0,\"11/7/2026\",\"21:05:33\",\r\n")) << files[2];
        left.push_back(files);
    }
    EXPECT_EQ(left[0], left[1]);
}

}  // namespace
}  // namespace tallyhut
