#include "console/text_encoding.h"

#include "values/text.h"
#include "values/utf8.h"

namespace tallyhut {

std::string ToUtf8(std::string_view text) {
    return IsUtf8BeyondAscii(text) ? std::string{text} : Latin1ToUtf8(text);
}

}  // namespace tallyhut
