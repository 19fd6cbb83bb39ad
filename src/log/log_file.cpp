#include "log/log_file.h"

#include "platform/platform_error.h"
#include "values/number.h"
#include "values/value_error.h"

namespace tallyhut {
namespace {

std::string NotLogged(const std::string& reason, const Contact& contact) {
    return reason + "\n\nThis contact was not logged: " + ExchangeText(contact);
}

}  // namespace

std::string LogText(const ContactLog& log) {
    constexpr std::size_t kUsualRecord = 80;
    RecordWriter text;
    text.Reserve(kUsualRecord * static_cast<std::size_t>(log.gContactCount()));
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        WriteRecord(log.Row(n), text);
    }
    return std::move(text).Result();
}

std::int32_t RecordCount(std::string_view text) {
    FieldReader fields{text};
    std::int32_t records = 0;
    try {
        for (; !fields.AtEnd(); ++records) {
            ReadRecord(fields);
        }
    } catch (const ValueError&) {  // those before the damaged one count
    }
    return records;
}

/// The mark is taken first: what another hand adds while the file is read is noticed at the next change.
std::string LogFile::Open() {
    const std::optional<FileMark> found = files.Mark(Path());
    std::string content = Read();
    mark = found;
    return content;
}

void LogFile::Append(const Contact& contact) {
    try {
        holdFolder();
        mark = files.Append(Path(), WriteRecord(contact), mark);
    } catch (const FileChangedError&) {
        throw;
    } catch (const UnconfirmedError& failure) {
        throw LogWriteError{
            std::string{failure.what()} +
            "\n\nThis contact stands in the log, but may not outlast a loss of power: " + ExchangeText(contact)};
    } catch (const PlatformError& failure) {
        throw LogWriteError{NotLogged(failure.what(), contact)};
    }
}

void LogFile::Rewrite(const ContactLog& log) {
    Replace(LogText(log), "The change was not saved; the log is as it was before.");
}

void LogFile::Empty() {
    Replace("", "The new log was not started; the log is as it was before.");
}

void LogFile::CopyFrom(const std::string& other) {
    holdFolder();
    CheckUnchanged();
    files.Copy(other, Path());
}

void LogFile::CheckUnchanged() const {
    if (files.Mark(Path()) != mark) {
        throw FileChangedError{Path() + ": another program has changed it"};
    }
}

void LogFile::Replace(const std::string& content, const std::string& notDone) {
    try {
        holdFolder();
        CheckUnchanged();
        mark = files.Replace(Path(), content);
    } catch (const FileChangedError&) {
        throw;
    } catch (const UnconfirmedError&) {
        mark = files.Mark(Path());
        throw;
    } catch (const PlatformError& failure) {
        throw LogWriteError{std::string{failure.what()} + "\n\n" + notDone};
    }
}

std::string LogFile::WhatStands() const try {
    if (!files.Mark(Path())) {
        return "There is no file " + Path() + ".";
    }
    const std::int32_t records = RecordCount(Read());
    return Path() + " holds " + PlainText(records) + (records == 1 ? " contact." : " contacts.");
} catch (const PlatformError& failure) {
    return std::string{"The log cannot be read. "} + failure.what();
}

}  // namespace tallyhut
