#pragma once

#include <optional>
#include <random>

#include "forms/frmCodePractice.h"
#include "keying/cw_messages.h"

namespace tallyhut {

/// Groups of characters with a blank behind each: so many groups of so many, of the first `kinds` of A to Z, 0, 1 to 9,
/// ". , ? / -". At most kLongestPage characters.
///
/// @param random  0 to below 1, each time another
std::string PracticeGroups(double groups, double characters, int kinds, const std::function<double()>& random);

/// Practice over the air, through the keying of the messages. Nothing in the text is a wildcard; "!" is what it is in a
/// message.
struct CodePractice {
    frmCodePractice& form;
    CWFrm& cwForm;
    CwMessages& messages;
    MorseSender& sender;
    Desk& desk;
    std::optional<std::uint32_t> seed = {};  ///< in place of the clock's

    std::string mSendText = {};  ///< what is being sent
    bool isSending = false;      ///< between the first and the last character

    /// Returns when the form has been closed.
    void Open();
    void frmCodePractice_Load();
    /// Refused while a character is on its way.
    void frmCodePractice_QueryUnload(bool& Cancel);

    /// Generate.
    void Command2_Click();
    /// Paste.
    void Command1_Click();
    /// Send.
    void Command3_Click();
    /// Stop.
    void Command4_Click();
    static void Text1_KeyPress(int& KeyAscii);
    void Text5_KeyPress(int& KeyAscii);
    void Command7_Click();
    void Command8_Click();

private:
    void SendFrom(std::size_t position);
    void ShowSpeed();
};

}  // namespace tallyhut
