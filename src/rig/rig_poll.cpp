#include "rig/rig_poll.h"

#include "platform/platform_error.h"
#include "contest/bands.h"
#include "values/format.h"
#include "values/hex.h"
#include "values/value_error.h"

namespace tallyhut {

void RigPoll::tmrGetData_Elapsed() {
    const RigRow& rig = RigNamed(preferences.gRigName);
    try {
        if (state.ReadPhase == 1) {
            if (rig.link != RigLink::Files) {
                state.RxBuffer = comComm1.ReadAll();
            }
            if (!state.RxBuffer.empty() || rig.link == RigLink::Files) {
                Read(rig);
            }
            state.RxBuffer.clear();
            state.ReadPhase = 0;
        } else {
            Send();
            state.ReadPhase = 1;
        }
    } catch (const PlatformError&) {
        // A cable that is out, a band that cannot be saved: ReadPhase and RxBuffer stay, and the next tick tries again.
    } catch (const ValueError&) {
        // A string that is no row of pairs, which the operator may be typing.
    }
}

void RigPoll::Send() {
    if (comComm1.OutputCount() > 0) {
        return;
    }
    const RequestManner& manner = RigNamed(preferences.gRigName).request;
    const bool alternates = manner.turn == RequestTurn::Alternating;
    const bool asksMode = alternates ? state.ModeTurn == 1 : manner.turn == RequestTurn::Both;
    if (!alternates || !asksMode) {
        SendRequest(manner, settings.frequencyString);
    }
    if (asksMode) {
        SendRequest(manner, settings.modeString);
    }
    if (alternates) {
        state.ModeTurn = asksMode ? 0 : 1;
    }
}

void RigPoll::SendRequest(const RequestManner& manner, const std::string& text) {
    const std::string bytes = EncodeRequest(manner, text, form.chkConvToHex.Value());
    if (!bytes.empty()) {
        comComm1.Write(bytes);
    }
}

void RigPoll::Read(const RigRow& rig) {
    Decode(rig);
    if (form.OptFreq.Value()) {
        ModeFromFrequency();
    }
    if (form.IsVisible()) {
        Show();
    }
    if (form.chkFrequency.Value()) {
        conversion.BandFreqConversion(state.RigFrequency);
    }
    if (!form.OptDont.Value()) {
        conversion.ModeSelection(state.RigMode);
    }
}

void RigPoll::Decode(const RigRow& rig) {
    if (rig.link == RigLink::Files) {
        Take(pegasus.ReadPegasusFile());
        return;
    }
    const bool alternates = rig.request.turn == RequestTurn::Alternating;
    if (!alternates || state.ModeTurn == 1) {
        Run(rig.readFrequency);
    }
    if (!alternates || state.ModeTurn == 0) {
        Run(rig.readMode);
    }
}

void RigPoll::Run(RigDecoder decoder) {
    if (decoder != nullptr) {
        Take(decoder({.rxBuffer = state.RxBuffer,
                      .frequencyString = settings.frequencyString,
                      .modeString = settings.modeString}));
    }
}

void RigPoll::Take(const RigReading& reading) {
    state.RigFrequency = reading.frequency.value_or(state.RigFrequency);
    if (reading.mode) {
        state.RigMode = *reading.mode;
    }
    state.VfoDigit = reading.vfoDigit.value_or(state.VfoDigit);
}

void RigPoll::ModeFromFrequency() {
    const std::string_view mode = SegmentMode(state.RigFrequency);
    if (!mode.empty()) {
        state.RigMode = mode;
    }
}

void RigPoll::Show() {
    if (state.RigFrequency > 0) {
        form.lblFreq.SetCaption(FormatNumber(state.RigFrequency, "###.####0"));
    }
    form.lblMode.SetCaption(state.RigMode);
    if (form.ChkConvHex.Value()) {
        state.RxBuffer = BytesToHexDump(state.RxBuffer);
    }
    form.lblUnProcess.SetCaption(state.RxBuffer);
}

}  // namespace tallyhut
