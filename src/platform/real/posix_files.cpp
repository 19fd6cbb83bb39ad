#include "platform/real/posix_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <utility>

#include "platform/path_error.h"
#include "platform/real/descriptor.h"

namespace tallyhut {

namespace {

struct HeldFolder : Files::FolderLock {
    explicit HeldFolder(Descriptor folder) : folder_(std::move(folder)) {}

private:
    Descriptor folder_;  // the lock goes with it, also when the process is killed
};

/// A system call that was not interrupted by a signal.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

Descriptor Open(const std::string& path, int flags) {
    return Descriptor(Uninterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC, 0666); }));
}

ssize_t Write(const Descriptor& file, std::string_view bytes) {
    return Uninterrupted([&] { return write(file.Number(), bytes.data(), bytes.size()); });
}

std::optional<struct stat> StatusOf(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

/// The file behind a path, through every link; the last of them may lead to a file that is not there yet.
std::string WithoutLinks(std::string path) {
    std::array<char, PATH_MAX> buffer{};
    const int limit = 40;  // as many as the system follows
    for (int links = 0; links < limit; ++links) {
        if (realpath(path.c_str(), buffer.data()) != nullptr) {
            return buffer.data();
        }
        const ssize_t length = readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0) {
            return path;
        }
        const std::string next(buffer.data(), static_cast<std::size_t>(length));
        path = next.starts_with('/') ? next : FolderOf(path).append("/").append(next);
    }
    return path;
}

/// Brings the entry of a new file to the disk. False with errno set when that failed.
bool FlushFolder(const std::string& folder) {
    const Descriptor opened = Open(folder, O_RDONLY | O_DIRECTORY);
    if (!opened.IsOpen()) {
        return errno == EACCES;  // a folder may be written and not read; then this is not ours to do
    }
    return fsync(opened.Number()) == 0 || errno == EINVAL;  // EINVAL: the file system flushes no folders
}

/// False with errno set when not all of it could be written; what could be is.
bool WriteAll(const Descriptor& file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = Write(file, content);
        if (written < 0) {
            return false;
        }
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// A file without a name that others know, removed with its owner unless it was moved to its place.
class TemporaryFile {
public:
    /// Not open, with errno set, when it cannot be made.
    explicit TemporaryFile(const std::string& place)
        : path_(FolderOf(place) + "/." + NameOf(place).substr(0, kLongestName) + ".XXXXXX"),
          file_(mkostemp(path_.data(), O_CLOEXEC)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (file_.IsOpen() && !moved_) {
            unlink(path_.c_str());
        }
    }

    bool IsOpen() const { return file_.IsOpen(); }

    bool Fill(std::string_view content, mode_t mode) {
        return WriteAll(file_, content) && fchmod(file_.Number(), mode) == 0 && fsync(file_.Number()) == 0;
    }

    bool MoveTo(const std::string& place) {
        moved_ = rename(path_.c_str(), place.c_str()) == 0;
        return moved_;
    }

private:
    static constexpr std::size_t kLongestName = 200;  // leaves room for the rest where names end at 255 bytes

    std::string path_;
    Descriptor file_;
    bool moved_ = false;
};

mode_t ModeOfNewFiles() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// Adds the record to an open file that holds `size` bytes. False with errno set when any of it failed.
bool AddRecord(const Descriptor& file, off_t size, std::string_view record) {
    std::string text;
    if (size > 0) {
        char last = 0;
        if (Uninterrupted([&] { return pread(file.Number(), &last, 1, size - 1); }) != 1) {
            return false;
        }
        if (last != '\n') {
            text = "\r\n";
        }
    }
    text += record;
    const ssize_t written = Write(file, text);
    if (written >= 0 && static_cast<std::size_t>(written) < text.size()) {
        // Only a second attempt tells why there was no room. Its success would not help: a record is one write.
        if (Write(file, std::string_view(text).substr(static_cast<std::size_t>(written))) >= 0) {
            errno = ENOSPC;
        }
        return false;
    }
    return written >= 0 && fdatasync(file.Number()) == 0;
}

}  // namespace

PosixFiles::PosixFiles() {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system's own macro
    std::signal(SIGXFSZ, SIG_IGN);  // a write beyond the limit then fails with a reason and does not end the program
}

std::string PosixFiles::Read(const std::string& path) const {
    const Descriptor file = Open(path, O_RDONLY);
    if (!file.IsOpen()) {
        throw PathError(path, errno);
    }
    std::string content;
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t count = Uninterrupted([&] { return read(file.Number(), block.data(), block.size()); });
        if (count < 0) {
            throw PathError(path, errno);
        }
        if (count == 0) {
            return content;
        }
        content.append(block.data(), static_cast<std::size_t>(count));
    }
}

void PosixFiles::Append(const std::string& path, std::string_view record) {
    Descriptor file = Open(path, O_RDWR | O_APPEND);
    const bool isNew = !file.IsOpen() && errno == ENOENT;
    if (isNew) {
        file = Open(path, O_RDWR | O_APPEND | O_CREAT);
    }
    struct stat before {};
    if (!file.IsOpen() || fstat(file.Number(), &before) != 0) {
        throw PathError(path, errno);
    }
    const std::string target = isNew ? WithoutLinks(path) : path;
    if (AddRecord(file, before.st_size, record) && (!isNew || FlushFolder(FolderOf(target)))) {
        return;
    }
    const int reason = errno;
    if (isNew && before.st_size == 0) {
        unlink(target.c_str());
    } else if (ftruncate(file.Number(), before.st_size) != 0) {
        // Nothing more can be done; the failure that is told is the first one. Devices have no size to go back to.
    }
    throw PathError(path, reason);
}

void PosixFiles::Replace(const std::string& path, std::string_view content) {
    if (path.empty()) {
        throw PathError(path, ENOENT);  // before anything is made in the current folder
    }
    const std::string place = WithoutLinks(path);
    const std::optional<struct stat> old = StatusOf(place);
    if (!old && errno != ENOENT) {
        throw PathError(path, errno);
    }
    if (old && S_ISDIR(old->st_mode)) {
        throw PathError(path, EISDIR);
    }
    if (old && !S_ISREG(old->st_mode)) {
        throw PathError(path, "Not a regular file");
    }
    if (old && faccessat(AT_FDCWD, place.c_str(), W_OK, AT_EACCESS) != 0) {
        throw PathError(path, errno);
    }
    TemporaryFile file(place);
    const mode_t mode = old ? old->st_mode & 07777 : ModeOfNewFiles();
    if (!file.IsOpen() || !file.Fill(content, mode) || !file.MoveTo(place) || !FlushFolder(FolderOf(place))) {
        throw PathError(path, errno);
    }
}

void PosixFiles::Write(const std::string& path, std::string_view content) {
    const Descriptor file = Open(path, O_WRONLY | O_CREAT | O_TRUNC);
    const bool written = file.IsOpen() && WriteAll(file, content);
    if (!written || (fsync(file.Number()) != 0 && errno != EINVAL)) {  // EINVAL: a device that holds nothing back
        throw PathError(path, errno);
    }
}

void PosixFiles::Copy(const std::string& from, const std::string& to) {
    const std::string content = Read(from);
    if (IsSameFile(from, to)) {
        throw PathError(to, kCopyOntoItself);
    }
    Replace(to, content);
}

bool PosixFiles::FileExists(const std::string& path) const {
    const auto status = StatusOf(path);
    return status && !S_ISDIR(status->st_mode);
}

bool PosixFiles::FolderExists(const std::string& path) const {
    const auto status = StatusOf(path);
    return status && S_ISDIR(status->st_mode);
}

bool PosixFiles::IsSameFile(const std::string& one, const std::string& other) const {
    const auto first = StatusOf(one);
    const auto second = StatusOf(other);
    return first && second && first->st_dev == second->st_dev && first->st_ino == second->st_ino;
}

void PosixFiles::MakeFolder(const std::string& path) {
    if (mkdir(path.c_str(), 0777) != 0) {
        throw PathError(path, errno);
    }
}

std::string PosixFiles::CurrentFolder() const {
    std::array<char, PATH_MAX> buffer{};
    if (getcwd(buffer.data(), buffer.size()) == nullptr) {
        throw PathError(".", errno);
    }
    return buffer.data();
}

void PosixFiles::CheckWritable(const std::string& folder) const {
    // Only an attempt tells: the rights in the folder's mode say nothing of read-only media and remote file systems.
    const TemporaryFile attempt(folder + "/tallyhut");
    if (!attempt.IsOpen()) {
        throw PathError(folder, errno);
    }
}

std::unique_ptr<Files::FolderLock> PosixFiles::Lock(const std::string& folder) {
    Descriptor opened = Open(folder, O_RDONLY | O_DIRECTORY);
    if (!opened.IsOpen()) {
        throw PathError(folder, errno);
    }
    const int result = Uninterrupted([&] { return flock(opened.Number(), LOCK_EX | LOCK_NB); });
    if (result != 0 && errno == EWOULDBLOCK) {
        return nullptr;
    }
    return std::make_unique<HeldFolder>(std::move(opened));
}

}  // namespace tallyhut
