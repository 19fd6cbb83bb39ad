#include "platform/real/descriptor.h"

#include <unistd.h>

#include <utility>

namespace tallyhut {

Descriptor::Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);  // what was open here is closed with the other
    return *this;
}

Descriptor::~Descriptor() {
    if (IsOpen()) {
        close(number_);
    }
}

}  // namespace tallyhut
