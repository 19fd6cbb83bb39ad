#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "rig/flrig_dialect.h"
#include "rig/frequency_command.h"
#include "rig/icom_reply.h"
#include "rig/mode_command.h"
#include "rig/rig_request.h"
#include "rig/rigctld_dialect.h"
#include "rig/status_reply.h"
#include "rig/text_reply.h"

namespace tallyhut {

/// The serial settings that a click on a row brings; what is empty is left as it stands.
struct SerialDefaults {
    std::string_view baud;
    std::string_view dataBits;
    std::string_view stopBits;
    std::string_view parity;
};

/// What a radio is reached through.
enum class RigLink {
    None,
    Port,
    Files,   ///< two files that the radio's own control program reads and writes
    Server,  ///< a program on the network that has the radio
};

/// A kind of server: how it is spoken to, and where its address is kept in section "Machine" of the settings.
struct ServerRow {
    const ServerDialect* dialect = nullptr;
    std::string_view hostKey = {};
    std::string_view portKey = {};
    std::string_view usualPort = {};
};

/// When the form explains that the address in the strings must be the radio's.
enum class AddressHint { Never, WhenClicked, WhenClickedOrLoaded };

/// A radio: everything the program knows of it. Another radio of a known family is another row.
struct RigRow {
    std::string_view name;  ///< in the rig list and in the settings
    RigLink link = RigLink::Port;
    SerialDefaults serial = {};
    ServerRow server = {};
    std::string_view frequencyString = {};
    std::string_view modeString = {};
    bool convertsToHex = false;      ///< what the check box shows
    bool choosesConversion = false;  ///< the check box is the operator's
    AddressHint addressHint = AddressHint::Never;
    bool rtsHandshake = false;
    std::string_view greeting = {};  ///< sent when the port has been opened
    std::string_view farewell = {};  ///< sent at the end of the program
    RequestManner request = {};
    /// For a radio with alternating requests the one of the request that went out last decodes, else both in turn.
    RigDecoder readFrequency = nullptr;
    RigDecoder readMode = nullptr;
    bool lossEmptiesFrequency = false;  ///< contacts bear none while the radio is lost
    /// Before a frequency command, in ms; events run between the two.
    std::array<int, 2> pausesMs = {};
    FrequencyCommand frequencyCommand = nullptr;
    ModeCommand modeCommand = nullptr;
};

/// Whether its replies tell that the radio is there: without them it is lost.
constexpr bool CanBeLost(const RigRow& rig) {
    const bool isDecoded = rig.readFrequency != nullptr || rig.readMode != nullptr;
    return rig.link == RigLink::Server || (rig.link == RigLink::Port && isDecoded);
}

namespace rig_facts {

inline constexpr SerialDefaults k4800TwoStops{.baud = "4800", .dataBits = "8", .stopBits = "2", .parity = "N"};
inline constexpr SerialDefaults k1200{.baud = "1200", .dataBits = "8", .stopBits = "1", .parity = "N"};
inline constexpr SerialDefaults k56000{.baud = "56000", .dataBits = "8", .stopBits = "1", .parity = "N"};
inline constexpr SerialDefaults k38400{.baud = "38400", .dataBits = "8", .stopBits = "1", .parity = "N"};
inline constexpr SerialDefaults kOnly4800{.baud = "4800", .dataBits = "", .stopBits = "", .parity = ""};

inline constexpr std::string_view kFiveNuls{"\0\0\0\0\0", 5};
inline constexpr std::string_view kYaesuFarewell{"\0\0\0\0\x80", 5};

inline constexpr RequestManner kText{.coding = RequestCoding::Text};
inline constexpr RequestManner kBusFrames{
    .coding = RequestCoding::Pairs, .turn = RequestTurn::Alternating, .leastLength = 17, .bytes = 6};
inline constexpr RequestManner kFiveBytes{
    .coding = RequestCoding::Pairs, .turn = RequestTurn::FrequencyOnly, .leastLength = 14, .bytes = 5};

/// The radios that answer five bytes with a status block differ in where the frequency stands, and in their pause.
constexpr RigRow StatusBlockRig(std::string_view name, RigDecoder decoder, int pauseMs) {
    return {.name = name,
            .serial = k4800TwoStops,
            .frequencyString = "00 00 00 02 10",
            .convertsToHex = true,
            .greeting = kFiveNuls,
            .farewell = kYaesuFarewell,
            .request = kFiveBytes,
            .readFrequency = decoder,
            .pausesMs = {pauseMs},
            .frequencyCommand = YaesuReversedFrequency,
            .modeCommand = YaesuReversedMode};
}

}  // namespace rig_facts

/// In the order of the rig list.
inline constexpr std::array<RigRow, 22> kRigs{{
    {.name = "None", .link = RigLink::None},
    {.name = "Elecraft",
     .serial = rig_facts::k4800TwoStops,
     .frequencyString = "FA;",
     .modeString = "MD;",
     .request = rig_facts::kText,
     .readFrequency = ReadFaMd,
     .readMode = ReadMdDigit,
     .pausesMs = {205, 1000},
     .frequencyCommand = ElecraftFrequency,
     .modeCommand = KenwoodMode},
    {.name = "Icom",
     .serial = rig_facts::k1200,
     .frequencyString = "FE FE 64 E0 03 FD",
     .modeString = "FE FE 64 E0 04 FD",
     .convertsToHex = true,
     .addressHint = AddressHint::WhenClickedOrLoaded,
     .request = rig_facts::kBusFrames,
     .readFrequency = ReadIcomFrequency,
     .readMode = ReadIcomMode,
     .pausesMs = {140},
     .frequencyCommand = IcomFrequency,
     .modeCommand = IcomMode},
    {.name = "Icom 735",
     .serial = rig_facts::k1200,
     .frequencyString = "FE FE 64 E0 03 FD",
     .modeString = "FE FE 64 E0 04 FD",
     .convertsToHex = true,
     .addressHint = AddressHint::WhenClicked,
     .request = rig_facts::kBusFrames,
     .readFrequency = ReadIcom735Frequency,
     .readMode = ReadIcomMode,
     .pausesMs = {140},
     .frequencyCommand = IcomFrequency},
    {.name = "Kenwood",
     .serial = rig_facts::k4800TwoStops,
     .frequencyString = "FA;",
     .modeString = "MD;",
     .request = rig_facts::kText,
     .readFrequency = ReadFaMd,
     .readMode = ReadMdDigit,
     .pausesMs = {205},
     .frequencyCommand = KenwoodFrequency,
     .modeCommand = KenwoodMode},
    {.name = "Kenwood 2",
     .serial = rig_facts::k4800TwoStops,
     .frequencyString = "IF;",
     .request = rig_facts::kText,
     .readFrequency = ReadIfBlock,
     .pausesMs = {205},
     .frequencyCommand = KenwoodActiveFrequency,
     .modeCommand = KenwoodMode},
    {.name = "Ten Tec Omni VI",
     .serial = rig_facts::k1200,
     .frequencyString = "FE FE 04 E0 03 FD",
     .modeString = "FE FE 04 E0 04 FD",
     .convertsToHex = true,
     .request = rig_facts::kBusFrames,
     .readFrequency = ReadIcomFrequency,
     .readMode = ReadIcomMode,
     .pausesMs = {140, 220},
     .frequencyCommand = IcomFrequency,
     .modeCommand = IcomMode},
    {.name = "Ten Tec Orion",
     .serial = rig_facts::k56000,
     .frequencyString = "?AF",
     .modeString = "?RMM",
     .rtsHandshake = true,
     .greeting = "X\r",
     .request = {.coding = RequestCoding::TextWithReturn},
     .readFrequency = ReadOrionFrequency,
     .readMode = ReadOrionMode,
     .pausesMs = {205},
     .frequencyCommand = OrionFrequency},
    {.name = "Ten Tec Fnt Pnl",
     .serial = rig_facts::k56000,
     .frequencyString = "3F 41 0D",
     .modeString = "3F 4D 0D",
     .convertsToHex = true,
     .rtsHandshake = true,
     // 7, not 8: a string whose last pair lacks a digit is sent.
     .request = {.coding = RequestCoding::Pairs, .turn = RequestTurn::Alternating, .leastLength = 7, .bytes = 3},
     .readFrequency = ReadPanelFrequency,
     .readMode = ReadPanelMode,
     .pausesMs = {205},
     .frequencyCommand = PanelFrequency},
    {.name = "Ten Tec Pegasus", .link = RigLink::Files, .pausesMs = {205}},
    {.name = "Yaesu",
     .serial = rig_facts::k4800TwoStops,
     .frequencyString = "00 00 00 00 03",
     .convertsToHex = true,
     .greeting = rig_facts::kFiveNuls,
     .farewell = rig_facts::kYaesuFarewell,
     .request = rig_facts::kFiveBytes,
     .readFrequency = ReadFiveByteStatus,
     .pausesMs = {205},
     .frequencyCommand = YaesuFrequency,
     .modeCommand = YaesuMode},
    {.name = "Yaesu 757 GX II",
     .serial = rig_facts::k4800TwoStops,
     .frequencyString = "00 00 00 00 10",
     .convertsToHex = true,
     .greeting = rig_facts::kFiveNuls,
     .farewell = rig_facts::kYaesuFarewell,
     .request = rig_facts::kFiveBytes,
     .readFrequency = ReadYaesu757,
     .pausesMs = {205},
     .frequencyCommand = YaesuReversedFrequency,
     .modeCommand = YaesuReversedMode},
    rig_facts::StatusBlockRig("Yaesu 890", ReadStatusBlock<kYaesu890Field>, 205),
    rig_facts::StatusBlockRig("Yaesu 920", ReadStatusBlock<kYaesu920Field>, 205),
    rig_facts::StatusBlockRig("Yaesu 990", ReadStatusBlock<kYaesu990Field>, 205),
    rig_facts::StatusBlockRig("Yaesu 1000 D", ReadStatusBlock<kYaesu990Field>, 205),
    rig_facts::StatusBlockRig("Yaesu 1000", ReadStatusBlock<kYaesu1000Field>, 10),
    {.name = "Yaesu FTdx9000",
     .serial = rig_facts::kOnly4800,  // the other settings stay those of the radio clicked before
     .frequencyString = "FA;",
     .modeString = "MD0;",
     .request = {.coding = RequestCoding::Text, .turn = RequestTurn::Alternating, .leastLength = 2},
     .readFrequency = ReadDualCommand,
     .readMode = ReadDualCommand,  // whichever was asked for: a late reply is read as well
     .pausesMs = {205},
     .frequencyCommand = DualFrequency,
     .modeCommand = DualMode},
    {.name = "Other", .choosesConversion = true, .request = {.coding = RequestCoding::AsChosen}},
    {.name = "Yaesu FTdx10",
     .serial = rig_facts::k38400,
     .frequencyString = "FA;",
     .modeString = "MD0;",
     .request = {.coding = RequestCoding::Text, .turn = RequestTurn::Alternating, .leastLength = 2},
     .readFrequency = ReadNineDigitCommand,
     .readMode = ReadNineDigitCommand,
     .lossEmptiesFrequency = true,
     .pausesMs = {205},
     .frequencyCommand = NineDigitFrequency,
     .modeCommand = DualMode},
    {.name = "Hamlib (rigctld)",
     .link = RigLink::Server,
     .server = {.dialect = &kRigctld, .hostKey = "RigctldHost", .portKey = "RigctldPort", .usualPort = "4532"},
     .lossEmptiesFrequency = true},
    {.name = "flrig",
     .link = RigLink::Server,
     .server = {.dialect = &kFlrig, .hostKey = "FlrigHost", .portKey = "FlrigPort", .usualPort = "12345"},
     .lossEmptiesFrequency = true},
}};

/// The row of a name; the one of "None" for a name that is none.
constexpr const RigRow& RigNamed(std::string_view name) {
    const auto* row = std::ranges::find(kRigs, name, &RigRow::name);
    return row == kRigs.end() ? kRigs.front() : *row;
}

}  // namespace tallyhut
