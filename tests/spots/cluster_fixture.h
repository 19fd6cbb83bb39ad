#pragma once

#include "spots/spots_part.h"
#include "tests/rig/rig_fixture.h"
#include "tests/spots/spots_fixture.h"

namespace tallyhut {

inline constexpr const char* kSetupPath = "/contest/PackSpot.txt";

/// A post as a cluster sends it.
inline std::string PostLine(std::string_view frequency, std::string_view call, std::string_view comment) {
    return "DX " + Comment(frequency, call, comment) + "\r\n";
}

/// The whole program, with a source of spots in its settings.
struct ClusterFixture : RigFixture {
    SpotRecord cluster{.type = "Telnet", .telnetPort = "7300", .telnetHost = "cluster"};

    SpotsPart& Part() { return program->spotsPart; }
    PacketSpotfrm& SetupForm() { return Part().form; }
    sim::TcpPeer& Cluster() { return tcpSockets.Peer(0); }

    void StartWithSource(const SpotRecord& record, std::string_view band = "20") {
        files.Put(kSetupPath, WriteSpotRecord(record));
        stored.gOwnCall = "W1AW";
        stored.gBand = band;
        StartOnTime();
    }
    void StartWithCluster(std::string_view band = "20") {
        StartWithSource(cluster, band);
        Cluster().Accept();
        TheDesk().RunPending();
    }
    void Arrive(std::string_view chunk) {
        Cluster().Arrive(chunk);
        TheDesk().RunPending();
    }
    const ControlState& Newest() { return Main().lblDXSpot(49).State(); }
    bool MapIsShown() { return Main().lblDX.State().visible; }
};

}  // namespace tallyhut
