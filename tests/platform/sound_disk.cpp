#include "tests/platform/sound_disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

namespace tallyhut {

SoundDisk::SoundDisk(Pace pace) {
    constexpr int kRoom = 1 << 20;
    const int made = mkfifo(path.c_str(), 0600);
    heard_ = Descriptor{open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)};
    if (made != 0 || !heard_.IsOpen()) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    fcntl(heard_.Number(), F_SETPIPE_SZ, kRoom);
    std::signal(SIGPIPE, SIG_IGN);
    setenv("SDL_AUDIODRIVER", "disk", 1);
    setenv("SDL_DISKAUDIOFILE", path.c_str(), 1);
    if (pace == Pace::Fast) {
        setenv("SDL_DISKAUDIODELAY", "1", 1);
    } else {
        unsetenv("SDL_DISKAUDIODELAY");
    }
}

std::string SoundDisk::Take() {
    std::string taken;
    std::array<char, 65'536> block{};
    for (ssize_t count = 1; count > 0;) {
        count = read(heard_.Number(), block.data(), block.size());
        taken.append(block.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return taken;
}

}  // namespace tallyhut
