#include "log/section_choice.h"

#include <utility>

#include "platform/platform_error.h"
#include "values/value_error.h"

namespace tallyhut {

void SectionChoice::TakeFromFolder() {
    PutInForce(ListOfFolder());
}

void SectionChoice::PutInForce(std::optional<SectionList> list) {
    contest.sections.Choose(std::move(list));
    grid.PlaceLabels();
    grid.Fill();
}

std::optional<SectionList> SectionChoice::ListOfFolder() {
    const std::string path = WorkingFile(directories, kSectionsFile);
    try {
        return files.FileExists(path) ? std::optional{ReadSectionList(files.Read(path))} : std::nullopt;
    } catch (const ValueError& damage) {
        TellRefused(path, damage.what());
    } catch (const PlatformError& failure) {
        TellRefused(path, failure.what());
    }
    return std::nullopt;
}

void SectionChoice::TellRefused(const std::string& path, std::string_view why) {
    dialogs.Show({.title = "Sections",
                  .text = "The sections of this contest cannot be taken from " + path + ".\n\n" + std::string{why} +
                          "\n\nUntil that is put right the contest has the sections of 2014.",
                  .buttons = Buttons::OK,
                  .icon = Icon::Exclamation});
}

}  // namespace tallyhut
