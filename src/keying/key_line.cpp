#include "keying/key_line.h"

#include "platform/platform_error.h"
#include "values/number.h"

namespace tallyhut {

void KeyLine::Open() {
    Close();
    const std::int32_t number = ToInt32(TrimmedNumber(form.Text10.Text()));
    if (number <= 0) {
        return;
    }
    closePhonePort();
    closeKeyer(number);
    openNumber = number;
    if (auto shared = lentPort(number)) {
        lent.emplace(*shared);
        return;
    }
    comm.SetNumber(number);
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
    if (form.Option2.Value()) {
        SetDtr(down);
    }
    if (form.Option1.Value()) {
        SetRts(down);
    }
    if (form.Option3.Value()) {
        const int address = Register();
        registerDown = down ? std::optional{address} : std::nullopt;
        parallelPorts.Out(address, down ? kParallelKeyDown : kParallelKeyUp);
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
    return ToInt32(TrimmedNumber(form.Text14.Text()) + kControlRegister);
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
        lent.reset();
        comm.Close();
    }
    if (registerDown) {
        parallelPorts.Out(*registerDown, kParallelKeyUp);
        registerDown.reset();
    }
}

}  // namespace tallyhut
