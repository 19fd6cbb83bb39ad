#include "platform/event_pump.h"

#include "platform/platform_error.h"

namespace tallyhut {

void EventPump::EndProgram(int status) {
    throw ProgramEnd{.status = status};
}

}  // namespace tallyhut
