#pragma once

#include "tests/log/program_fixture.h"

namespace tallyhut {

inline constexpr const char* kDataFolder = "/home/operator/Tallyhut";
inline constexpr const char* kTimeRecordsPath = "/contest/nsonoff.txt";

/// A value handed to the shared preferences.
struct SharedCall {
    std::string key;
    std::string value;
    bool saveNow = false;

    bool operator==(const SharedCall&) const = default;
};

/// A program that runs, with a folder for copies of its own and the shared preferences written down.
struct EditingFixture : ProgramFixture {
    std::vector<SharedCall> shared;
    std::string shareFailure;  ///< while it is not empty the saving of shared preferences fails with it

    void StartOnDesk(const std::vector<Contact>& contacts = {}, int mode = 1) {
        StartWith(contacts, mode);
        program->directories.DataDirectory = kDataFolder;
        files.AddFolder(kDataFolder);
        program->station.SetSharedPreference = [this](std::string_view key, std::string_view value, bool saveNow) {
            shared.push_back({std::string{key}, std::string{value}, saveNow});
            if (saveNow && !shareFailure.empty()) {
                throw PlatformError{shareFailure};
            }
        };
    }

    frmEditCon& EditForm() { return program->editForm; }
    frmStationID& StationForm() { return program->stationForm; }

    void ClickRow(int row, MouseButton button = kLeftButton) {
        TheDesk().PostRowClick(Main().ListView1, row, button);
        TheDesk().RunPending();
    }
    /// What the operator does in the modal form that opens next.
    void Meanwhile(std::function<void()> script) { pump.OnWait(std::move(script)); }
    /// What the list shows in a column, from top to bottom.
    std::string Column(std::size_t column) {
        std::string text;
        for (std::size_t row = 0; row < Main().ListView1.RowCount(); ++row) {
            text += (row == 0 ? "" : " ") + Main().ListView1.Cell(row, column);
        }
        return text;
    }
    std::string SerialsOnDisk() const {
        std::string text;
        for (const std::string& line : LogLines()) {
            text += (text.empty() ? "" : " ") + line.substr(1, line.find('"', 1) - 1);
        }
        return text;
    }
    std::vector<std::string> TakeBoxes() { return std::exchange(dialogs.boxes, {}); }
};

using Lines = std::vector<std::string>;

}  // namespace tallyhut
