#include "network/radio_document.h"

#include "contest/bands.h"
#include "network/xml_document.h"
#include "values/number.h"

namespace tallyhut {

RadioFacts FactsOfRadio(float megahertz, std::string_view mode, bool isPhoneContest, std::string_view name) {
    std::string_view told = mode;
    if (mode.empty()) {
        told = isPhoneContest ? kPhone : kCw;
    }
    // A float holds seven digits: what stands behind them was never said by the radio.
    return {.tensOfHertz = TensOfHertz(TrimmedNumber(PlainText(megahertz))),
            .mode = std::string{told == kPhone ? PhoneSideband(ContestBand(megahertz)) : told},
            .name = std::string{name}};
}

std::string RadioInfo(const RadioFacts& facts, const NewsOrigin& origin, const std::string& ownCall) {
    return XmlDocument{"RadioInfo"}
        .Element("app", origin.app)
        .Element("StationName", origin.stationName)
        .Element("RadioNr", "1")
        .Element("Freq", facts.tensOfHertz)
        .Element("TXFreq", facts.tensOfHertz)
        .Element("Mode", facts.mode)
        .Element("mycall", ownCall)
        .Element("OpCall", ownCall)
        .Element("IsRunning", "False")
        .Element("FocusEntry", "0")
        .Element("EntryWindowHwnd", "0")
        .Element("Antenna", "-1")
        .Element("Rotors", "")
        .Element("FocusRadioNr", "1")
        .Element("IsStereo", "False")
        .Element("IsSplit", "False")
        .Element("ActiveRadioNr", "1")
        .Element("IsTransmitting", "False")
        .Element("FunctionKeyCaption", "")
        .Element("RadioName", facts.name)
        .Element("AuxAntSelected", "-1")
        .Element("AuxAntSelectedName", "")
        .Element("IsConnected", "True")
        .Text();
}

}  // namespace tallyhut
