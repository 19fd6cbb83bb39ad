#pragma once

#include <array>

#include "forms/frmWinKey.h"
#include "keying/cw_messages.h"
#include "keying/winkey_record.h"
#include "platform/files.h"
#include "platform/winkey.h"
#include "support/directories.h"

namespace tallyhut {

/// An option and the byte that it stands for in the device.
struct WinKeyOption {
    std::uint8_t value;
    Option frmWinKey::*option;
};
inline constexpr std::array kWinKeyPins{
    WinKeyOption{4, &frmWinKey::optKey5Off3Out},
    WinKeyOption{5, &frmWinKey::optPTT},
    WinKeyOption{6, &frmWinKey::optTone},
    WinKeyOption{8, &frmWinKey::optKey5Out3Off},
};
inline constexpr std::array kWinKeyModes{
    WinKeyOption{0, &frmWinKey::optIambicB},
    WinKeyOption{16, &frmWinKey::optIambicA},
    WinKeyOption{32, &frmWinKey::optUltimatic},
    WinKeyOption{48, &frmWinKey::optBug},
};

/// What the keyer's form keeps, in the program's own folder.
struct WinKeyStore {
    Files& files;
    const Directories& directories;

    std::string Path() const { return directories.DataDirectory + "/WK.txt"; }
    /// Throw PlatformError.
    std::string Read() const { return files.Read(Path()); }
    void Write(std::string_view text) const { files.Replace(Path(), text); }
};

/// The keyer device: its form, opening and closing it, and the queue of characters that it is fed with. Timing and
/// weighting are the device's own.
struct WinKeySetup {
    frmWinKey& form;
    const CWFrm& cwForm;
    WinKey& device;
    MorseSender& sender;
    CwMessages& messages;
    WinKeyStore store;
    const SerialPorts& serialPorts;

    std::uint8_t gWKPort = 0;
    std::uint8_t gWKPinConfig = 6;
    std::uint8_t gWKMode = 0;
    std::int32_t openResult = kWkNotOpen;  ///< of the last opening

    /// The phone messages may name the same port: theirs is closed before the device opens.
    std::function<void()> closePhonePort = [] {};

    void frmWinKey_Load();
    void frmWinKey_Activate();
    void frmWinKey_Unload();
    void tmrTrouble_Elapsed();

    void cmdOpenWinkey_Click();
    void cmdCloseWinkey_Click();
    void cmdDone_Click();
    void cmdStop_Click();
    /// Test.
    void Command3_Click();

    // The fields, when they are left.
    void txtWKComPort_LostFocus();
    void txtWKWPM_LostFocus();
    void txtWeight_LostFocus();
    void txtRatio_LostFocus();
    void LeadTail_LostFocus(TextBox& field);
    static void Digits_KeyPress(int& KeyAscii);

    void Mode_Click(std::uint8_t mode);
    void Pins_Click(std::uint8_t pins);
    /// The speed of the messages has changed.
    void FollowSpeed();

    /// Feeds the device with the queue; returns when the queue is empty. Opens the device where it is closed.
    void WKTransmit();

private:
    void ShowClosed();
    void ShowResult(std::int32_t result);
    void ShowTrouble();
    std::string Trouble() const;
    void SendWKSettings();
    void ShowOptions();
    bool WaitForRoom();
    void FeedOne();
    void FocusDone();
};

}  // namespace tallyhut
