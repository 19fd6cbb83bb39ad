#include "log/section_choice.h"

#include <utility>

#include "platform/platform_error.h"
#include "values/value_error.h"

namespace tallyhut {

void SectionChoice::TakeFromFolder() {
    contest.sections.Choose(ListOfFolder());
    grid.PlaceLabels();
    grid.Fill();
}

void SectionChoice::Write(const ShippedList& list) {
    if (list.name != kToldSectionsName) {
        files.Replace(Path(), list.file);
    } else if (FolderHasList()) {
        files.Remove(Path());
    }
}

std::optional<SectionList> SectionChoice::ListOfFolder() {
    inForce.clear();
    const std::string path = Path();
    try {
        if (!FolderHasList()) {
            return std::nullopt;
        }
        std::string text = files.Read(path);
        SectionList list = ReadSectionList(text);
        inForce = std::move(text);
        return list;
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
