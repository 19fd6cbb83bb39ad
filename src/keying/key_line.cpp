#include "keying/key_line.h"

#include "platform/platform_error.h"
#include "values/number.h"

namespace tallyhut {

void KeyLine::Open() {
    Close();
    const std::int32_t port = ToInt32(TrimmedNumber(number.Text()));
    if (port <= 0) {
        return;
    }
    closeOther();
    closeKeyer(port);
    openNumber = port;
    if (auto shared = lentPort(port)) {
        lent.emplace(*shared);
        return;
    }
    comm.SetNumber(port);
    comm.SetDtr(false);
    comm.SetRts(false);
    comm.Open();
}

void KeyLine::Close() {
    Release();
    lent.reset();
    comm.Close();
}

void KeyLine::Set(bool down) {
    const KeyOutputs outputs = chosen();
    if (outputs.dtr) {
        SetDtr(down);
    }
    if (outputs.rts) {
        SetRts(down);
    }
    if (outputs.parallel) {
        const int keyed = Register();
        if (registerDown && *registerDown != keyed) {
            parallelPorts.Out(*registerDown, kParallelKeyUp);
        }
        registerDown = down ? std::optional{keyed} : std::nullopt;
        parallelPorts.Out(keyed, down ? kParallelKeyDown : kParallelKeyUp);
    }
}

void KeyLine::SetDtr(bool on) {
    if (lent && lent->dtrIsTaken) {
        return;
    }
    dtrIsDown = on || dtrIsDown;  // until it is up for certain
    Port().SetDtr(on);
    dtrIsDown = on;
}

void KeyLine::SetRts(bool on) {
    if (lent && lent->rtsIsTaken) {
        return;
    }
    rtsIsDown = on || rtsIsDown;
    Port().SetRts(on);
    rtsIsDown = on;
}

/// The address of the port's register.
int KeyLine::Register() const {
    return ToInt32(TrimmedNumber(address.Text()) + kControlRegister);
}

void KeyLine::Release() noexcept {
    try {
        if (dtrIsDown) {
            SetDtr(false);
        }
        if (rtsIsDown) {
            SetRts(false);
        }
    } catch (const PlatformError&) {  // the cable has been pulled: with the port the system lets its lines go
        dtrIsDown = false;
        rtsIsDown = false;
        const bool wasLent = lent.has_value();
        lent.reset();
        comm.Close();
        if (wasLent) {
            lentPortHasFailed();
        }
    }
    if (registerDown) {
        parallelPorts.Out(*registerDown, kParallelKeyUp);
        registerDown.reset();
    }
}

}  // namespace tallyhut
