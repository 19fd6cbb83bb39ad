#include "import/log_reading.h"

#include <cstdint>
#include <memory>
#include <utility>

#include "import/adif_reader.h"
#include "import/cabrillo_reader.h"
#include "import/log_text.h"
#include "import/record_reader.h"
#include "platform/platform_error.h"
#include "values/number.h"
#include "values/utf8.h"

namespace tallyhut {
namespace {

constexpr std::uint64_t kMegabyte = 1'000'000;
constexpr std::uint64_t kLongestFile = 200 * kMegabyte;
constexpr std::uint64_t kLongFile = 5 * kMegabyte;  // what takes a time that is felt

ImportedLog LogIn(std::string_view text, const std::string& path, OwnLogs ownLogs) {
    switch (FormatOf(text)) {
        case LogFormat::Cabrillo:
            return ReadCabrillo(text);
        case LogFormat::Adif:
            return ReadAdif(text);
        case LogFormat::Records:
            if (ownLogs == OwnLogs::Taken) {
                return ReadRecords(text);
            }
            throw PlatformError{path + ": This is a log of this program. File, Restore opens it."};
        case LogFormat::None:
            break;
    }
    throw PlatformError{path + ": It holds neither Cabrillo nor ADIF nor a log of this program."};
}

/// What the message line said before comes back, unless another has written there meanwhile.
struct MessageBefore {
    Panel& panel;
    std::string before = panel.form.lblDialog.Caption();
    std::string written = {};

    explicit MessageBefore(Panel& shown) : panel{shown} {}
    MessageBefore(const MessageBefore&) = delete;
    MessageBefore& operator=(const MessageBefore&) = delete;
    ~MessageBefore() {
        if (!written.empty() && panel.form.lblDialog.Caption() == written) {
            panel.message.Write(before);
        }
    }

    /// The line is drawn before this returns.
    void Write(std::string words) {
        written = std::move(words);
        panel.message.Write(written);
        panel.desk.RunTimersAndIo();
    }
};

}  // namespace

/// The file may grow while it is read, so its length is looked at once and kept to.
ImportedLog LogReading::Read(const std::string& path, OwnLogs ownLogs) const {
    const std::unique_ptr<Files::Reader> file = files.OpenToRead(path);
    const std::uint64_t length = file->Length();
    if (length > kLongestFile) {
        throw PlatformError{path + ": It is longer than " + PlainText(kLongestFile / kMegabyte) +
                            " MB, which no log is."};
    }
    MessageBefore message{panel};
    if (length >= kLongFile) {
        message.Write("Reading " + path.substr(path.rfind('/') + 1) + ", " + PlainText(length / kMegabyte) + " MB ...");
    }
    const std::string bytes = file->Part(0, static_cast<std::size_t>(length));
    std::string room;
    return LogIn(PlainBytesOf(bytes, room), path, ownLogs);
}

}  // namespace tallyhut
