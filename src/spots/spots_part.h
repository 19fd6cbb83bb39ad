#pragma once

#include <memory>

#include "log/log_part.h"
#include "rig/rig_part.h"
#include "spots/band_map.h"
#include "spots/cluster_nodes.h"
#include "spots/cluster_password.h"
#include "spots/cluster_settings.h"
#include "spots/engine_address.h"
#include "spots/hf_spectrum.h"
#include "spots/label_walk.h"
#include "spots/section_spots.h"
#include "spots/spot_posts.h"
#include "spots/spot_setup.h"
#include "spots/spot_table.h"
#include "spots/spot_transports.h"

namespace tallyhut {

/// DX spots: the wires that they come over, the table of them, and what the main form shows of it.
struct SpotsPart {
    SpotsPart(Machine& machine, Desk& desk, SupportPart& support, LogPart& log, RigPart& rig);

    PacketSpotfrm form;
    SpectrumMap spectrumForm;

    std::unique_ptr<SerialPort> comm;
    std::unique_ptr<TcpSocket> socket;
    AgwEngine engine;
    SpotRecord link;
    SpotTransports transports;
    SpotSetup setup;
    EngineAddress engineAddress;
    ClusterSettings clusterSettings;
    ClusterNodes clusterNodes;
    ClusterPassword clusterPassword;

    SpotTable table;
    SpotPosts posts;
    BandMap bandMap;
    HfSpectrum spectrum;
    SectionSpots sectionSpots;
    LabelWalk mapKeys;
    LabelWalk spectrumKeys;
    LabelWalk sectionKeys;

    /// What the start does: the form is loaded, hidden, and the source that was open last is opened anew.
    void OpenSource();
    /// The map or the list has its room on the main form as long as a source is chosen.
    void PacketResize();

    void AddTo(ToldNames& told) const;

private:
    void Bind(LogPart& log, const SerialPorts& ports);
    void BindForm(const SerialPorts& ports);
    void BindCluster();
    void BindSerialOptions();
    void BindSpots(Form1& form1);
    void BindSpectrum(Form1& form1);
    void DrawMaps();
    /// What is needed has changed, or what the operator wants to see.
    void TakeFilter();
    void StoreCluster();
    void LookForKeyring();
    void DrawSpectrum();
    void PressOnMap(int row, MouseButton button);
    void PressOnSpectrum(int row, MouseButton button);
    LabelWalk::Outlets MapKeys(Form1& form1);
    LabelWalk::Outlets SpectrumKeys();
    LabelWalk::Outlets SectionKeys(LogPart& log);
    void Take(std::string_view post);

    IoSource arrived_;  ///< of the socket, and gone before it
    IoSource keyringArrived_;
};

}  // namespace tallyhut
