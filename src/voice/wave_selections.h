#pragma once

#include "keying/key_line_texts.h"
#include "voice/phone_messages.h"
#include "voice/phone_record.h"

namespace tallyhut {

/// The form of the messages: checks of its fields, choosing files, its own file.
struct WaveSelections {
    PhoneFrm& form;
    PhoneMessages& messages;
    Files& files;
    const Directories& directories;
    const SerialPorts& serialPorts;
    ParallelPorts& parallelPorts;

    /// Loads the form and reads its file. Throws PlatformError where there is none, and ValueError where it cannot be
    /// read whole; what could be read of it is shown then.
    void ReadSettings();

    void PhoneFrm_Unload();
    void ShowPorts();

    void Browse_Click(const PhoneKey& key);
    /// Test.
    void Command11_Click();
    /// Stop: the cycle ends with what is playing; clicked between two, it goes on.
    void Command12_Click();
    /// Done.
    void Command1_Click();

    void Text10_LostFocus();
    /// A quote would not come through the file.
    static void File_KeyPress(int& KeyAscii);
    static void txtPHLoop_KeyPress(int& KeyAscii);
    void txtPHLoop_LostFocus();

private:
    void Show(const PhoneRecord& record);
    PhoneRecord Shown() const;
    void SetRepeatInterval(double seconds);
};

}  // namespace tallyhut
