#include "forms/qt/text_codec.h"

#include <QStringDecoder>
#include <algorithm>

namespace tallyhut {
namespace {

bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

bool IsUtf8BeyondAscii(std::string_view bytes) {
    if (std::ranges::all_of(bytes, IsAscii)) {
        return false;
    }
    QStringDecoder decoder{QStringDecoder::Utf8, QStringDecoder::Flag::Stateless};
    const QString decoded = decoder.decode(QByteArrayView{bytes.data(), static_cast<qsizetype>(bytes.size())});
    return !decoder.hasError() && !decoded.contains(QChar::ReplacementCharacter);
}

std::size_t CharacterLength(std::string_view bytes, std::size_t begin) {
    std::size_t end = begin + 1;
    while (end < bytes.size() && IsContinuation(bytes[end])) {
        ++end;
    }
    return end - begin;
}

}  // namespace

ShownText::ShownText(std::string_view bytes) {
    const bool utf8 = IsUtf8BeyondAscii(bytes);
    starts_.reserve(bytes.size() + 1);
    text_.reserve(static_cast<qsizetype>(bytes.size()));
    for (std::size_t at = 0; at < bytes.size();) {
        std::size_t length = 1;
        const qsizetype before = text_.size();
        if (bytes.substr(at, 2) == "\r\n") {
            length = 2;
            text_ += QChar{'\n'};
        } else if (utf8 && !IsAscii(bytes[at])) {
            length = CharacterLength(bytes, at);
            text_ += QString::fromUtf8(bytes.data() + at, static_cast<qsizetype>(length));
        } else {
            text_ += QChar{static_cast<unsigned char>(bytes[at])};
        }
        starts_.insert(starts_.end(), static_cast<std::size_t>(text_.size() - before), static_cast<int>(at));
        at += length;
    }
    starts_.push_back(static_cast<int>(bytes.size()));
}

int ShownText::Shown(int byte) const {
    const auto found = std::ranges::lower_bound(starts_, byte);
    return static_cast<int>(std::min(found, starts_.end() - 1) - starts_.begin());
}

int ShownText::Byte(int shown) const {
    const int last = static_cast<int>(starts_.size()) - 1;
    return starts_[static_cast<std::size_t>(std::clamp(shown, 0, last))];
}

QString ToQt(std::string_view bytes) {
    const auto isPlain = [](char byte) { return IsAscii(byte) && byte != '\r'; };
    return std::ranges::all_of(bytes, isPlain) ? Latin1ToQt(bytes) : ShownText{bytes}.Text();
}

QString Latin1ToQt(std::string_view bytes) {
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

std::string FromQt(const QString& text) {
    std::string bytes;
    for (const QChar character : text) {
        if (character.unicode() <= 0xFF) {
            bytes += static_cast<char>(character.unicode());
        }
    }
    return bytes;
}

}  // namespace tallyhut
