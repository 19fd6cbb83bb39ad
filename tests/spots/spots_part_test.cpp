#include "spots/spots_part.h"

#include "support/port_texts.h"
#include "tests/spots/cluster_fixture.h"

namespace tallyhut {
namespace {

using SpotsPartTest = ClusterFixture;

TEST_F(SpotsPartTest, StoredClusterIsOpenedByTheStartAndItsPostsAreOnTheMap) {
    StartWithCluster();
    EXPECT_EQ(Cluster().host, "cluster");
    EXPECT_FALSE(SetupForm().IsVisible());
    EXPECT_TRUE(SetupForm().Label4.State().visible);
    EXPECT_TRUE(MapIsShown());
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    EXPECT_TRUE(Newest().visible);
    EXPECT_EQ(Newest().text, "K1");
    EXPECT_EQ(Main().txtDX.RowCount(), 1U);
    EXPECT_EQ(SetupForm().txtUnProcessed.Text().substr(SetupForm().txtUnProcessed.Text().find("DX de")),
              PostLine("14175.0", "K1ABC", "CQ SS"));
}

TEST_F(SpotsPartTest, WithoutASetupTheMainFormShowsNoSpots) {
    StartOnTime();
    EXPECT_TRUE(SetupForm().IsLoaded());
    EXPECT_FALSE(MapIsShown());
    EXPECT_FALSE(Main().txtDX.State().visible);
    EXPECT_EQ(Cluster().attempts, 0);
}

TEST_F(SpotsPartTest, StoredListTakesThePlaceOfTheMap) {
    cluster.showsList = true;
    StartWithCluster();
    EXPECT_FALSE(MapIsShown());
    EXPECT_TRUE(Main().txtDX.State().visible);
}

TEST_F(SpotsPartTest, DoneWithoutASourceGivesTheRoomBack) {
    StartWithCluster();
    ChooseMenu(Main().mnuPacket);
    ASSERT_TRUE(SetupForm().IsActive());
    TheDesk().PostRowClick(SetupForm().List1, 0, kLeftButton);
    Click(SetupForm().cmdDone);
    EXPECT_FALSE(SetupForm().IsVisible());
    EXPECT_FALSE(MapIsShown());
    EXPECT_FALSE(Cluster().isConnected);
    SpotRecord kept;
    ASSERT_TRUE(ReadSpotRecord(files.contents.at(kSetupPath), kept));
    EXPECT_EQ(kept.type, "None");
}

TEST_F(SpotsPartTest, BandMenuDrawsTheMapOfTheBand) {
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    ChooseMenu(Main().mnu40);
    EXPECT_FALSE(Newest().visible);
    EXPECT_EQ(Main().lblFreqSpot(0).Caption(), "7.000");
    ChooseMenu(Main().mnu20);
    EXPECT_TRUE(Newest().visible);
}

TEST_F(SpotsPartTest, LabelsAgeWithoutNewPosts) {
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    for (int tick = 0; tick < 2'160; ++tick) {  // six turns of two minutes
        PassTime(333);
    }
    EXPECT_EQ(Newest().foreColor, 0xFFFFFF);
}

TEST_F(SpotsPartTest, CloseBoxKeepsTheSourceOpen) {
    StartWithCluster();
    SetupForm().Show();
    SetupForm().RequestClose();
    TheDesk().RunPending();
    EXPECT_FALSE(SetupForm().IsVisible());
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    EXPECT_TRUE(Newest().visible);
}

TEST_F(SpotsPartTest, CtrlDShowsTheSetup) {
    StartOnTime();
    Press("Ctrl+D");
    EXPECT_TRUE(SetupForm().IsActive());
    EXPECT_EQ(Fields(), "||||");
}

TEST_F(SpotsPartTest, CtrlZPreparesASpotOfTheLastContact) {
    StartWithCluster();
    Type("88aw1xx72mdc");
    Press("Enter");
    Press("Ctrl+Z");
    EXPECT_TRUE(SetupForm().IsActive());
    EXPECT_EQ(SetupForm().txtSent.Text(), "DX Frequency in kHz W1XX MDC ");
    EXPECT_EQ(SetupForm().txtSent.SelectedText(), "Frequency in kHz");
    Type("14025");
    Press("Enter");
    EXPECT_EQ(Cluster().TakeSent(), "DX 14025 W1XX MDC \r\n");
}

TEST_F(SpotsPartTest, MouseWorksAndDiscardsASpotOfTheMap) {
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    TheDesk().PostClick(Main().lblDXSpot(49), kRightButton);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
    EXPECT_TRUE(Newest().visible);
    Click(Main().lblDXSpot(49));
    EXPECT_FALSE(Newest().visible);
    EXPECT_EQ(std::get<double>(program->told.Find("SpotFreq(49)").value()), 0);
    EXPECT_EQ(std::get<std::string>(program->told.Find("SpotCall(49)").value()), "K1ABC");
}

TEST_F(SpotsPartTest, ClickOnTheMapShowsTheSetup) {
    StartWithCluster();
    Click(Main().lblDX);
    EXPECT_TRUE(SetupForm().IsActive());
}

TEST_F(SpotsPartTest, ArrowsGoThroughTheListAndEnterWorksTheRow) {
    cluster.showsList = true;
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    Arrive(PostLine("14180.0", "K2ABC", "CQ SS"));
    Main().txtDX.SetFocus();
    Press("Down");
    Press("Down");
    EXPECT_EQ(Main().txtDX.Row(), 1);
    EXPECT_EQ(Main().txtCall.Text(), "");
    EXPECT_EQ(FocusedField(), "txtDX");
    Press("Enter");
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(SpotsPartTest, ClickOnARowOfTheListWorksIt) {
    cluster.showsList = true;
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    TheDesk().PostRowClick(Main().txtDX, 0, kLeftButton);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(SpotsPartTest, SectionOfAPostIsAClickAwayFromBeingWorked) {
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ CT"));
    TheDesk().PostClick(Main().Label10(program->sections.Find("CT")), kLeftButton);
    TheDesk().RunPending();
    EXPECT_EQ(Main().txtSec.Text(), "CT");
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(SpotsPartTest, SerialOptionsAreTakenAsTheyAreClicked) {
    StartOnTime();
    SetupForm().Show();
    TheDesk().PostRowClick(SetupForm().List1, 1, kLeftButton);
    Click(SetupForm().optComm(2));
    Click(SetupForm().optBaud12);
    Click(SetupForm().optParityEven);
    Click(SetupForm().optData7);
    Click(SetupForm().optStop2);
    Click(SetupForm().Option2);
    Click(SetupForm().optPowerDTR);
    EXPECT_EQ(Part().link, (SpotRecord{.baud = "1200",
                                       .parity = "E",
                                       .dataBits = "7",
                                       .stopBits = "2",
                                       .commPort = 3,
                                       .power = "D",
                                       .type = "TNC",
                                       .handshaking = 2}));
    Click(SetupForm().Command1);
    EXPECT_TRUE(serialPorts.Line(3).isOpen);
}

TEST_F(SpotsPartTest, TncIsNotPolledWhileADialogStands) {
    SpotRecord tnc{.type = "TNC"};
    StartWithSource(tnc);
    serialPorts.Line(1).Receive(PostLine("14175.0", "K1ABC", "CQ SS") + "\n");
    int turns = 0;
    TheDesk().RunDialog([&] {
        clock.Advance(333);
        return ++turns > 5;
    });
    EXPECT_EQ(Main().txtDX.RowCount(), 0U);
    PassTime(333);
    EXPECT_EQ(Main().txtDX.RowCount(), 1U);
}

TEST_F(SpotsPartTest, EngineIsOnThisMachineUntilAnotherOneIsTyped) {
    StartOnTime();
    EXPECT_EQ(SetupForm().txtEngine.Text(), "127.0.0.1:8000");
    SetupForm().Show();
    TheDesk().PostRowClick(SetupForm().List1, 3, kLeftButton);
    TheDesk().RunPending();
    SetupForm().txtEngine.SetFocus();
    SetupForm().txtEngine.ReplaceByPaste("shack:8001");
    Click(SetupForm().txtSent);
    EXPECT_EQ(settings.Get("Machine", "AgwEngine"), "shack:8001");
    SetupForm().Unload();
    SetupForm().Load();
    EXPECT_EQ(SetupForm().txtEngine.Text(), "shack:8001");
}

TEST_F(SpotsPartTest, CommandLinesEngineGoesBeforeTheStoredOneAndIsNotStored) {
    StartOnTime();
    settings.Set("Machine", "AgwEngine", "shack:8001");
    Part().engineAddress.given = "rack:9000";
    SetupForm().Unload();
    SetupForm().Load();
    EXPECT_EQ(SetupForm().txtEngine.Text(), "rack:9000");
    SetupForm().Show();
    Click(SetupForm().cmdDone);
    EXPECT_EQ(settings.Get("Machine", "AgwEngine"), "shack:8001");
}

TEST_F(SpotsPartTest, WithoutASetupNothingOfASourceIsShown) {
    StartOnTime();
    SetupForm().Show();
    EXPECT_FALSE(SetupForm().txtTelnetHost.State().visible);
    EXPECT_FALSE(SetupForm().fraPort.State().visible);
    EXPECT_FALSE(SetupForm().Command1.State().visible);
    EXPECT_EQ(SetupForm().List1.Row(), -1);
}

TEST_F(SpotsPartTest, TerminalFollowsUnlessTheOperatorReadsAbove) {
    StartWithCluster();
    TextBox& terminal = SetupForm().txtUnProcessed;
    Arrive("first\r\nsecond\r\n");
    EXPECT_EQ(terminal.SelStart(), static_cast<int>(terminal.Text().size()) - 1);
    SetupForm().Show();
    terminal.SetFocus();
    TheDesk().RunPending();
    terminal.SetCaret(3);
    Arrive("third\r\n");
    EXPECT_EQ(terminal.SelStart(), 3);
    for (int i = 0; i < 500; ++i) {
        Arrive("a line of twenty bytes");
    }
    EXPECT_EQ(terminal.SelStart(), 0) << "what was read is gone";
    terminal.SetCaret(static_cast<int>(terminal.Text().size()) - 1);
    Arrive("last\r\n");
    EXPECT_EQ(terminal.SelStart(), static_cast<int>(terminal.Text().size()) - 1);
}

/// With a radio on port 1.
struct TuningTest : ClusterFixture {
    void StartTuning() {
        StartWithCluster();
        PickRig("Kenwood");
        Click(Rig().Command1);
        Rig().Hide();
        Arrive(PostLine("14175.0", "K1ABC", "CQ CT"));
        LetTimeGoBy(1'000);
        Line().TakeSent();
    }
    bool IsTuned() {
        LetTimeGoBy(3'000);
        return Line().TakeSent().find("FA00014175000;") != std::string::npos;
    }
};

TEST_F(TuningTest, RightClickOnTheMapTunes) {
    StartTuning();
    TheDesk().PostClick(Main().lblDXSpot(49), kRightButton);
    EXPECT_TRUE(IsTuned());
}

TEST_F(TuningTest, RightClickOnTheSpectrumTunes) {
    StartTuning();
    Part().spectrumForm.Show();
    TheDesk().PostClick(Part().spectrumForm.lblDXSpot(49), kRightButton);
    EXPECT_TRUE(IsTuned());
}

TEST_F(TuningTest, RowOfTheListTunes) {
    cluster.showsList = true;
    StartTuning();
    TheDesk().PostRowClick(Main().txtDX, 0, kLeftButton);
    EXPECT_TRUE(IsTuned());
}

TEST_F(TuningTest, SectionTunes) {
    StartTuning();
    TheDesk().PostClick(Main().Label10(program->sections.Find("CT")), kLeftButton);
    EXPECT_TRUE(IsTuned());
}

TEST_F(TuningTest, SectionOfADiscardedSpotSendsNothingToTheRadio) {
    StartTuning();
    Click(Main().lblDXSpot(49));
    TheDesk().PostClick(Main().Label10(program->sections.Find("CT")), kLeftButton);
    LetTimeGoBy(3'000);
    EXPECT_EQ(Line().TakeSent().find("FA000"), std::string::npos);
    EXPECT_EQ(Main().txtCall.Text(), "K1ABC");
}

TEST_F(SpotsPartTest, SpotThrownOffOneMapIsThrownOffBoth) {
    StartWithCluster();
    Arrive(PostLine("14175.0", "K1ABC", "CQ SS"));
    Part().spectrumForm.Show();
    TheDesk().RunPending();
    ASSERT_TRUE(Part().spectrumForm.lblDXSpot(49).State().visible);
    Click(Part().spectrumForm.lblDXSpot(49));
    EXPECT_FALSE(Newest().visible);
    Arrive(PostLine("14176.0", "K2ABC", "CQ SS"));
    Click(Main().lblDXSpot(49));
    EXPECT_FALSE(Part().spectrumForm.lblDXSpot(49).State().visible);
}

TEST_F(SpotsPartTest, SpotLastWithoutAContactAsksForTheFrequency) {
    StartWithCluster();
    Press("Ctrl+Z");
    EXPECT_EQ(SetupForm().txtSent.Text(), "DX Frequency in kHz   ");
    EXPECT_EQ(SetupForm().txtSent.SelectedText(), "Frequency in kHz");
    EXPECT_TRUE(SetupForm().txtSent.HasFocus());
}

TEST_F(SpotsPartTest, PortsTellTheirDevicesWhereTheyAreChosen) {
    StartOnTime();
    SetupForm().Show();
    TheDesk().RunPending();
    EXPECT_EQ(SetupForm().optComm(0).State().toolTip, PortToolTip(serialPorts.MeaningOf(1)));
}

}  // namespace
}  // namespace tallyhut
