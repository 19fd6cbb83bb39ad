#include "tests/voice/voice_fixture.h"

namespace tallyhut {
namespace {

constexpr const char* kRecorded = "/contest/F2.wav";
constexpr const char* kOverBox =
    "message \"Record\" \"F2.wav stands in the working directory already. Do you want to record over it?\" YesNo "
    "Question";

struct PhoneRecordingTest : VoiceFixture {
    Lines announced;

    void Open() {
        StartOnTime();
        TheDesk().outlets.announced = [this](std::string_view words) { announced.emplace_back(words); };
        sound.inputLevel = 0.5;
        Phone().Show();
        TheDesk().RunPending();
        events.clear();
    }
    void Record(int milliseconds) {
        Click(Phone().cmdRecord(2));
        Pass(milliseconds);
    }
    std::string State() { return Phone().lblRecording.Caption(); }
    std::string OnDisk() { return files.contents.contains(kRecorded) ? files.contents.at(kRecorded) : ""; }
    static std::string Silence(int milliseconds) {
        const auto samples = static_cast<std::size_t>(milliseconds) * WaveRecorder::kRate / 1'000;
        return WaveFile(WaveRecorder::kRate, std::string(2 * samples, '\0'));
    }
};

TEST_F(PhoneRecordingTest, RecordingGoesIntoTheWorkingDirectoryAndIntoTheField) {
    Open();
    Record(1'200);
    EXPECT_EQ(State(), "Recording F2.wav, 1.2 s");
    EXPECT_EQ(Phone().Text2.Text(), "") << "only when it is kept";
    Click(Phone().cmdStopRecord);
    EXPECT_EQ(OnDisk(), Silence(1'200));
    EXPECT_EQ(Phone().Text2.Text(), kRecorded);
    EXPECT_EQ(State(), "Recorded F2.wav, 1.2 s.");
    EXPECT_EQ(announced, (Lines{"Recording F2", "Recorded F2.wav, 1.2 s."}));
    EXPECT_EQ(dialogs.boxes, Lines{});
}

TEST_F(PhoneRecordingTest, EachKeyHasAFileOfItsOwn) {
    Open();
    for (int key = 1; key <= 9; ++key) {
        Click(Phone().cmdRecord(key));
        Pass(100);
        Click(Phone().cmdStopRecord);
        const std::string path = "/contest/F" + std::to_string(key) + ".wav";
        EXPECT_TRUE(files.contents.contains(path));
        EXPECT_EQ((Phone().*kPhoneKeys.at(static_cast<std::size_t>(key - 1)).file).Text(), path);
    }
}

TEST_F(PhoneRecordingTest, FocusLeadsThroughRecordStopAndPlayBack) {
    Open();
    EXPECT_FALSE(Phone().cmdStopRecord.State().enabled);
    EXPECT_FALSE(Phone().cmdPlayBack.State().enabled);
    Record(500);
    EXPECT_EQ(Phone().Focus(), &Phone().cmdStopRecord);
    Press("Space");
    EXPECT_EQ(Phone().Focus(), &Phone().cmdPlayBack);
    EXPECT_FALSE(Phone().cmdStopRecord.State().enabled);
    Press("Space");
    EXPECT_EQ(Taken(), (Lines{"PhoneFrm open F2.wav", "PhoneFrm play F2.wav"}));
}

TEST_F(PhoneRecordingTest, MeterFollowsTheLevel) {
    struct Case {
        double level;
        const char* meter;
        const char* words;
    };
    Open();
    Record(100);
    for (const auto& [level, meter, words] : {Case{0, "--------------------", "silent"},
                                              {0.04, "|-------------------", "low"},
                                              {0.5, "||||||||||----------", "good"},
                                              {0.97, "||||||||||||||||||||", "good"},
                                              {1, "||||||||||||||||||||", "too loud"}}) {
        sound.inputLevel = level;
        Pass(50);
        EXPECT_EQ(Phone().lblMeter.Caption(), meter) << level;
        EXPECT_EQ(Phone().lblLevel.Caption(), words) << level;
    }
    Click(Phone().cmdStopRecord);
    EXPECT_EQ(Phone().lblMeter.Caption(), "");
}

TEST_F(PhoneRecordingTest, OperatorIsToldOfALevelThatIsNotGood) {
    struct Case {
        double level;
        const char* advice;
    };
    for (const auto& [level, advice] :
         {Case{0, " Nothing can be heard on it: is the microphone connected and switched on?"},
          {0.1, " It is low: turn the input up, or go nearer to the microphone."},
          {1, " It is too loud and will be distorted: turn the input down."}}) {
        files.contents.erase(kRecorded);
        Open();
        sound.inputLevel = level;
        Record(300);
        Click(Phone().cmdStopRecord);
        EXPECT_EQ(State(), std::string{"Recorded F2.wav, 0.3 s."} + advice);
    }
}

TEST_F(PhoneRecordingTest, FileThatStandsThereIsRecordedOverOnlyAfterAQuestion) {
    Open();
    files.Put(kRecorded, "precious");
    dialogs.answers = {Answer::No};
    Record(500);
    EXPECT_EQ(dialogs.boxes, Lines{kOverBox});
    EXPECT_FALSE(Phone().cmdStopRecord.State().enabled);
    EXPECT_EQ(OnDisk(), "precious");
    dialogs.answers = {Answer::Yes};
    Record(500);
    EXPECT_EQ(OnDisk(), "precious") << "until the recording is stopped";
    Click(Phone().cmdStopRecord);
    EXPECT_EQ(OnDisk(), Silence(500));
}

TEST_F(PhoneRecordingTest, WithoutAnInputTheFormSaysWhy) {
    Open();
    sound.inputRefusal = "No such audio device";
    Click(Phone().cmdRecord(2));
    EXPECT_EQ(State(), "Nothing can be recorded. No such audio device");
    EXPECT_EQ(announced, (Lines{"Nothing can be recorded. No such audio device"}));
    EXPECT_FALSE(Phone().cmdStopRecord.State().enabled);
    EXPECT_FALSE(Phone().tmrLevel.Enabled());
    EXPECT_EQ(Phone().Text2.Text(), "");
}

TEST_F(PhoneRecordingTest, EscStopsTheRecordingAndOnlyTheNextOneTheForm) {
    Open();
    Record(500);
    Press("Esc");
    EXPECT_EQ(OnDisk(), Silence(500));
    EXPECT_TRUE(Phone().IsVisible());
    Press("Esc");
    EXPECT_FALSE(Phone().IsVisible());
}

TEST_F(PhoneRecordingTest, LeavingTheFormStopsTheRecordingAndKeepsIt) {
    const std::vector<std::function<void()>> doors{[this] { Phone().RequestClose(); },
                                                   [this] { Click(Phone().Command1); }, [this] { Phone().Unload(); }};
    for (const auto& leave : doors) {
        files.contents.erase(kRecorded);
        Open();
        Record(500);
        leave();
        TheDesk().RunPending();
        EXPECT_EQ(OnDisk(), Silence(500));
        EXPECT_FALSE(Phone().IsVisible());
    }
}

TEST_F(PhoneRecordingTest, DoneKeepsThePathOfWhatWasBeingRecorded) {
    Open();
    Record(500);
    Click(Phone().Command1);
    EXPECT_NE(files.contents.at(kWavesPath).find("\"/contest/F2.wav\""), std::string::npos);
}

TEST_F(PhoneRecordingTest, EndOfTheProgramKeepsTheRecording) {
    Open();
    Record(500);
    EXPECT_EQ(EndStatusOf([this] {
                  Main().RequestClose();
                  TheDesk().RunPending();
              }),
              0);
    EXPECT_EQ(OnDisk(), Silence(500));
}

TEST_F(PhoneRecordingTest, RecordOfAnotherKeyKeepsTheFirst) {
    Open();
    Record(500);
    Click(Phone().cmdRecord(3));
    EXPECT_EQ(OnDisk(), Silence(500));
    Pass(200);
    Click(Phone().cmdStopRecord);
    EXPECT_EQ(Phone().Text3.Text(), "/contest/F3.wav");
}

TEST_F(PhoneRecordingTest, RecordingThatCannotBeKeptIsToldAndMayBeTriedAgain) {
    Open();
    Record(500);
    files.FailAt(1, "No space left on device");
    Click(Phone().cmdStopRecord);
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_NE(dialogs.boxes[0].find("No space left on device"), std::string::npos);
    EXPECT_EQ(Phone().Text2.Text(), "");
    EXPECT_TRUE(Phone().cmdStopRecord.State().enabled);
    Pass(1'000);
    Click(Phone().cmdStopRecord);
    EXPECT_EQ(OnDisk(), Silence(500));
    EXPECT_EQ(Phone().Text2.Text(), kRecorded);
    EXPECT_EQ(dialogs.boxes.size(), 1U);
}

TEST_F(PhoneRecordingTest, RecordingEndsByItselfAfterTenMinutes) {
    Open();
    Record(100);
    clock.Advance(10 * 60'000);
    TheDesk().RunPending();
    PassTime(50);
    EXPECT_FALSE(Phone().cmdStopRecord.State().enabled);
    EXPECT_EQ(OnDisk().size(), Silence(600'000).size());
}

TEST_F(PhoneRecordingTest, NeitherRecordNorPlayBackIsHeardOnTheAir) {
    Open();
    PutWave("/contest/F1.wav", 3'000);
    Phone().Text1.SetText("/contest/F1.wav");
    Phone().Text10.SetText("1");
    Click(Phone().Command11);
    ASSERT_TRUE(IsKeyDown());
    Record(300);
    EXPECT_FALSE(IsKeyDown());
    EXPECT_FALSE(IsPlaying());
    Click(Phone().cmdStopRecord);
    Click(Phone().Command11);
    ASSERT_TRUE(IsKeyDown());
    Click(Phone().cmdPlayBack);
    EXPECT_FALSE(IsKeyDown());
    EXPECT_TRUE(IsPlaying());
}

TEST_F(PhoneRecordingTest, RecordingThatHasGoneIsToldByPlayBack) {
    Open();
    Record(300);
    Click(Phone().cmdStopRecord);
    files.contents.erase(kRecorded);
    Click(Phone().cmdPlayBack);
    EXPECT_TRUE(State().starts_with("The recording cannot be played. ")) << State();
}

}  // namespace
}  // namespace tallyhut
