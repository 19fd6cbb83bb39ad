#include "values/format.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "values/decimal.h"
#include "values/text.h"
#include "values/value_error.h"

namespace tallyhut {

namespace {

ValueError NoPicture(std::string_view picture, std::string_view of) {
    return ValueError{'"' + std::string{picture} + "\" is no picture of a " + std::string{of}};
}

/// What a picture asks for.
struct NumberPicture {
    std::size_t leastWhole = 0;     ///< digits before the point: filled with zeros to this
    std::size_t leastDecimals = 0;  ///< digits behind it: zeros at the end are kept up to this
    std::size_t mostDecimals = 0;
    bool hasPoint = false;
    bool hasThousands = false;
};

NumberPicture ParseNumberPicture(std::string_view picture) {
    NumberPicture parsed;
    for (const char character : picture) {
        if (character == '.' && !parsed.hasPoint) {
            parsed.hasPoint = true;
        } else if (character == ',' && !parsed.hasPoint) {
            parsed.hasThousands = true;
        } else if (character != '#' && character != '0') {
            throw NoPicture(picture, "number");
        } else if (parsed.hasPoint) {
            ++parsed.mostDecimals;
            parsed.leastDecimals = character == '0' ? parsed.mostDecimals : parsed.leastDecimals;
        } else if (character == '0' || parsed.leastWhole > 0) {  // behind a 0 every place is filled
            ++parsed.leastWhole;
        }
    }
    return parsed;
}

std::string WithThousands(std::string whole) {
    for (std::size_t place = whole.size(); place > 3;) {
        place -= 3;
        whole.insert(place, 1, ',');
    }
    return whole;
}

std::string FormatDecimal(const Decimal& value, std::string_view picture) {
    const NumberPicture parsed = ParseNumberPicture(picture);
    const Decimal rounded = Rounded(value, static_cast<int>(parsed.mostDecimals), Halves::kAwayFromZero);

    std::string whole = WholeDigits(rounded);
    whole.insert(0, parsed.leastWhole - std::min(parsed.leastWhole, whole.size()), '0');
    std::string fraction = FractionDigits(rounded);
    fraction.resize(std::max(fraction.size(), parsed.leastDecimals), '0');
    std::string text = rounded.negative ? "-" : "";
    text += parsed.hasThousands ? WithThousands(whole) : whole;
    text += parsed.hasPoint ? "." : "";
    return text + fraction;
}

/// A part of a date picture: a number of so many digits at least.
struct DatePart {
    std::string_view letters;
    int DateTime::*member;
    std::size_t width;
};

constexpr std::array<DatePart, 12> kDateParts{{
    {"YYYY", &DateTime::year, 4},
    {"YY", &DateTime::year, 2},
    {"MM", &DateTime::month, 2},
    {"M", &DateTime::month, 1},
    {"DD", &DateTime::day, 2},
    {"D", &DateTime::day, 1},
    {"HH", &DateTime::hour, 2},
    {"H", &DateTime::hour, 1},
    {"NN", &DateTime::minute, 2},
    {"N", &DateTime::minute, 1},
    {"SS", &DateTime::second, 2},
    {"S", &DateTime::second, 1},
}};

constexpr std::string_view kShortDateLetters = "DDDDD";
constexpr std::string_view kHalfDayLetters = "AMPM";

bool IsLetter(char character) {
    return character >= 'A' && character <= 'Z';
}

std::string ZeroFilled(int number, std::size_t width) {
    const std::string digits = PlainText(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

/// A picture in capitals without the short date.
std::string FormatParts(const DateTime& at, std::string_view picture, bool hasHalfDays) {
    std::string text;
    bool isBehindHour = false;
    while (!picture.empty()) {
        if (!IsLetter(picture.front())) {
            text += picture.front();
            picture.remove_prefix(1);
            continue;
        }
        if (picture.starts_with(kHalfDayLetters)) {
            text += at.hour < 12 ? "AM" : "PM";
            picture.remove_prefix(kHalfDayLetters.size());
            isBehindHour = false;
            continue;
        }
        const std::string_view letters = picture.substr(0, picture.find_first_not_of(picture.front()));
        const auto* const part = std::ranges::find(kDateParts, letters, &DatePart::letters);
        if (part == kDateParts.end()) {
            throw NoPicture(picture, "date or time");
        }
        const auto member = part->member == &DateTime::month && isBehindHour ? &DateTime::minute : part->member;
        int number = at.*member;
        if (member == &DateTime::hour && hasHalfDays) {
            number = (number + 11) % 12 + 1;  // 0 and 12 are both twelve o'clock
        } else if (letters == "YY") {
            number %= 100;
        }
        text += ZeroFilled(number, part->width);
        picture.remove_prefix(letters.size());
        isBehindHour = member == &DateTime::hour;
    }
    return text;
}

}  // namespace

std::string FormatNumber(double value, std::string_view picture) {
    return FormatDecimal(DecimalOf(value, kDoubleDigits), picture);
}

std::string FormatNumber(float value, std::string_view picture) {
    return FormatDecimal(DecimalOf(value, kFloatDigits), picture);
}

std::string FormatDateTime(const DateTime& at, std::string_view picture, std::string_view shortDate) {
    const std::string capitals = UpperCase(picture);
    const bool hasHalfDays = capitals.find(kHalfDayLetters) != std::string::npos;
    std::string_view rest = capitals;
    std::string text;
    for (;;) {
        const std::size_t place = rest.find(kShortDateLetters);
        text += FormatParts(at, rest.substr(0, place), hasHalfDays);
        if (place == std::string_view::npos) {
            return text;
        }
        text += ShortDate(at, shortDate);
        rest.remove_prefix(place + kShortDateLetters.size());
    }
}

std::string FormatDateText(std::string_view text, std::string_view picture, int presentYear) {
    const auto at = ParseDateTime(text, presentYear);
    return at ? FormatDateTime(*at, picture) : std::string{text};
}

std::string ShortDate(const DateTime& at, std::string_view pattern) {
    return FormatParts(at, UpperCase(pattern), false);
}

}  // namespace tallyhut
