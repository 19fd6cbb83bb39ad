#include "network/xml_document.h"

#include <algorithm>
#include <array>

#include "values/text.h"

namespace tallyhut {
namespace {

struct NamedCharacter {
    char character;
    std::string_view name;
};

constexpr std::array kNamedCharacters{
    NamedCharacter{'&', "&amp;"},  NamedCharacter{'<', "&lt;"},    NamedCharacter{'>', "&gt;"},
    NamedCharacter{'"', "&quot;"}, NamedCharacter{'\'', "&apos;"},
};

bool IsPrinted(unsigned char character) {
    constexpr unsigned char kFirst = 0x20;
    constexpr unsigned char kDelete = 0x7F;
    constexpr unsigned char kFirstOfUpperHalf = 0xA0;
    return (character >= kFirst && character < kDelete) || character >= kFirstOfUpperHalf;
}

std::string XmlCharacter(char character) {
    const auto* const named = std::ranges::find(kNamedCharacters, character, &NamedCharacter::character);
    if (named != kNamedCharacters.end()) {
        return std::string{named->name};
    }
    return IsPrinted(static_cast<unsigned char>(character)) ? Latin1ToUtf8({&character, 1}) : " ";
}

}  // namespace

std::string XmlText(std::string_view latin1) {
    std::string text;
    for (const char character : latin1.substr(0, kLongestElement)) {
        text += XmlCharacter(character);
    }
    return text;
}

XmlDocument::XmlDocument(std::string_view root) : root_{root} {}

XmlDocument& XmlDocument::Element(std::string_view name, std::string_view value) {
    elements_.append("<").append(name).append(">");
    elements_.append(XmlText(value));
    elements_.append("</").append(name).append(">");
    return *this;
}

std::string XmlDocument::Text() const {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<" + root_ + '>' + elements_ + "</" + root_ + '>';
}

}  // namespace tallyhut
