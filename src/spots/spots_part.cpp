#include "spots/spots_part.h"

#include <numeric>

#include "spots/spot_line.h"
#include "support/port_texts.h"

namespace tallyhut {
namespace {

constexpr std::string_view kNoSpots = "No spots";

}  // namespace

SpotsPart::SpotsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig)
    : form{desk},
      spectrumForm{desk},
      comm{machine.serialPorts.NewPort()},
      socket{machine.tcpSockets.NewSocket()},
      engine{machine.tcpSockets, machine.clock},
      transports{form, *comm, *socket, engine, desk, log.contest.preferences, link},
      setup{form, transports, link, {machine.files, support.directories}, log.contest.log},
      engineAddress{form, machine.settings, machine.agwEngine},
      clusterSettings{form, machine.settings},
      clusterNodes{form, machine.settings},
      clusterPassword{form, machine.keyring},
      posts{log.panel, log.contest, log.display.grid, log.prompts, table},
      bandMap{log.panel, log.contest, table, posts, rig.rigCommands},
      spectrum{spectrumForm, log.panel, log.contest, table, rig.rigCommands},
      sectionSpots{log.panel, log.contest, table, rig.rigCommands},
      mapKeys{log.form1.lblDX, kNoSpots, MapKeys(log.form1)},
      spectrumKeys{spectrumForm.lblSpot, kNoSpots, SpectrumKeys()},
      sectionKeys{log.form1.lblSecWkd, "", SectionKeys(log)},
      arrived_{desk, socket->EventDescriptor(), [this] { transports.Socket_Arrived(); }},
      keyringArrived_{desk, machine.keyring.EventDescriptor(), [this] { clusterPassword.Keyring_Arrived(); }} {
    Bind(log, machine.serialPorts);
}

void SpotsPart::Bind(LogPart& log, const SerialPorts& ports) {
    BindForm(ports);
    BindCluster();
    BindSerialOptions();
    BindSpots(log.form1);
    BindSpectrum(log.form1);
    setup.savePref = [&log] { log.preferencesFile.SavePref(); };
    setup.PacketResize = [this] { PacketResize(); };
    log.band.bandChanged = [this] { bandMap.DisplayBandMapLabels(); };
    log.display.counted = [this] { TakeFilter(); };
    transports.received = [this](std::string_view post) { Take(post); };
    transports.login.received = [this](std::string_view post) { Take(post); };
    transports.login.passwordsNode = [this] { return clusterPassword.Node(); };
    transports.login.moreWaits = [this] { arrived_.Signal(); };
    transports.age = [this] { bandMap.DisplayBandMapLabels(); };
    posts.drawMaps = [this] {
        mapKeys.TakeShift();
        spectrumKeys.TakeShift();
        DrawMaps();
    };
    posts.listChanged = [this] { bandMap.ShowList(); };
}

void SpotsPart::BindForm(const SerialPorts& ports) {
    form.Form_Load = [this] {
        engineAddress.Show();
        clusterSettings.Show();
        clusterNodes.Show();
        TakeFilter();
        setup.Form_Load();
        clusterPassword.Show();
        LookForKeyring();
    };
    form.Form_Activate = [this, &ports] {
        SetPortToolTips(form.optComm, ports);
        LookForKeyring();
    };
    form.Form_QueryUnload = [this](bool& Cancel) {
        Cancel = true;  // the source stays open, as by Done
        form.Hide();
    };
    form.Form_Unload = [this] { transports.Form_Unload(); };
    form.Form_KeyDown = [this](int& KeyCode, int Shift) { transports.Form_KeyDown(KeyCode, Shift); };
    form.Timer1.Elapsed = [this] { transports.Timer1_Timer(); };
    form.List1.Click = [this] {
        setup.List1_Click();
        LookForKeyring();
    };
    form.txtSent.KeyPress = [this](int& KeyAscii) { transports.txtSent_KeyPress(KeyAscii); };
    form.txtSent.Change = [this] { transports.txtSent_Change(); };
    form.txtEngine.LostFocus = [this] { engineAddress.Store(); };
    form.Command1.Click = [this] {
        StoreCluster();
        transports.Command1_Click();
    };
    form.Command2.Click = [this] { transports.Command2_Click(); };
    form.Command3.Click = [this] { setup.Command3_Click(); };
    form.cmdDone.Click = [this] {
        engineAddress.Store();
        StoreCluster();
        setup.cmdDone_Click();
    };
}

void SpotsPart::BindCluster() {
    for (TextBox* field :
         {&form.txtTelnetHost, &form.txtTelnetPort, &form.txtLogin, &form.txtPassword, &form.txtLoginSend}) {
        field->LostFocus = [this] { StoreCluster(); };
    }
    form.chkLogin.Click = [this] { clusterSettings.Store(); };
    for (CheckBox* box : {&form.chkNeededOnly, &form.chkNearOnly}) {
        box->Click = [this] {
            clusterSettings.Store();
            TakeFilter();
        };
    }
    form.chkKeepPassword.Click = [this] {
        if (!clusterSettings.loading) {
            clusterSettings.Store();
            clusterPassword.chkKeepPassword_Click();
        }
    };
    form.txtPassword.Change = [this] { clusterPassword.txtPassword_Change(); };
    form.lstNodes.Click = [this] { clusterNodes.lstNodes_Click(); };
    form.cmdAddNode.Click = [this] { clusterNodes.cmdAddNode_Click(); };
    form.cmdRemoveNode.Click = [this] { clusterNodes.cmdRemoveNode_Click(); };
    clusterNodes.picked = [this] { clusterPassword.TakeOtherNode(); };
    clusterPassword.fetched = [this] { transports.login.PasswordIsThere(); };
}

void SpotsPart::StoreCluster() {
    clusterSettings.Store();
    clusterPassword.Store();
}

/// Nobody is asked about keyrings who has nothing to do with clusters.
void SpotsPart::LookForKeyring() {
    if (link.type == kTelnet && (form.IsVisible() || form.chkKeepPassword.Value())) {
        clusterPassword.LookForKeyring();
    }
}

/// All options but the two in the frame of the main form's display.
void SpotsPart::BindSerialOptions() {
    for (Control* control : form.Controls()) {
        if (control->kind == ControlKind::Option && control->Frame() != &form.Frame2) {
            control->Click = [this] { setup.TakeSerialOptions(); };
        }
    }
}

void SpotsPart::BindSpots(Form1& form1) {
    form1.mnuPacket.Click = [this] { form.Show(); };
    form1.lblDX.Click = [this] { form.Show(); };
    // Arrows that go through the list must not tune the radio: a row is worked by a click or by Enter.
    form1.txtDX.MouseUp = [this](MouseButton Button) {
        if (Button == kLeftButton) {
            bandMap.txtDX_Click();
        }
    };
    form1.txtDX.KeyPress = [this](int& KeyAscii) {
        if (KeyAscii == kKeyEnter) {
            bandMap.txtDX_Click();
        }
    };
    for (int i = form1.lblDXSpot.First(); i <= form1.lblDXSpot.Last(); ++i) {
        form1.lblDXSpot(i).MouseDown = [this, i](MouseButton Button) { PressOnMap(i, Button); };
        form1.lblDXSpot(i).MouseMove = [this, i] { bandMap.lblDXSpot_MouseMove(i); };
    }
    for (int i = form1.Label10.First(); i <= form1.Label10.Last(); ++i) {
        form1.Label10(i).MouseDown = [this, i](MouseButton /*Button*/) { sectionSpots.Label10_MouseDown(i); };
        form1.Label10(i).MouseMove = [this, i] { sectionSpots.Label10_MouseMove(i); };
    }
}

void SpotsPart::BindSpectrum(Form1& form1) {
    for (Control* opens : {static_cast<Control*>(&form1.lblDX), static_cast<Control*>(&form1.txtDX)}) {
        opens->DblClick = [this] { spectrumForm.Show(); };
    }
    form1.mnuViewSpectrumMap.Click = [this] { spectrumForm.Show(); };
    spectrumForm.Form_Activate = [this] { spectrum.BandMapLabelDisplay(); };
    spectrumForm.Form_QueryUnload = [this](bool& Cancel) {
        Cancel = true;
        spectrumForm.Hide();
    };
    spectrumForm.Form_KeyPress = [this](int& KeyAscii) {
        if (KeyAscii == kKeyEsc) {
            spectrumForm.Hide();
        }
    };
    for (int i = spectrumForm.lblDXSpot.First(); i <= spectrumForm.lblDXSpot.Last(); ++i) {
        spectrumForm.lblDXSpot(i).MouseDown = [this, i](MouseButton Button) { PressOnSpectrum(i, Button); };
        spectrumForm.lblDXSpot(i).MouseMove = [this, i] { spectrum.lblDXSpot_MouseMove(i); };
    }
}

LabelWalk::Outlets SpotsPart::MapKeys(Form1& form1) {
    return {
        .lines = [this] { return std::vector<std::vector<int>>{bandMap.RowsShown()}; },
        .label = [&form1](int row) -> Label& { return form1.lblDXSpot(row); },
        .hover = [this](int row) { bandMap.lblDXSpot_MouseMove(row); },
        .words = [&form1](int row) { return form1.lblDXSpot(row).State().toolTip; },
        .press = [this](int row, MouseButton button) { PressOnMap(row, button); },
    };
}

LabelWalk::Outlets SpotsPart::SpectrumKeys() {
    return {
        .lines = [this] { return spectrum.RowsShown(); },
        .label = [this](int row) -> Label& { return spectrumForm.lblDXSpot(row); },
        .hover = [this](int row) { spectrum.lblDXSpot_MouseMove(row); },
        .words = [this](int row) { return spectrumForm.lblDXSpot(row).State().toolTip; },
        .press = [this](int row, MouseButton button) { PressOnSpectrum(row, button); },
    };
}

/// A section is worked by either button, and none can be thrown away.
LabelWalk::Outlets SpotsPart::SectionKeys(LogPart& log) {
    return {
        .lines =
            [&log] {
                std::vector<int> sections(static_cast<std::size_t>(log.contest.sections.gSectionCount));
                std::iota(sections.begin(), sections.end(), log.form1.Label10.First());
                return std::vector<std::vector<int>>{sections};
            },
        .label = [&log](int section) -> Label& { return log.form1.Label10(section); },
        .hover = [this](int section) { sectionSpots.Label10_MouseMove(section); },
        .words = [&log](int /*section*/) { return log.form1.lblDupe.Caption(); },
        .press =
            [this](int section, MouseButton button) {
                if (button == kRightButton) {
                    sectionSpots.Label10_MouseDown(section);
                }
            },
    };
}

/// What is thrown off one map is thrown off both.
void SpotsPart::PressOnMap(int row, MouseButton button) {
    bandMap.lblDXSpot_MouseDown(row, button);
    DrawSpectrum();
}

void SpotsPart::PressOnSpectrum(int row, MouseButton button) {
    spectrum.lblDXSpot_MouseDown(row, button);
    bandMap.DisplayBandMapLabels();
}

void SpotsPart::DrawSpectrum() {
    if (spectrumForm.IsVisible()) {
        spectrum.BandMapLabelDisplay();
    }
}

void SpotsPart::DrawMaps() {
    bandMap.DisplayBandMapLabels();
    DrawSpectrum();
}

void SpotsPart::TakeFilter() {
    SpotFilter filter{form, posts.contest};
    if (filter != bandMap.filter) {
        bandMap.filter = filter;
        spectrum.filter = std::move(filter);
        DrawMaps();
        bandMap.ShowList();
    }
}

void SpotsPart::Take(std::string_view post) {
    const PostColumns columns = ColumnsOf(post);
    posts.BandMapSpots(columns.call, columns.frequency, PostOf(post));
}

void SpotsPart::OpenSource() {
    form.Load();
}

void SpotsPart::PacketResize() {
    const SpotDisplay chosen = form.OptList.Value() ? SpotDisplay::List : SpotDisplay::Map;
    bandMap.PacketResize(link.type == kNoSource ? SpotDisplay::None : chosen);
}

void SpotsPart::AddTo(ToldNames& told) const {
    const auto add = [this, &told](const char* name, auto column) {
        told.AddTable(name, [this, column](int row) {
            const bool isRow = row >= 0 && row < SpotTable::kRows;
            return isRow ? std::optional{ToldNames::Told(table.Row(row).*column)} : std::nullopt;
        });
    };
    add("SpotCall", &Spot::SpotCall);
    add("SpotFreq", &Spot::SpotFreq);
    add("SpotTime", &Spot::SpotTime);
    add("SpotPrefix", &Spot::SpotPrefix);
    add("SpotText", &Spot::SpotText);
    told.AddTable("SpotStatus", [this](int row) {
        const bool isRow = row >= 0 && row < SpotTable::kRows;
        return isRow ? std::optional{ToldNames::Told(row == SpotTable::kNewest ? table.SpotStatus : std::string{})}
                     : std::nullopt;
    });
}

}  // namespace tallyhut
