// The system's calls for files, of which one fails as told. As a library that is loaded in front of the system's own,
// or linked into a test.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <utility>

#include "tests/faults/fault_state.h"

namespace tallyhut {
namespace {

constexpr int kMostFiles = 1'024;

FaultState* gState = nullptr;
std::array<std::array<char, FaultState::kLongest>, kMostFiles> gPaths{};  // of open files, by number

/// The system's own. A name that is versioned has the default version.
template <class Call>
Call* System(Call* /*ours*/, const char* name) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym gives is meant so
    return reinterpret_cast<Call*>(dlsym(RTLD_NEXT, name));
}

#define SYSTEM_CALL(name) static auto* const system = System(&::name, #name)

void Copy(std::array<char, FaultState::kLongest>& to, std::string_view from) {
    to.fill(0);
    from.copy(to.data(), to.size() - 1);
}

bool IsCounted(std::string_view path) {
    if (gState == nullptr || gState->folder[0] == '\0') {
        return false;
    }
    const std::string_view folder{gState->folder};
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// True, with errno set, when it is this call's turn to fail.
bool Fails(const char* call, const char* path) {
    if (path == nullptr || !IsCounted(path)) {
        return false;
    }
    const std::uint64_t number = ++gState->calls;
    const bool isTurn =
        gState->failAt != 0 && (number == gState->failAt || (gState->forGood && number > gState->failAt));
    if (!isTurn) {
        return false;
    }
    errno = gState->error;
    if (gState->hasFailed) {
        return true;
    }
    std::strncpy(gState->call, call, FaultState::kLongest - 1);
    std::strncpy(gState->path, path, FaultState::kLongest - 1);
    gState->hasFailed = true;
    return true;
}

const char* PathOf(int file) {
    return file >= 0 && file < kMostFiles ? gPaths.at(static_cast<std::size_t>(file)).data() : "";
}

/// Where a path that begins in an open folder leads.
std::array<char, FaultState::kLongest> Whole(int folder, const char* path) {
    std::array<char, FaultState::kLongest> whole{};
    Copy(whole, path);
    if (path[0] != '/' && folder != AT_FDCWD) {
        Copy(whole, PathOf(folder));
        const std::size_t end = std::strlen(whole.data());
        std::strncat(whole.data(), "/", whole.size() - 1 - end);
        std::strncat(whole.data(), path, whole.size() - 2 - end);
    }
    return whole;
}

int Remember(int file, const char* path) {
    if (file >= 0 && file < kMostFiles) {
        Copy(gPaths.at(static_cast<std::size_t>(file)), IsCounted(path) ? path : "");
    }
    return file;
}

mode_t ModeIn(va_list& arguments, int flags) {
    return (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

__attribute__((constructor)) void TakeStateFromEnvironment() {
    const char* path = std::getenv(kFaultVariable);
    if (path == nullptr) {
        return;
    }
    const int file = ::open(path, O_RDWR | O_CLOEXEC);
    void* memory = ::mmap(nullptr, sizeof(FaultState), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    gState = memory == MAP_FAILED ? nullptr : static_cast<FaultState*>(memory);
}

}  // namespace

void UseFaults(FaultState* state) {
    gState = state;
}

}  // namespace tallyhut

using tallyhut::Fails;
using tallyhut::PathOf;
using tallyhut::System;

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = tallyhut::ModeIn(arguments, flags);
    va_end(arguments);
    SYSTEM_CALL(open);
    return Fails("open", path) ? -1 : tallyhut::Remember(system(path, flags, mode), path);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = tallyhut::ModeIn(arguments, flags);
    va_end(arguments);
    return open(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = tallyhut::ModeIn(arguments, flags);
    va_end(arguments);
    SYSTEM_CALL(openat);
    const auto whole = tallyhut::Whole(folder, path);
    return Fails("openat", whole.data()) ? -1 : tallyhut::Remember(system(folder, path, flags, mode), whole.data());
}

int close(int file) {
    SYSTEM_CALL(close);
    tallyhut::Remember(file, "");
    return system(file);
}

DIR* opendir(const char* path) {
    SYSTEM_CALL(opendir);
    if (Fails("opendir", path)) {
        return nullptr;
    }
    DIR* folder = system(path);
    if (folder != nullptr) {
        tallyhut::Remember(dirfd(folder), path);
    }
    return folder;
}

ssize_t read(int file, void* bytes, size_t count) {
    SYSTEM_CALL(read);
    return Fails("read", PathOf(file)) ? -1 : system(file, bytes, count);
}

ssize_t pread(int file, void* bytes, size_t count, off_t at) {
    SYSTEM_CALL(pread);
    return Fails("pread", PathOf(file)) ? -1 : system(file, bytes, count, at);
}

/// A disk that fills up takes a part first, and nothing of the next write.
ssize_t write(int file, const void* bytes, size_t count) {
    SYSTEM_CALL(write);
    static bool isFull = false;
    if (std::exchange(isFull, false) && *PathOf(file) != '\0') {
        errno = ENOSPC;
        return -1;
    }
    if (!Fails("write", PathOf(file))) {
        return system(file, bytes, count);
    }
    isFull = errno == ENOSPC && count > 1;
    return isFull ? system(file, bytes, count / 2) : -1;
}

int fsync(int file) {
    SYSTEM_CALL(fsync);
    return Fails("fsync", PathOf(file)) ? -1 : system(file);
}

int fdatasync(int file) {
    SYSTEM_CALL(fdatasync);
    return Fails("fdatasync", PathOf(file)) ? -1 : system(file);
}

int ftruncate(int file, off_t length) noexcept {
    SYSTEM_CALL(ftruncate);
    return Fails("ftruncate", PathOf(file)) ? -1 : system(file, length);
}

int fchmod(int file, mode_t mode) noexcept {
    SYSTEM_CALL(fchmod);
    return Fails("fchmod", PathOf(file)) ? -1 : system(file, mode);
}

int flock(int file, int operation) noexcept {
    SYSTEM_CALL(flock);
    return Fails("flock", PathOf(file)) ? -1 : system(file, operation);
}

int fstat(int file, struct stat* status) noexcept {
    SYSTEM_CALL(fstat);
    return Fails("fstat", PathOf(file)) ? -1 : system(file, status);
}

int stat(const char* path, struct stat* status) noexcept {
    SYSTEM_CALL(stat);
    return Fails("stat", path) ? -1 : system(path, status);
}

int lstat(const char* path, struct stat* status) noexcept {
    SYSTEM_CALL(lstat);
    return Fails("lstat", path) ? -1 : system(path, status);
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    SYSTEM_CALL(faccessat);
    return Fails("faccessat", tallyhut::Whole(folder, path).data()) ? -1 : system(folder, path, mode, flags);
}

char* realpath(const char* path, char* resolved) noexcept {
    SYSTEM_CALL(realpath);
    return Fails("realpath", path) ? nullptr : system(path, resolved);
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    SYSTEM_CALL(readlink);
    return Fails("readlink", path) ? -1 : system(path, target, size);
}

int rename(const char* from, const char* to) noexcept {
    SYSTEM_CALL(rename);
    return Fails("rename", to) ? -1 : system(from, to);
}

int unlink(const char* path) noexcept {
    SYSTEM_CALL(unlink);
    return Fails("unlink", path) ? -1 : system(path);
}

int unlinkat(int folder, const char* path, int flags) noexcept {
    SYSTEM_CALL(unlinkat);
    return Fails("unlinkat", tallyhut::Whole(folder, path).data()) ? -1 : system(folder, path, flags);
}

int mkdir(const char* path, mode_t mode) noexcept {
    SYSTEM_CALL(mkdir);
    return Fails("mkdir", path) ? -1 : system(path, mode);
}

}  // extern "C"
