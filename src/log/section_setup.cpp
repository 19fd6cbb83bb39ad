#include "log/section_setup.h"

#include <algorithm>
#include <array>

#include "platform/platform_error.h"
#include "values/number.h"
#include "values/text_lines.h"
#include "values/utf8.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

constexpr const char* kTitle = "Sections";
constexpr std::string_view kQuestionOfNew = "&Which sections shall this new contest have? Choose a list and press Use:";
constexpr int kMostNamed = 20;
constexpr std::array<std::string_view, kSectionHeadings> kAreas{"1", "2", "3", "4", "5",     "6",
                                                                "7", "8", "9", "0", "Canada"};

/// What the file itself says of its list: its first comment.
std::string FirstComment(std::string_view file) {
    const std::string text = Latin1Of(file);
    return text.starts_with('#') ? std::string{Bare(TextLines{text}.Take().substr(1))} : "";
}

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

std::string WhatItIs(const SectionSetup::Offer& offer) {
    if (!offer.damage.empty()) {
        return "Damaged";
    }
    const std::string comment = FirstComment(offer.list.file);
    return offer.ofFolder ? "In the folder of this contest" + (comment.empty() ? "" : ": " + comment) : comment;
}

std::string NoteOn(const SectionSetup::Offer& offer) {
    if (!offer.damage.empty()) {
        return "This list cannot be used. " + offer.damage;
    }
    if (offer.ofFolder) {
        return "Use reads the file again, behind a change made with an editor.";
    }
    return offer.list.name == kToldSectionsName
               ? "A contest has these without a Sections.txt in its folder: Use removes the file."
               : "Use puts the list into the folder of this contest, as Sections.txt.";
}

}  // namespace

void SectionSetup::mnuSections_Click() {
    dialog.ShowModal();
    dialog.Unload();
}

void SectionSetup::AskForNewContest() {
    dialog.Load();
    dialog.lblLists.SetCaption(kQuestionOfNew);
    dialog.ShowModal();
    dialog.Unload();
}

void SectionSetup::frmSections_Load() {
    ShowInForce();
    const std::string file = choice.inForce;
    ShowOffers(0);
    const auto isInForce = [&file](const Offer& offer) {
        return file.empty() ? offer.list.name == kToldSectionsName : offer.list.file == file;
    };
    const auto row = std::ranges::find_if(offers, isInForce);
    const bool isNew = !guard.reload.opened;
    dialog.lstSections.SelectRow(isNew || row == offers.end() ? 0 : static_cast<int>(row - offers.begin()));
}

std::vector<SectionSetup::Offer> SectionSetup::Offers() {
    std::vector<Offer> all;
    for (ShippedList& list : shipped.Lists()) {
        all.push_back({.list = std::move(list)});
    }
    try {
        if (choice.FolderHasList()) {
            all.push_back(OfferOfFolder());
        }
    } catch (const PlatformError&) {  // then nothing is known of the folder
    }
    return all;
}

SectionSetup::Offer SectionSetup::OfferOfFolder() const {
    Offer own{.list = {.name = kSectionsFile, .file = {}, .list = {}}, .ofFolder = true};
    try {
        own.list.file = choice.files.Read(choice.Path());
        own.list.list = ReadSectionList(own.list.file);
    } catch (const PlatformError& failure) {
        own.damage = failure.what();
    } catch (const ValueError& damage) {
        own.damage = damage.what();
    }
    return own;
}

void SectionSetup::ShowInForce() {
    const std::string name =
        choice.inForce.empty() ? std::string{kToldSectionsName} : NameOfFile(shipped.Lists(), choice.inForce);
    dialog.lblSections.SetCaption((name.empty() ? kSectionsFile : name) + ", " +
                                  PlainText(choice.contest.sections.List().Count()) + " sections");
}

void SectionSetup::ShowOffers(int row) {
    offers = Offers();
    dialog.lstSections.SetRows(offers.size(), [this](std::size_t at, std::size_t column) {
        const Offer& offer = offers.at(at);
        const std::array<std::string, 3> cells{
            offer.list.name, offer.damage.empty() ? PlainText(offer.list.list.Count()) : "", WhatItIs(offer)};
        return cells.at(column);
    });
    dialog.lstSections.SelectRow(row);  // shows what it holds, by its Click
}

void SectionSetup::lstSections_Click() {
    const int row = dialog.lstSections.Row();
    const bool any = row >= 0 && row < static_cast<int>(offers.size());
    const Offer chosen = any ? offers[static_cast<std::size_t>(row)] : Offer{};
    dialog.lstHolds.SetRows(
        chosen.list.list.sections.size(), [list = chosen.list.list](std::size_t at, std::size_t column) {
            const ListedSection& section = list.sections.at(at);
            const std::array<std::string, 5> cells{section.code, section.name, std::string{kAreas.at(section.heading)},
                                                   Joined(section.aliases), Joined(section.prefixes)};
            return cells.at(column);
        });
    dialog.lblNote.SetCaption(any ? NoteOn(chosen) : "No list was found.");
    dialog.cmdUse.SetEnabled(any && chosen.damage.empty());
}

void SectionSetup::lstSections_KeyPress(int& KeyAscii) {
    if (KeyAscii == kKeyEnter) {
        KeyAscii = 0;
        if (dialog.cmdUse.State().enabled) {
            cmdUse_Click();
        }
    }
}

void SectionSetup::cmdUse_Click() {
    const int row = dialog.lstSections.Row();
    if (row < 0 || row >= static_cast<int>(offers.size())) {
        return;
    }
    try {
        const Offer& chosen = offers[static_cast<std::size_t>(row)];
        if (!chosen.ofFolder) {
            if (!MayReplace()) {
                return;
            }
            choice.Write(chosen.list);
        }
    } catch (const PlatformError& failure) {
        TellFailure(failure);
    }
    Follow();
}

/// What somebody has made by hand stands nowhere else.
bool SectionSetup::MayReplace() {
    if (!choice.FolderHasList() || !NameOfFile(shipped.Lists(), choice.files.Read(choice.Path())).empty()) {
        return true;
    }
    return desk.dialogs.Show({.title = kTitle,
                              .text = choice.Path() +
                                      " is none of the lists that come with the program, and would be lost. Shall "
                                      "another list take its place?",
                              .buttons = Buttons::YesNo,
                              .icon = Icon::Question}) == Answer::Yes;
}

/// Whatever came of a change: what the folder says is in force.
void SectionSetup::Follow() {
    choice.TakeFromFolder();
    if (guard.reload.opened) {
        guard.Reopen();
    }
    changed();
    const int row = dialog.lstSections.Row();
    ShowInForce();
    ShowOffers(std::min(row, static_cast<int>(offers.size()) - 1));
    TellLost();
}

void SectionSetup::TellLost() {
    const Contest& contest = choice.contest;
    std::string named;
    int lost = 0;
    for (std::int32_t row = 1; row <= contest.log.gContactCount(); ++row) {
        const std::string& section = contest.log.Row(row).Sec;
        if (contest.sections.Find(section) == 0 && ++lost <= kMostNamed) {
            named += "\r\n" + PlainText(row) + "  " + section;
        }
    }
    if (lost > kMostNamed) {
        named += "\r\nand " + PlainText(lost - kMostNamed) + " more";
    }
    if (lost > 0) {
        desk.dialogs.Show({.title = kTitle,
                           .text = "The list in force lacks the sections of these contacts, by Rec#. None was "
                                   "changed.\r\n" +
                                   named,
                           .buttons = Buttons::OK,
                           .icon = Icon::Exclamation});
    }
}

void SectionSetup::TellFailure(const std::exception& failure) {
    desk.dialogs.Show({.title = kTitle, .text = failure.what(), .buttons = Buttons::OK, .icon = Icon::Exclamation});
}

void SectionSetup::cmdDone_Click() {
    dialog.Hide();
}

}  // namespace tallyhut
