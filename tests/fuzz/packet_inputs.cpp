#include "tests/fuzz/packet_inputs.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/agw_engine.h"
#include "platform/sim/clock.h"
#include "platform/sim/tcp_socket.h"
#include "spots/terminal_text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLongestCall = 10;
constexpr std::string_view kKinds = "cdDUIST";

/// Everything that is delivered, and at the end what comes of a request that needs the links.
std::vector<AgwFrame> FramesOf(std::string_view bytes, std::size_t piece) {
    sim::Clock clock{DateTime{}};
    sim::EventPump pump{clock};
    sim::TcpSockets sockets{pump};
    AgwEngine engine{sockets, clock};
    sim::TcpPeer& peer = sockets.Peer(0);
    peer.accepts = true;
    engine.AGWStartPoll("engine", 8000, "W1AW");
    std::vector<AgwFrame> frames;
    const auto take = [&] {
        // One look takes a bounded part: what is still readable has its turn.
        for (AgwFrame frame; engine.AGWGetData(frame) || pump.readable.contains(peer.descriptor); frame = {}) {
            if (frame.kind != '\0') {
                frames.push_back(frame);
            }
        }
    };
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size()))) {
        peer.Arrive(bytes.substr(0, piece));
        take();
    }
    engine.AGWPutData("Q7ZZQ", "data", 'D');
    return frames;
}

bool IsWhole(const AgwFrame& frame) {
    return frame.call.size() <= kLongestCall && frame.call.find('\0') == std::string::npos &&
           frame.data.size() <= AgwEngine::kLongestData && kKinds.find(frame.kind) != std::string_view::npos;
}

bool IsShown(const AgwFrame& frame) {
    return std::ranges::all_of(std::vector{true, false}, [&frame](bool isMonitoring) {
        const FrameTexts texts = TextsOf(frame.kind, frame.call, frame.data, isMonitoring);
        return texts.plain.size() <= 2 * frame.data.size() && texts.full.size() >= frame.data.size();
    });
}

bool IsSame(const AgwFrame& one, const AgwFrame& other) {
    return one.kind == other.kind && one.call == other.call && one.data == other.data;
}

}  // namespace

bool TakesPacketInput(std::string_view bytes) {
    constexpr std::size_t kMostPieces = 1'000;
    const std::size_t piece = std::max<std::size_t>(bytes.size() / kMostPieces, 7);
    const std::vector<AgwFrame> frames = FramesOf(bytes, bytes.size());
    return std::ranges::equal(frames, FramesOf(bytes, piece), IsSame) && std::ranges::all_of(frames, IsWhole) &&
           std::ranges::all_of(frames, IsShown);
}

}  // namespace tallyhut
