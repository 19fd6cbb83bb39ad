#include "log/known_call_files.h"

#include <algorithm>
#include <iterator>

#include "platform/platform_error.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kHistoryKey = "CallHistory";
constexpr const char* kFillsInKey = "FillFromHistory";
constexpr const char* kSuperCheckKey = "SuperCheck";
constexpr const char* kShowsCallsKey = "ShowSuperCheck";
constexpr const char* kOn = "1";
constexpr const char* kOff = "0";

void TellRefused(Dialogs& dialogs, const std::string& what, const std::exception& failure, const std::string& until) {
    dialogs.Show({.title = "Known Calls",
                  .text = what + "\n\n" + failure.what() + "\n\nUntil that is put right " + until,
                  .buttons = Buttons::OK,
                  .icon = Icon::Exclamation});
}

/// What a file gives; nothing of it where it cannot be taken, which is told.
template <typename Take>
auto TakenOrTold(Dialogs& dialogs, const std::string& what, const std::string& until, Take take) -> decltype(take()) {
    try {
        return take();
    } catch (const PlatformError& failure) {
        TellRefused(dialogs, what, failure, until);
    } catch (const ValueError& damage) {
        TellRefused(dialogs, what, damage, until);
    }
    return {};
}

}  // namespace

void KnownCallFiles::TakeStored() {
    historyPath = settings.Get(kSection, kHistoryKey);
    superCheckPath = settings.Get(kSection, kSuperCheckKey);
    fillsIn = settings.Get(kSection, kFillsInKey) == kOn;
    history = TakenOrTold(dialogs, "The call history cannot be taken from " + historyPath + ".",
                          "no check and no section is filled in.", [this] { return HistoryAt(historyPath); });
    superCheck = TakenOrTold(
        dialogs, "The calls for super check partial cannot be taken from " + SuperCheckFileFor(superCheckPath) + ".",
        "no calls are shown beneath the possible duplicates.", [this] { return SuperCheckFor(superCheckPath); });
    const std::string shows = settings.Get(kSection, kShowsCallsKey);
    showsCalls = shows.empty() ? superCheck.Count() > 0 : shows == kOn;
}

void KnownCallFiles::ChooseHistory(const std::string& path) {
    history = HistoryAt(path);
    historyPath = path;
    fillsIn = !path.empty();
    settings.Set(kSection, kHistoryKey, path);
    settings.Set(kSection, kFillsInKey, fillsIn ? kOn : kOff);
}

void KnownCallFiles::ChooseSuperCheck(const std::string& path) {
    superCheck = SuperCheckFor(path);
    superCheckPath = path;
    showsCalls = superCheck.Count() > 0;
    settings.Set(kSection, kSuperCheckKey, path);
    settings.Set(kSection, kShowsCallsKey, path.empty() ? "" : kOn);
}

void KnownCallFiles::SetFillsIn(bool fills) {
    if (fillsIn != fills) {
        fillsIn = fills;
        settings.Set(kSection, kFillsInKey, fills ? kOn : kOff);
    }
}

void KnownCallFiles::SetShowsCalls(bool shows) {
    if (showsCalls != shows) {
        showsCalls = shows;
        settings.Set(kSection, kShowsCallsKey, shows ? kOn : kOff);
    }
}

KnownCalls KnownCallFiles::All() const {
    const std::vector<CallKey> ofHistory = history.Calls();
    std::vector<CallKey> all;
    all.reserve(ofHistory.size() + superCheck.Count());
    std::ranges::merge(ofHistory, superCheck.Calls(), std::back_inserter(all));
    return KnownCalls{std::move(all)};
}

CallHistory KnownCallFiles::HistoryAt(const std::string& path) const {
    return path.empty() ? CallHistory{} : ReadCallHistory(files.Read(path));
}

std::string KnownCallFiles::SuperCheckFileFor(const std::string& chosen) const {
    return chosen.empty() ? WorkingFile(directories, kSuperCheckFile) : chosen;
}

SuperCheck KnownCallFiles::SuperCheckFor(const std::string& chosen) const {
    const std::string path = SuperCheckFileFor(chosen);
    const bool isThere = !chosen.empty() || files.FileExists(path);
    return isThere ? ReadSuperCheck(files.Read(path)) : SuperCheck{};
}

}  // namespace tallyhut
