#pragma once

#include "forms/frmNetwork.h"
#include "network/radio_news.h"

namespace tallyhut {

/// Where the operator chooses what is told to other programs, and sees what fails. A choice counts and is stored at
/// once, an address when its field is left, or the form for the main form; one that is none is named, and the others
/// count.
struct NetworkSetup {
    frmNetwork& dialog;
    Desk& desk;
    NetworkSettings& settings;
    NewsOrigin& origin;
    NewsSender& sender;
    RadioNews& radioNews;

    /// What was chosen in an earlier run.
    void TakeStored();

    // The form.
    void frmNetwork_Load();
    void chkContacts_Click();
    void chkRadio_Click();
    /// False where one in the field is no address, which is named.
    bool TakeContacts();
    bool TakeRadio();
    void TakeApp();
    /// The operator goes on in the main form: what was typed counts.
    void Form1_Activate();
    void cmdDone_Click();
    /// The first thing that is wrong: an address in a field, else the newest failure.
    void ShowFailure();

private:
    void Aim(News news, const NewsChoice& choice);
    void ChooseContacts(const NewsChoice& choice);
    void ChooseRadio(const NewsChoice& choice);
    bool Holds(TextBox& field);
    template <typename Store>
    void TellingFailure(Store store);
};

}  // namespace tallyhut
