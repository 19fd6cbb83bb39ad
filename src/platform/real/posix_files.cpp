#include "platform/real/posix_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/path_error.h"
#include "platform/real/descriptor.h"
#include "platform/temporary_name.h"

namespace tallyhut {

namespace {

/// A system call that was not interrupted by a signal.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

Descriptor Open(const std::string& path, int flags, mode_t mode = 0666) {
    return Descriptor(Uninterrupted([&] { return open(path.c_str(), flags | O_CLOEXEC, mode); }));
}

ssize_t Write(const Descriptor& file, std::string_view bytes) {
    return Uninterrupted([&] { return write(file.Number(), bytes.data(), bytes.size()); });
}

/// What stands at the place, through links; none where nothing can be. Throws, with the path, when that cannot be told.
std::optional<struct stat> StatusOf(const std::string& place, const std::string& path) {
    struct stat status {};
    if (stat(place.c_str(), &status) == 0) {
        return status;
    }
    if (errno == ENOENT || errno == ENOTDIR) {  // ENOTDIR: nothing stands below a file
        return std::nullopt;
    }
    throw PathError(path, errno);
}

std::optional<struct stat> StatusOf(const std::string& path) {
    return StatusOf(path, path);
}

bool IsSame(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

FileMark MarkOf(const struct stat& status) {
    return {.device = status.st_dev, .inode = status.st_ino, .length = static_cast<std::uint64_t>(status.st_size)};
}

void RefuseIrregular(const std::string& path, mode_t mode) {
    if (S_ISDIR(mode)) {
        throw PathError(path, EISDIR);
    }
    if (!S_ISREG(mode)) {
        throw PathError(path, kNotRegular);
    }
}

struct OpenFile {
    Descriptor descriptor;
    struct stat status {};
};

/// None where there is no file and the flags do not make one. Nothing is waited for: a pipe would be, for its other
/// end.
std::optional<OpenFile> OpenIfThere(const std::string& path, int flags) {
    OpenFile file{.descriptor = Open(path, flags | O_NONBLOCK | O_NOCTTY)};
    if (!file.descriptor.IsOpen() && errno == ENOENT) {
        return std::nullopt;
    }
    if (!file.descriptor.IsOpen() && errno == ENXIO) {  // a pipe that nobody reads, a socket
        throw PathError(path, kNotRegular);
    }
    if (!file.descriptor.IsOpen() || fstat(file.descriptor.Number(), &file.status) != 0) {
        throw PathError(path, errno);
    }
    RefuseIrregular(path, file.status.st_mode);
    return file;
}

OpenFile OpenRegular(const std::string& path, int flags) {
    std::optional<OpenFile> file = OpenIfThere(path, flags);
    if (!file) {
        throw PathError(path, ENOENT);
    }
    return std::move(*file);
}

struct OpenReader : Files::Reader {
    OpenReader(std::string path, OpenFile file) : path_(std::move(path)), file_(std::move(file)) {}

    std::uint64_t Length() const override { return static_cast<std::uint64_t>(file_.status.st_size); }

    std::string Part(std::uint64_t offset, std::size_t bytes) const override {
        std::string part(bytes, '\0');
        std::size_t got = 0;
        while (got < bytes) {
            const ssize_t count = Uninterrupted([&] {
                return pread(file_.descriptor.Number(), &part[got], bytes - got, static_cast<off_t>(offset + got));
            });
            if (count < 0) {
                throw PathError(path_, errno);
            }
            if (count == 0) {
                break;
            }
            got += static_cast<std::size_t>(count);
        }
        part.resize(got);
        return part;
    }

private:
    std::string path_;
    OpenFile file_;
};

struct HeldFolder : Files::FolderLock {
    HeldFolder(std::string path, OpenFile folder) : path_(std::move(path)), folder_(std::move(folder)) {}

    bool StillHolds() const override {
        const std::optional<struct stat> present = StatusOf(path_);
        return present && IsSame(*present, folder_.status);
    }

private:
    std::string path_;
    OpenFile folder_;  // the lock goes with it, also when the process is killed
};

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

/// Letters and digits that nobody guesses. Empty with errno set when the system has none.
std::string RandomSuffix() {
    constexpr std::string_view kCharacters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    std::array<unsigned char, kTemporarySuffix> bytes{};
    if (getentropy(bytes.data(), bytes.size()) != 0) {
        return "";
    }
    std::string suffix;
    for (const unsigned char byte : bytes) {
        suffix += kCharacters[byte % kCharacters.size()];
    }
    return suffix;
}

/// False on a file system that knows no locks, too.
bool LockNow(const Descriptor& file) {
    return Uninterrupted([&] { return flock(file.Number(), LOCK_EX | LOCK_NB); }) == 0;
}

/// A new file beside the one that it is to replace, removed with its owner unless it was moved to that one's place.
class TemporaryFile {
public:
    /// Not open, with errno set, when it cannot be made. The system takes from the mode what the user's mask says.
    TemporaryFile(const std::string& place, mode_t mode) {
        const int attempts = 100;  // a name is hardly ever taken
        for (int made = 0; made < attempts && !file_.IsOpen(); ++made) {
            const std::string suffix = RandomSuffix();
            if (suffix.empty()) {
                return;
            }
            path_ = FolderOf(place) + '/' + TemporaryName(NameOf(place), suffix);
            file_ = Open(path_, O_RDWR | O_CREAT | O_EXCL, mode);
            if (!file_.IsOpen() && errno != EEXIST) {
                return;
            }
        }
        if (file_.IsOpen()) {
            LockNow(file_);  // so that nobody takes it for what a killed run has left
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (file_.IsOpen() && !moved_) {
            unlink(path_.c_str());
        }
    }

    bool IsOpen() const { return file_.IsOpen(); }
    bool Fill(std::string_view content) { return WriteAll(file_, content); }
    bool SetMode(mode_t mode) { return fchmod(file_.Number(), mode) == 0; }
    bool Flush() { return fsync(file_.Number()) == 0; }
    bool ReadStatus(struct stat& status) { return fstat(file_.Number(), &status) == 0; }
    bool MoveTo(const std::string& place) {
        moved_ = rename(path_.c_str(), place.c_str()) == 0;
        return moved_;
    }

private:
    std::string path_;
    Descriptor file_;
    bool moved_ = false;
};

/// The record, behind a line end if the file's last line lacks one.
std::string WithLineEnd(const std::string& path, const OpenFile& file, std::string_view record) {
    std::string text;
    if (file.status.st_size > 0) {
        char last = '\n';  // stays where another program has cut the file meanwhile
        if (Uninterrupted([&] { return pread(file.descriptor.Number(), &last, 1, file.status.st_size - 1); }) < 0) {
            throw PathError(path, errno);
        }
        if (last != '\n') {
            text = "\r\n";
        }
    }
    text += record;
    return text;
}

/// With one write. False with errno set when not all of it could be written.
bool WriteAtOnce(const Descriptor& file, std::string_view text) {
    const ssize_t written = Write(file, text);
    if (written >= 0 && static_cast<std::size_t>(written) < text.size()) {
        // Only a second attempt tells why there was no room. Its success would not help: a record is one write.
        if (Write(file, text.substr(static_cast<std::size_t>(written))) >= 0) {
            errno = ENOSPC;
        }
        return false;
    }
    return written >= 0;
}

/// An empty file at the place, which nobody else has made meanwhile.
OpenFile MakeForAppending(const std::string& place, const std::string& path) {
    OpenFile file{.descriptor = Open(place, O_RDWR | O_APPEND | O_CREAT | O_EXCL)};
    if (!file.descriptor.IsOpen()) {
        throw PathError(path, errno);
    }
    if (fstat(file.descriptor.Number(), &file.status) != 0) {
        const int reason = errno;
        unlink(place.c_str());
        throw PathError(path, reason);
    }
    return file;
}

/// To whatever file stands there where nothing is expected.
FileMark AppendTo(const std::string& path, std::string_view record, const std::optional<FileMark>* expected) {
    std::optional<OpenFile> found = OpenIfThere(path, O_RDWR | O_APPEND);
    const std::optional<FileMark> mark = found ? std::optional(MarkOf(found->status)) : std::nullopt;
    if (expected != nullptr && mark != *expected) {
        throw Changed(path);
    }
    const std::string target = mark ? path : WithoutLinks(path);
    const OpenFile file = mark ? std::move(*found) : MakeForAppending(target, path);
    const std::string text = WithLineEnd(path, file, record);
    const bool written = WriteAtOnce(file.descriptor, text);
    if (written && fdatasync(file.descriptor.Number()) == 0 && (mark || FlushFolder(FolderOf(target)))) {
        FileMark behind = MarkOf(file.status);
        behind.length += text.size();
        return behind;
    }
    const int reason = errno;
    const off_t size = file.status.st_size;
    const bool takenBack = !mark ? unlink(target.c_str()) == 0
                                 : Uninterrupted([&] { return ftruncate(file.descriptor.Number(), size); }) == 0;
    if (takenBack) {
        throw PathError(path, reason);
    }
    if (written) {
        throw Unconfirmed(path, ReasonOf(reason));
    }
    throw PathError(path, ReasonOf(reason) + "; a part of it may stand in the file");
}

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

std::vector<std::string> TemporaryNamesIn(DIR* folder) {
    std::vector<std::string> names;
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no two threads read one folder's stream
    while (const dirent* entry = readdir(folder)) {
        if (IsTemporaryName(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    return names;
}

/// A regular file of this user that no running program writes. The open file holds its lock.
bool IsLeftOver(const Descriptor& file) {
    struct stat status {};
    return file.IsOpen() && fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid() && LockNow(file);
}

}  // namespace

PosixFiles::PosixFiles() {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system's own macro
    std::signal(SIGXFSZ, SIG_IGN);  // a write beyond the limit then fails with a reason and does not end the program
}

std::string PosixFiles::Read(const std::string& path) const {
    const OpenFile file = OpenRegular(path, O_RDONLY);
    std::string content;
    content.reserve(static_cast<std::size_t>(file.status.st_size));
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t count = Uninterrupted([&] { return read(file.descriptor.Number(), block.data(), block.size()); });
        if (count < 0) {
            throw PathError(path, errno);
        }
        if (count == 0) {
            return content;
        }
        content.append(block.data(), static_cast<std::size_t>(count));
    }
}

std::unique_ptr<Files::Reader> PosixFiles::OpenToRead(const std::string& path) const {
    return std::make_unique<OpenReader>(path, OpenRegular(path, O_RDONLY));
}

void PosixFiles::Append(const std::string& path, std::string_view record) {
    AppendTo(path, record, nullptr);
}

FileMark PosixFiles::Append(const std::string& path, std::string_view record, const std::optional<FileMark>& expected) {
    return AppendTo(path, record, &expected);
}

FileMark PosixFiles::Replace(const std::string& path, std::string_view content) {
    if (path.empty()) {
        throw PathError(path, ENOENT);  // before anything is made in the current folder
    }
    const std::string place = WithoutLinks(path);
    const std::optional<struct stat> old = StatusOf(place, path);
    if (old) {
        RefuseIrregular(path, old->st_mode);
    }
    if (old && faccessat(AT_FDCWD, place.c_str(), W_OK, AT_EACCESS) != 0) {
        throw PathError(path, errno);
    }
    TemporaryFile file(place, old ? 0600 : 0666);  // nobody else reads a private file's content while it is new
    struct stat status {};
    const bool ready = file.IsOpen() && file.Fill(content) && (!old || file.SetMode(old->st_mode & 07777)) &&
                       file.Flush() && file.ReadStatus(status);
    if (!ready || !file.MoveTo(place)) {
        throw PathError(path, errno);
    }
    if (!FlushFolder(FolderOf(place))) {
        throw Unconfirmed(path, ReasonOf(errno));
    }
    return MarkOf(status);
}

void PosixFiles::Write(const std::string& path, std::string_view content) {
    const OpenFile file = OpenRegular(path, O_WRONLY | O_CREAT | O_TRUNC);
    if (!WriteAll(file.descriptor, content) || fsync(file.descriptor.Number()) != 0) {
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

std::optional<FileMark> PosixFiles::Mark(const std::string& path) const {
    const auto status = StatusOf(path);
    return status && !S_ISDIR(status->st_mode) ? std::optional(MarkOf(*status)) : std::nullopt;
}

bool PosixFiles::IsSameFile(const std::string& one, const std::string& other) const {
    const auto first = StatusOf(one);
    const auto second = StatusOf(other);
    return first && second && IsSame(*first, *second);
}

std::vector<std::string> PosixFiles::FilesIn(const std::string& folder) const {
    std::vector<std::string> found;
    if (!FolderExists(folder)) {
        return found;
    }
    std::error_code failure;
    for (std::filesystem::directory_iterator entry{folder, failure}, end; !failure && entry != end;
         entry.increment(failure)) {
        std::error_code ignored;
        if (entry->is_regular_file(ignored)) {
            found.push_back(entry->path().string());
        }
    }
    if (failure) {
        throw PathError(folder, failure.value());
    }
    std::ranges::sort(found);
    return found;
}

void PosixFiles::MakeFolder(const std::string& path) {
    if (mkdir(path.c_str(), 0777) != 0) {
        throw PathError(path, errno);
    }
}

void PosixFiles::Remove(const std::string& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) {
        throw PathError(path, errno);
    }
    RefuseIrregular(path, status.st_mode);
    if (unlink(path.c_str()) != 0) {
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
    const TemporaryFile attempt(folder + "/attempt", 0600);
    if (!attempt.IsOpen()) {
        throw PathError(folder, errno);
    }
}

void PosixFiles::RemoveLeftovers(const std::string& folder) {
    const std::unique_ptr<DIR, CloseFolder> opened(opendir(folder.c_str()));
    if (!opened) {
        return;
    }
    const int place = dirfd(opened.get());
    for (const std::string& name : TemporaryNamesIn(opened.get())) {
        const Descriptor file(openat(place, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (IsLeftOver(file)) {
            unlinkat(place, name.c_str(), 0);
        }
    }
}

std::unique_ptr<Files::FolderLock> PosixFiles::Lock(const std::string& folder) {
    OpenFile opened{.descriptor = Open(folder, O_RDONLY | O_DIRECTORY)};
    if (!opened.descriptor.IsOpen() || fstat(opened.descriptor.Number(), &opened.status) != 0) {
        throw PathError(folder, errno);
    }
    if (!LockNow(opened.descriptor) && errno == EWOULDBLOCK) {
        return nullptr;
    }
    return std::make_unique<HeldFolder>(folder, std::move(opened));
}

}  // namespace tallyhut
