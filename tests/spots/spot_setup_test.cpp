#include "spots/spot_setup.h"

#include <gtest/gtest.h>

#include "platform/sim/machine.h"

namespace tallyhut {
namespace {

constexpr const char* kPath = "/contest/PackSpot.txt";

struct SpotSetupTest : testing::Test {
    sim::Machine machine{DateTime{}};
    Desk desk{machine.clock, machine.pump, machine.dialogs, machine.clipboard};
    PacketSpotfrm form{desk};
    std::unique_ptr<SerialPort> comm = machine.serialPorts.NewPort();
    std::unique_ptr<TcpSocket> socket = machine.tcpSockets.NewSocket();
    AgwEngine engine{machine.tcpSockets, machine.clock};
    Preferences preferences;
    SpotRecord link;
    SpotTransports transports{form, *comm, *socket, engine, desk, preferences, link};
    Directories directories{.WorkingDirectory = "/contest", .DataDirectory = "", .SharedDirectory = ""};
    ContactLog contacts;
    SpotSetup setup{form, transports, link, {machine.files, directories}, contacts};

    SpotSetupTest() {
        form.List1.Click = [this] { setup.List1_Click(); };
        form.Form_Load = [this] { setup.Form_Load(); };
    }
    void Stored(const SpotRecord& record) { machine.files.contents[kPath] = WriteSpotRecord(record); }
    bool IsShown(std::string_view name) const { return form.Find(name)->IsShown(); }
};

TEST_F(SpotSetupTest, WithoutAFileNothingIsChosen) {
    form.Load();
    EXPECT_EQ(form.List1.Row(), -1);
    EXPECT_TRUE(form.OptBand.Value());
    EXPECT_FALSE(form.Label4.State().visible);
}

TEST_F(SpotSetupTest, StoredSourceOpensAndTheBoxStandsUnset) {
    Stored({.type = "tELNET", .listsDxOnly = 1, .showsList = true, .telnetPort = "7300", .telnetHost = "cluster"});
    form.Load();
    EXPECT_EQ(link.type, "Telnet");
    EXPECT_EQ(form.List1.Row(), 2);
    EXPECT_EQ(machine.tcpSockets.Peer(0).host, "cluster");
    EXPECT_TRUE(form.Label4.State().visible);
    EXPECT_TRUE(form.OptList.Value());
    EXPECT_FALSE(form.chkDX.Value());
}

TEST_F(SpotSetupTest, ChoicesOfFewerSpotsStandFreeForEachSource) {
    form.Load();
    for (int source = 1; source <= 3; ++source) {
        form.List1.SelectRow(source);
        for (const CheckBox* box : {&form.chkNeededOnly, &form.chkNearOnly}) {
            const Place& place = box->State().place;
            EXPECT_LE(place.top + place.height, form.design.height);
            for (const Control* other : form.Controls()) {
                const Place& there = other->State().place;
                const bool isBeside = there.left >= place.left + place.width || place.left >= there.left + there.width;
                const bool isApart = there.top >= place.top + place.height || place.top >= there.top + there.height;
                EXPECT_TRUE(other == box || !other->IsShown() || other->kind == ControlKind::Timer || isBeside ||
                            isApart)
                    << box->name << ' ' << other->FullName() << ' ' << source;
            }
        }
    }
}

TEST_F(SpotSetupTest, EachSourceShowsItsControls) {
    form.Load();
    form.List1.SelectRow(0);
    EXPECT_FALSE(IsShown("txtSent"));
    EXPECT_TRUE(IsShown("Command3"));
    EXPECT_TRUE(IsShown("Label5"));
    form.List1.SelectRow(1);
    EXPECT_TRUE(IsShown("optComm(9)"));
    EXPECT_TRUE(IsShown("txtHex"));
    EXPECT_FALSE(IsShown("txtTelnetHost"));
    EXPECT_FALSE(IsShown("chkConvToHex"));
    EXPECT_EQ(form.Label6.Caption(), "Send text  (Ctrl C or Esc for TNC Command mode):");
    form.List1.SelectRow(2);
    EXPECT_FALSE(IsShown("optComm(9)"));
    EXPECT_TRUE(IsShown("txtTelnetPort"));
    EXPECT_EQ(form.Label6.Caption(), "Type text to send and press enter:");
    form.List1.SelectRow(3);
    EXPECT_FALSE(IsShown("txtTelnetPort"));
    EXPECT_TRUE(IsShown("txtEngine"));
    EXPECT_EQ(form.Label6.Caption(), "Send text (use : to send cmds such as :C Q7ZZQ or :D)");
}

TEST_F(SpotSetupTest, AnotherSourceClosesTheOpenOne) {
    Stored({.type = "TNC"});
    form.Load();
    EXPECT_TRUE(machine.serialPorts.Line(1).isOpen);
    form.chkDX.SetValue(true);
    form.List1.SelectRow(0);
    EXPECT_FALSE(machine.serialPorts.Line(1).isOpen);
    EXPECT_FALSE(form.chkDX.Value());
    EXPECT_FALSE(form.Timer1.Enabled());
}

TEST_F(SpotSetupTest, ChoosingTheTncSetsItsDefaults) {
    Stored({.baud = "1200", .parity = "E", .dataBits = "7", .stopBits = "2", .handshaking = 1});
    form.Load();
    EXPECT_TRUE(form.optBaud12.Value());
    form.List1.SelectRow(1);
    EXPECT_TRUE(form.optBaud96.Value());
    EXPECT_TRUE(form.Option3.Value());
    EXPECT_EQ(link.baud, "9600");
    EXPECT_EQ(link.parity, "N");
    EXPECT_EQ(link.handshaking, 3);
}

TEST_F(SpotSetupTest, DoneOpensStoresAndHides) {
    form.Load();
    form.Show();
    form.List1.SelectRow(1);
    form.optComm(1).SetValue(true);
    int saved = 0;
    setup.savePref = [&saved] { ++saved; };
    setup.cmdDone_Click();
    EXPECT_EQ(saved, 1);
    EXPECT_TRUE(machine.serialPorts.Line(2).isOpen);
    EXPECT_FALSE(form.IsVisible());
    SpotRecord stored;
    ASSERT_TRUE(ReadSpotRecord(machine.files.contents[kPath], stored));
    EXPECT_EQ(stored, link);
    EXPECT_EQ(stored.commPort, 2);
}

TEST_F(SpotSetupTest, LastContactIsSpottedAtItsFrequency) {
    form.Load();
    form.List1.SelectRow(2);
    form.Show();
    Contact last;
    last.Call = "Q5XX";
    last.Sec = "MDC";
    last.Frq = "14.0255";
    contacts.Add(last);
    setup.Command3_Click();
    EXPECT_EQ(form.txtSent.Text(), "DX 14025.5 Q5XX MDC ");
    EXPECT_EQ(form.txtSent.SelStart(), 20);
    contacts.Change(1, [](Contact& contact) { contact.Frq = ""; });
    setup.Command3_Click();
    EXPECT_EQ(form.txtSent.Text(), "DX Frequency in kHz Q5XX MDC ");
    EXPECT_EQ(form.txtSent.SelectedText(), "Frequency in kHz");
    EXPECT_TRUE(form.txtSent.HasFocus());
}

}  // namespace
}  // namespace tallyhut
