#include "tests/voice/voice_fixture.h"

namespace tallyhut {
namespace {

struct VoicePromptsTest : VoiceFixture {
    /// Each prompt of the program's own lasts so long.
    void StartSpeaking(int level, int milliseconds = 400) {
        for (const char* prompt :
             {"Call", "Number", "Prec", "Check", "Section", "Dupe", "Needspot", "NavEn", "NavDis"}) {
            PutWave(std::string{"/data/prompts/"} + prompt + ".wav", milliseconds);
        }
        stored.gVoiceNav = static_cast<std::uint8_t>(level);
        StartWith({Worked("W1XX")}, 2);
        program->time.gTimeOn = 1;
        events.clear();
    }
    Lines Spoken() {
        Lines names;
        for (const std::string& line : Taken()) {
            if (line.starts_with("BlindFrm play ")) {
                names.push_back(line.substr(14, line.size() - 18));
            }
        }
        return names;
    }
    void ShowBlind() {
        TheDesk().PostAction([this] { Blind().Show(); });
        TheDesk().RunPending();
    }
    Tick Passed(const std::function<void()>& step) {
        const Tick begin = clock.TickMs();
        step();
        return clock.TickMs() - begin;
    }
};

TEST_F(VoicePromptsTest, AtLevel1TabbingThroughTheFieldsSpeaksTheCallAlone) {
    StartSpeaking(1);
    for (int round = 0; round < 12; ++round) {
        Press("Tab");
    }
    for (const std::string& name : Spoken()) {
        EXPECT_EQ(name, "Call");
    }
    Focus(Main().txtSec);
    Spoken();
    Focus(Main().txtCall);
    EXPECT_EQ(Spoken(), Lines{"Call"});
}

TEST_F(VoicePromptsTest, AtLevel2EachFieldSaysWhichItIs) {
    StartSpeaking(2);
    for (TextBox* field : {&Main().txtNum, &Main().txtPre, &Main().txtCall, &Main().txtCK, &Main().txtSec}) {
        Focus(*field);
    }
    EXPECT_EQ(Spoken(), (Lines{"Number", "Prec", "Call", "Check", "Section"}));
}

TEST_F(VoicePromptsTest, QuickKeysCutOffAllPromptsButTheLast) {
    StartSpeaking(2);
    Focus(Main().txtNum);
    Focus(Main().txtPre);
    EXPECT_EQ(Taken(), (Lines{"BlindFrm close Call.wav", "BlindFrm open Number.wav", "BlindFrm play Number.wav",
                              "BlindFrm close Number.wav", "BlindFrm open Prec.wav", "BlindFrm play Prec.wav"}));
}

TEST_F(VoicePromptsTest, PromptHoldsNobodyUp) {
    StartSpeaking(2);
    EXPECT_EQ(Passed([this] { Focus(Main().txtPre); }), 0U);
}

TEST_F(VoicePromptsTest, AtLevel0ADuplicateIsSpokenWithoutAWait) {
    StartSpeaking(0);
    EXPECT_EQ(Passed([this] { Type("W1XX "); }), 0U);
    EXPECT_EQ(program->duplicates.gIsDupe, 1);
    EXPECT_EQ(Spoken(), Lines{"Dupe"});
}

TEST_F(VoicePromptsTest, AtLevel1ADuplicateIsHeardToItsEndBeforeTheField) {
    StartSpeaking(1);
    const Tick passed = Passed([this] { Type("W1XX "); });
    EXPECT_GE(passed, 400U);
    EXPECT_LE(passed, 410U);
    EXPECT_EQ(Spoken(), (Lines{"Dupe", "Call"}));
}

TEST_F(VoicePromptsTest, WithoutADuplicatesRecordingTheWaitEndsAtOnce) {
    StartSpeaking(1);
    files.contents.erase("/data/prompts/Dupe.wav");
    EXPECT_EQ(Passed([this] { Type("W1XX "); }), 0U);
    EXPECT_EQ(Spoken(), Lines{"Call"});
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(VoicePromptsTest, SoundThatHangsEndsTheWaitASecondLater) {
    StartSpeaking(1);
    sound.isHanging = true;
    const Tick passed = Passed([this] { Type("W1XX "); });
    EXPECT_GE(passed, 1'400U);
    EXPECT_LE(passed, 1'410U);
}

TEST_F(VoicePromptsTest, OperatorsOwnRecordingIsSpokenBeforeTheProgramsOwn) {
    StartSpeaking(2);
    std::string played;
    sound.onCommand = [&played](const sim::Sound::Command& command) { played = command.file; };
    Focus(Main().txtPre);
    EXPECT_EQ(played, "/data/prompts/Prec.wav");
    PutWave("/contest/Prec.wav", 300);
    Focus(Main().txtCall);
    Focus(Main().txtPre);
    EXPECT_EQ(played, "/contest/Prec.wav");
}

TEST_F(VoicePromptsTest, BrokenRecordingIsSilent) {
    StartSpeaking(2);
    files.Put("/contest/Prec.wav", "no wave");
    Focus(Main().txtPre);
    EXPECT_EQ(Spoken(), Lines{});
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(VoicePromptsTest, PromptsAndMessagesAreHeardAtOnce) {
    StartSpeaking(2);
    PutWave("/contest/F1.wav", 3'000);
    Phone().Text1.SetText("/contest/F1.wav");
    Press("F1");
    Focus(Main().txtPre);
    EXPECT_TRUE(IsPlaying());
    EXPECT_EQ(program->voicePart.promptPlayer->Mode(), WavePlayer::kPlaying);
}

TEST_F(VoicePromptsTest, TransmitterIsLetGoWhileADuplicateIsSpoken) {
    StartSpeaking(1, 2'000);
    PutWave("/contest/F3.wav", 500);
    Phone().Text3.SetText("/contest/F3.wav");
    Phone().Text10.SetText("1");
    Type("W1XX");
    Press("F3");
    ASSERT_TRUE(IsKeyDown());
    Microtick letGo = 0;
    const Microtick begin = clock.TickUs();
    serialPorts.onLevel = [&](int /*port*/, sim::ControlLine /*line*/, bool on) {
        letGo = on ? 0 : clock.TickUs() - begin;
    };
    Type(" ");
    EXPECT_GE(letGo, 500'000U);
    EXPECT_LE(letGo, 540'000U);
}

// The form.

TEST_F(VoicePromptsTest, MenuOpensTheFormAboveAllOthers) {
    StartSpeaking(1);
    EXPECT_EQ(Main().mnuBlind.Caption(), "&Voice Navigation");
    bool modal = false;
    pump.OnWait([&] {
        modal = Blind().IsModal();
        TheDesk().PostClick(Blind().Command1, kLeftButton);
    });
    ChooseMenu(Main().mnuBlind);
    EXPECT_TRUE(modal);
    EXPECT_FALSE(Blind().IsVisible());
}

TEST_F(VoicePromptsTest, FormShowsTheLevelAndTheFolderWithoutASound) {
    for (const int level : {0, 1, 2, 3}) {
        StartSpeaking(level);
        ShowBlind();
        EXPECT_EQ(Blind().Caption(), "Voice Navigation Settings");
        EXPECT_EQ(Blind().Option1.Value(), level == 0) << level;
        EXPECT_EQ(Blind().Option2.Value(), level == 1) << level;
        EXPECT_EQ(Blind().Option3.Value(), level == 2) << level;
        EXPECT_EQ(Blind().Label7.Caption(), "Put the audio wave files in this program's working directory: /contest");
        EXPECT_EQ(Taken(), Lines{}) << level;
    }
}

TEST_F(VoicePromptsTest, ChoosingALevelIsHeard) {
    StartSpeaking(0);
    ShowBlind();
    const Tick passed = Passed([this] { Click(Blind().Option2); });
    EXPECT_GE(passed, 400U) << "one behind the other";
    EXPECT_LE(passed, 410U);
    EXPECT_EQ(Taken(), (Lines{"BlindFrm open NavEn.wav", "BlindFrm play NavEn.wav", "BlindFrm close NavEn.wav",
                              "BlindFrm open Call.wav", "BlindFrm play Call.wav"}));
    Click(Blind().Option3);
    EXPECT_EQ(Spoken(), Lines{"NavEn"});
    Click(Blind().Option1);
    EXPECT_EQ(Spoken(), Lines{"NavDis"});
}

TEST_F(VoicePromptsTest, DoneKeepsTheLevel) {
    StartSpeaking(0);
    for (const auto& [option, level] :
         {std::pair{&Blind().Option2, 1}, std::pair{&Blind().Option3, 2}, std::pair{&Blind().Option1, 0}}) {
        ShowBlind();
        Click(*option);
        Click(Blind().Command1);
        EXPECT_EQ(program->preferences.gVoiceNav, level);
        EXPECT_FALSE(Blind().IsVisible());
        Preferences kept;
        ReadPreferences(files.contents.at(kPreferencesPath), kept);
        EXPECT_EQ(kept.gVoiceNav, level);
    }
}

TEST_F(VoicePromptsTest, CloseBoxDropsTheChoice) {
    StartSpeaking(1);
    ShowBlind();
    Click(Blind().Option3);
    Blind().RequestClose();
    TheDesk().RunPending();
    EXPECT_EQ(program->preferences.gVoiceNav, 1);
    ShowBlind();
    EXPECT_TRUE(Blind().Option2.Value());
}

}  // namespace
}  // namespace tallyhut
