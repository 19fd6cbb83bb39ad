#include "import/log_reading.h"

#include <array>
#include <memory>

#include "import/adif_reader.h"
#include "import/cabrillo_reader.h"
#include "import/log_text.h"
#include "import/record_reader.h"
#include "platform/platform_error.h"

namespace tallyhut {
namespace {

constexpr std::uint64_t kLongestFile = 200'000'000;  // bytes

/// The file may grow while it is read, so its length is looked at first and kept to.
std::string TextIn(const Files& files, const std::string& path) {
    const std::unique_ptr<Files::Reader> file = files.OpenToRead(path);
    if (file->Length() > kLongestFile) {
        throw PlatformError{path + ": It is longer than 200 MB, which no log is."};
    }
    return WithoutMark(file->Part(0, static_cast<std::size_t>(file->Length())));
}

}  // namespace

ImportedLog ReadLog(const Files& files, const std::string& path, OwnLogs ownLogs) {
    const std::string text = TextIn(files, path);
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

}  // namespace tallyhut
