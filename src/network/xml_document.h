#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallyhut {

/// The longest value of an element, in characters; what goes beyond is left out.
inline constexpr std::size_t kLongestElement = 100;

/// A value as XML text in UTF-8: the five characters that XML has a use for are named, and a character that cannot be
/// printed is a blank.
std::string XmlText(std::string_view latin1);

/// A document of one root with elements of text, in the order in which they are added, as small readers expect it:
/// nothing between the elements, nothing behind the root.
class XmlDocument {
public:
    explicit XmlDocument(std::string_view root);

    XmlDocument& Element(std::string_view name, std::string_view value);
    std::string Text() const;

private:
    std::string root_;
    std::string elements_;
};

}  // namespace tallyhut
