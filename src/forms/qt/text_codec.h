#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

/// 8-bit text as it is shown, with the way between its bytes and the characters on the screen.
///
/// A text is Latin-1, unless all of it is UTF-8 with at least one character beyond ASCII, as paths are: then it is
/// shown as that. A CR LF is one line end on the screen.
class ShownText {
public:
    ShownText() : ShownText{std::string_view{}} {}
    explicit ShownText(std::string_view bytes);

    const QString& Text() const { return text_; }
    /// Position on the screen of a byte; of one within a character, that of the next.
    int Shown(int byte) const;
    int Byte(int shown) const;

private:
    QString text_;
    std::vector<int> starts_;  ///< the byte where each shown character begins, and at last where the text ends
};

QString ToQt(std::string_view bytes);

/// Each byte as the Latin-1 character that it is, line ends too: for text that goes to other programs, where FromQt
/// gives the same bytes back.
QString Latin1ToQt(std::string_view bytes);

/// To Latin-1, leaving out what is not.
std::string FromQt(const QString& text);

}  // namespace tallyhut
