#include "platform/event_pump.h"

#include "platform/platform_error.h"

namespace tallyhut {

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): it is the pump's program that ends
void EventPump::EndProgram(int status) {
    throw ProgramEnd{.status = status};
}

}  // namespace tallyhut
