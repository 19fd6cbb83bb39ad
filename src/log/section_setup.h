#pragma once

#include <functional>

#include "forms/frmSections.h"
#include "log/log_guard.h"
#include "log/section_choice.h"

namespace tallyhut {

/// Where the operator sees which sections the contest has, and gives it others. A choice counts at once.
struct SectionSetup {
    frmSections& dialog;
    Desk& desk;
    SectionChoice& choice;
    const ShippedSections& shipped;
    LogGuard& guard;

    std::function<void()> changed = [] {};  ///< other sections are in force, and the log has been read with them

    /// A list to choose from.
    struct Offer {
        ShippedList list;  ///< of the folder's own the name is that of the file
        bool ofFolder = false;
        std::string damage = {};  ///< why it cannot be used; empty for a good one
    };
    std::vector<Offer> offers = {};  ///< in the rows of lstSections

    /// Returns when the dialog has been closed.
    void mnuSections_Click();
    /// Names the contacts of sections that the list in force lacks, if there are any.
    void TellLost();
    /// The same question for a folder that has neither log nor list, before anything is logged there.
    void AskForNewContest();

    // The form.
    void frmSections_Load();
    void lstSections_Click();
    /// Of lstSections: Enter is cmdUse.
    void lstSections_KeyPress(int& KeyAscii);
    void cmdUse_Click();
    void cmdDone_Click();

private:
    std::vector<Offer> Offers();
    Offer OfferOfFolder() const;
    bool MayReplace();
    void Follow();
    void ShowInForce();
    void ShowOffers(int row);
    void TellFailure(const std::exception& failure);
};

}  // namespace tallyhut
