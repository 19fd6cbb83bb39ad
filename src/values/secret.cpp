#include "values/secret.h"

namespace tallyhut {

void OverwriteFrom(std::string& text, std::size_t from) {
    text.resize(text.capacity());
    volatile char* bytes = text.data();  // or the compiler would leave out what nobody reads
    for (std::size_t i = from; i < text.size(); ++i) {
        bytes[i] = 0;
    }
    text.resize(from);
}

}  // namespace tallyhut
