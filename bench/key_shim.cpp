// Loaded in front of the system's own ioctl (LD_PRELOAD): writes down what is done to the lines DTR and RTS into the
// file named by KEY_LOG, and makes a pseudo terminal have these lines.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <ctime>

#include "bench/key_record.h"

namespace tallyhut {
namespace {

constexpr int kMostFiles = 1'024;

std::array<int, kMostFiles> gLines{};  // that are up, by open file

KeyLog* Mapped() {
    const char* path = std::getenv("KEY_LOG");
    const int file = path != nullptr ? open(path, O_RDWR | O_CREAT | O_CLOEXEC, 0644) : -1;
    if (file < 0 || ftruncate(file, sizeof(KeyLog)) != 0) {
        return nullptr;
    }
    void* memory = mmap(nullptr, sizeof(KeyLog), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE, file, 0);
    close(file);
    return memory == MAP_FAILED ? nullptr : static_cast<KeyLog*>(memory);
}

KeyLog* const gLog = Mapped();

void Note(int lines, bool on) {
    if (gLog == nullptr || lines == 0) {
        return;
    }
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    const std::uint64_t at = gLog->count.fetch_add(1);
    if (at < KeyLog::kMost) {
        gLog->records[at] = {.nanoseconds = now.tv_sec * 1'000'000'000 + now.tv_nsec, .lines = lines, .on = on ? 1 : 0};
    }
}

void Set(int descriptor, int lines) {
    int& former = gLines.at(static_cast<std::size_t>(descriptor));
    Note(lines & ~former & (TIOCM_DTR | TIOCM_RTS), true);
    Note(former & ~lines & (TIOCM_DTR | TIOCM_RTS), false);
    former = lines;
}

bool ConcernsLines(unsigned long request) {
    return request == TIOCMGET || request == TIOCMSET || request == TIOCMBIS || request == TIOCMBIC;
}

/// What a device does that has the lines.
void Answer(int descriptor, unsigned long request, int* lines) {
    const int former = gLines.at(static_cast<std::size_t>(descriptor));
    switch (request) {
        case TIOCMGET:
            *lines = former;
            break;
        case TIOCMBIS:
            Set(descriptor, former | *lines);
            break;
        case TIOCMBIC:
            Set(descriptor, former & ~*lines);
            break;
        default:
            Set(descriptor, *lines);
            break;
    }
}

}  // namespace
}  // namespace tallyhut

extern "C" int ioctl(int descriptor, unsigned long request, ...) noexcept {
    using Call = int (*)(int, unsigned long, ...);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym gives is meant so
    static const auto system = reinterpret_cast<Call>(dlsym(RTLD_NEXT, "ioctl"));
    std::va_list arguments;
    va_start(arguments, request);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    const int result = system(descriptor, request, argument);
    const bool isTaken = result == 0 || (errno == ENOTTY && isatty(descriptor) == 1);
    if (!tallyhut::ConcernsLines(request) || !isTaken || descriptor >= tallyhut::kMostFiles) {
        return result;
    }
    tallyhut::Answer(descriptor, request, static_cast<int*>(argument));
    return 0;
}
