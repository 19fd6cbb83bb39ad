#include "log/log_file.h"

#include "platform/platform_error.h"

namespace tallyhut {

LogWriteError ContactNotLogged(const Contact& contact, const std::string& reason) {
    return LogWriteError{reason + "\n\nThis contact was not logged: " + ExchangeText(contact)};
}

void LogFile::Append(const Contact& contact) {
    try {
        files.Append(Path(), WriteRecord(contact));
    } catch (const PlatformError& failure) {
        throw ContactNotLogged(contact, failure.what());
    }
}

void LogFile::Rewrite(const ContactLog& log) {
    std::string content;
    for (std::int32_t n = 1; n <= log.gContactCount; ++n) {
        content += WriteRecord(log.Row(n));
    }
    try {
        files.Replace(Path(), content);
    } catch (const PlatformError& failure) {
        throw LogWriteError{std::string{failure.what()} + "\n\nThe change was not saved; the log is as it was before."};
    }
}

}  // namespace tallyhut
