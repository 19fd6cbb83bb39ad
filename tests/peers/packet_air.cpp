#include "tests/peers/packet_air.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace tallyhut {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kSlice = 10ms;
constexpr std::size_t kSliceBytes = 882;  // of 44,100 samples of 16 bits a second
constexpr auto kPatience = 30s;
constexpr int kFirstPort = 10'000;
constexpr int kPorts = 20'000;

// The head of a frame of the engine's interface.
constexpr std::size_t kHeadLength = 36;
constexpr std::size_t kKindAt = 4;
constexpr std::size_t kPidAt = 6;
constexpr std::size_t kFromAt = 8;
constexpr std::size_t kToAt = 18;
constexpr std::size_t kLengthAt = 28;

sockaddr_in OnThisMachine(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
}

const sockaddr* Any(const sockaddr_in& address) {
    return reinterpret_cast<const sockaddr*>(&address);  // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

bool IsFree(int type, int port) {
    const Descriptor tried{socket(AF_INET, type | SOCK_CLOEXEC, 0)};
    const sockaddr_in address = OnThisMachine(port);
    return bind(tried.Number(), Any(address), sizeof address) == 0;
}

[[noreturn]] void BecomeEngine(const std::string& home) {
    const int log = open((home + "/log").c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    dup2(nothing, 0);
    dup2(log, 1);
    dup2(log, 2);
    setenv("HOME", home.c_str(), 1);
    execlp("direwolf", "direwolf", "-c", (home + "/conf").c_str(), "-t", "0", nullptr);
    _exit(127);
}

}  // namespace

PacketAir::PacketAir(const std::string& folder) : nextPort_{kFirstPort + getpid() % kPorts} {
    for (std::size_t i = 0; i < engines_.size(); ++i) {
        Begin(engines_.at(i), folder + "/engine" + std::to_string(i));
    }
    air_ = std::thread{[this] { Carry(); }};
}

PacketAir::~PacketAir() {
    over_ = true;
    air_.join();
    Stop(0);
    Stop(1);
}

/// The engine takes none beyond 49151, so the system's own choice will not do.
int PacketAir::FreePort(int type) {
    while (!IsFree(type, nextPort_)) {
        ++nextPort_;
    }
    return nextPort_++;
}

/// The system's sound writes what is transmitted to a file, which is a pipe here. The engines are patient and speak the
/// older protocol: on a busy machine the newer one's repeats cross for ever.
void PacketAir::Begin(Engine& engine, const std::string& home) {
    std::filesystem::create_directories(home);
    const std::string pipe = home + "/transmitted";
    mkfifo(pipe.c_str(), 0600);
    engine.transmitted = Descriptor{open(pipe.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC)};
    engine.clients = FreePort(SOCK_STREAM);
    engine.ears = FreePort(SOCK_DGRAM);
    std::ofstream{home + "/.asoundrc"} << "pcm.air { type file slave.pcm \"null\" file \"" << pipe
                                       << "\" format \"raw\" }\n";
    std::ofstream{home + "/conf"} << "ADEVICE UDP:" << engine.ears
                                  << " air\nARATE 44100\nACHANNELS 1\nCHANNEL 0\nMYCALL N0CALL\nMODEM 1200\n"
                                     "TXDELAY 10\nTXTAIL 5\nDWAIT 0\nFRACK 8\nMAXV22 0\nAGWPORT "
                                  << engine.clients << "\nKISSPORT 0\n";
    engine.process = fork();
    if (engine.process == 0) {
        BecomeEngine(home);
    }
}

void PacketAir::Carry() {
    const Descriptor sender{socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
    Clock::time_point next = Clock::now();
    while (!over_) {
        for (Engine& engine : engines_) {
            std::array<char, 65'536> block{};
            const ssize_t count = read(engine.transmitted.Number(), block.data(), block.size());
            engine.onTheWay.append(block.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
        }
        for (std::size_t i = 0; i < engines_.size(); ++i) {
            std::string& other = engines_.at(1 - i).onTheWay;
            std::string heard = other.substr(0, kSliceBytes);
            other.erase(0, heard.size());
            heard.resize(kSliceBytes);
            const sockaddr_in ears = OnThisMachine(engines_.at(i).ears);
            sendto(sender.Number(), heard.data(), heard.size(), 0, Any(ears), sizeof ears);
        }
        std::this_thread::sleep_until(next += kSlice);
    }
}

void PacketAir::Stop(int engine) {
    pid_t& process = engines_.at(static_cast<std::size_t>(engine)).process;
    if (process > 0) {
        kill(process, SIGTERM);
        waitpid(process, nullptr, 0);
    }
    process = -1;
}

PacketStation::PacketStation(int port, std::string call) : call_{std::move(call)} {
    const sockaddr_in address = OnThisMachine(port);
    const auto deadline = Clock::now() + kPatience;
    do {
        engine_ = Descriptor{socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
        if (connect(engine_.Number(), Any(address), sizeof address) == 0) {
            Send('X', "");
            return;
        }
        std::this_thread::sleep_for(kSlice);
    } while (Clock::now() < deadline);
    throw std::runtime_error("the packet engine takes no clients");
}

void PacketStation::Send(char kind, const std::string& to, const std::string& data) const {
    std::string frame(kHeadLength, '\0');
    frame[kKindAt] = kind;
    frame[kPidAt] = kind == 'D' || kind == 'M' ? '\xF0' : '\0';
    frame.replace(kFromAt, call_.size(), call_);
    frame.replace(kToAt, to.size(), to);
    frame[kLengthAt] = static_cast<char>(data.size());  // nobody says more than a line
    frame += data;
    if (send(engine_.Number(), frame.data(), frame.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(frame.size())) {
        throw std::runtime_error("the packet engine has gone");
    }
}

bool PacketStation::Read(std::string& bytes, std::size_t count) {
    bytes.clear();
    while (bytes.size() < count) {
        pollfd ready{.fd = engine_.Number(), .events = POLLIN, .revents = 0};
        std::array<char, 512> block{};
        if (poll(&ready, 1, static_cast<int>(std::chrono::milliseconds{kPatience}.count())) <= 0) {
            return false;
        }
        const ssize_t taken =
            recv(engine_.Number(), block.data(), std::min(block.size(), count - bytes.size()), MSG_NOSIGNAL);
        if (taken <= 0) {
            return false;
        }
        bytes.append(block.data(), static_cast<std::size_t>(taken));
    }
    return true;
}

std::string PacketStation::Next(char kind) {
    std::string head;
    std::string data;
    while (Read(head, kHeadLength)) {
        const auto length =
            static_cast<unsigned char>(head[kLengthAt]) + 256U * static_cast<unsigned char>(head[kLengthAt + 1]);
        if (!Read(data, length)) {
            break;
        }
        if (head[kKindAt] == kind) {
            return data;
        }
    }
    return "(nothing)";
}

}  // namespace tallyhut
