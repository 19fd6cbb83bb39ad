#include "platform/real/desktop_environment.h"

#include <langinfo.h>

#include <QFile>
#include <QStandardPaths>
#include <array>
#include <clocale>
#include <cstdlib>
#include <string_view>

namespace tallyhut {

namespace {

std::string Folder(QStandardPaths::StandardLocation location) {
    return QFile::encodeName(QStandardPaths::writableLocation(location)).toStdString();
}

constexpr std::string_view kNoCustom = "m/d/yyyy";

struct DatePart {
    char conversion;  // of strftime
    std::string_view picture;
};

constexpr std::array kDateParts{DatePart{'d', "dd"}, DatePart{'e', "d"}, DatePart{'m', "mm"}, DatePart{'Y', "yyyy"},
                                DatePart{'y', "yy"}};

std::string_view PictureOf(char conversion) {
    for (const DatePart& part : kDateParts) {
        if (part.conversion == conversion) {
            return part.picture;
        }
    }
    return {};
}

/// "%d/%m/%Y" as "dd/mm/yyyy"; the plain picture where the format holds what a picture cannot say.
std::string PictureFrom(std::string_view format) {
    std::string picture;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%') {
            picture += format[i];
            continue;
        }
        const std::string_view part = ++i < format.size() ? PictureOf(format[i]) : "";
        if (part.empty()) {
            return std::string{kNoCustom};
        }
        picture += part;
    }
    const bool plain = picture.find_first_not_of("dmy/-.") == std::string::npos;
    return plain ? picture : std::string{kNoCustom};
}

/// The plain locale gives a format too, but no custom of anybody's.
bool SaysNothing(const char* locale) {
    const std::string_view name = locale == nullptr ? "" : locale;
    return name.empty() || name == "POSIX" || name == "C" || name.starts_with("C.");
}

}  // namespace

std::string DesktopEnvironment::ShortDatePicture() const {
    const locale_t customs = newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "", nullptr);
    if (customs == nullptr) {
        return std::string{kNoCustom};
    }
    const bool silent = SaysNothing(nl_langinfo_l(_NL_LOCALE_NAME(LC_TIME), customs));
    std::string picture = silent ? std::string{kNoCustom} : PictureFrom(nl_langinfo_l(D_FMT, customs));
    freelocale(customs);
    return picture;
}

std::string DesktopEnvironment::Variable(const std::string& name) const {
    const char* value = std::getenv(name.c_str());
    return value != nullptr ? value : "";
}

std::string DesktopEnvironment::DocumentsFolder() const {
    return Folder(QStandardPaths::DocumentsLocation);
}

std::string DesktopEnvironment::UserDataFolder() const {
    return Folder(QStandardPaths::GenericDataLocation);
}

}  // namespace tallyhut
