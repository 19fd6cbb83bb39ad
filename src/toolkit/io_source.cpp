#include "toolkit/io_source.h"

#include <utility>

#include "toolkit/desk.h"

namespace tallyhut {

/// One that is made by a handler has its first turn in the round behind that: makers cannot keep a round going.
IoSource::IoSource(Desk& owner, std::function<void()> handler)
    : desk_{owner}, handler_{std::move(handler)}, ranIn_{owner.rounds_} {
    desk_.sources_.push_back(this);
}

IoSource::IoSource(Desk& owner, int descriptor, std::function<void()> handler) : IoSource{owner, std::move(handler)} {
    watch_ = desk_.pump.Watch(descriptor, [this] { Signal(); });
}

IoSource::~IoSource() {
    std::erase(desk_.sources_, this);
    desk_.ForgetWatched(this);
}

}  // namespace tallyhut
