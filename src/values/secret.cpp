#include "values/secret.h"

#include <algorithm>

namespace tallyhut {

void OverwriteFrom(std::string& text, std::size_t from) {
    text.resize(text.capacity());
    volatile char* bytes = text.data();  // or the compiler would leave out what nobody reads
    for (std::size_t i = from; i < text.size(); ++i) {
        bytes[i] = 0;
    }
    text.resize(from);
}

void AppendSecret(std::string& text, std::string_view more) {
    if (text.capacity() - text.size() < more.size()) {
        std::string grown;
        grown.reserve(std::max(2 * text.size(), text.size() + more.size()));
        grown = text;
        OverwriteFrom(text, 0);
        text.swap(grown);
    }
    text += more;
}

}  // namespace tallyhut
