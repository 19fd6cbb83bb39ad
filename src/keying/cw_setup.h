#pragma once

#include "keying/cw_messages.h"
#include "keying/cw_record.h"
#include "platform/files.h"
#include "platform/settings_store.h"
#include "support/directories.h"

namespace tallyhut {

/// What the form of the messages reads and keeps.
struct CwStore {
    Files& files;
    SettingsStore& settings;
    const Directories& directories;

    /// Throws PlatformError where no file can be read.
    std::string Read() const;
    /// The file bears its name in capitals then, and no other spelling of it stands beside it. Throws PlatformError.
    void Write(std::string_view text);

private:
    std::vector<std::string> Spellings() const;
};

/// The form of the messages: checks of its fields, the choice of the output and of the timing, its file.
struct CwSetup {
    CWFrm& form;
    MorseSender& sender;
    CwMessages& messages;
    CwStore store;
    const SerialPorts& serialPorts;
    ParallelPorts& parallelPorts;
    Desk& desk;

    TextBox* previewed = nullptr;  ///< the message that had the focus last

    /// What follows Done: the list of the messages, and the main form.
    std::function<void()> done = [] {};
    std::function<void()> loadWinKey = [] {};
    std::function<void()> configureWinKey = [] {};
    std::function<void()> sendPractice = [] {};

    void CWFrm_Load();
    void CWFrm_Activate();
    void CWFrm_QueryUnload(bool& Cancel);
    void CWFrm_Unload();

    /// What the file lacks or what is damaged in it keeps the form's values, and says nothing.
    void LoadCWSettings();
    /// Done. A failure says nothing.
    void Command1_Click();

    void Message_Change(TextBox& message);
    void Message_GotFocus(TextBox& message);
    static void Message_KeyPress(int& KeyAscii);
    /// The data of the present contact have changed.
    void ShowPreview();

    void Option_Click(KeyingOutput output);
    void ShowPorts();
    static void Number_KeyPress(int& KeyAscii);
    static void Number_GotFocus(TextBox& field);
    void Text10_LostFocus();
    void Text11_LostFocus();
    static void txtSpace_KeyPress(int& KeyAscii);
    void txtSpace_LostFocus();
    void txtSpace_Change();
    void ChangeSpace(int by);
    static void txtCWLoop_KeyPress(int& KeyAscii);
    void txtCWLoop_LostFocus();

    void optTimer_Click() { ShowLoop(false); }
    void OptSleep_Click() { ShowLoop(false); }
    void optLoop_Click();
    void txtLoop_Change();
    void TrimLoop(double factor);

    /// Test: sends the message of F9.
    void Command4_Click();
    /// Send Code Practice.
    void Command7_Click();

private:
    void ReadTiming();
    void StoreTiming();
    void Show(const CwRecord& record);
    CwRecord Shown() const;
    void SetRepeatInterval(double seconds);
    void ChooseOutput();
    void ShowLoop(bool on);
};

}  // namespace tallyhut
