#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "forms/RigControlfrm.h"

namespace tallyhut {

/// An option of the form and what it is in the settings.
struct StoredOption {
    Option RigControlfrm::*option;
    std::string_view stored;
};

inline constexpr std::array<StoredOption, 9> kBaudOptions{{
    {&RigControlfrm::optBaud12, "1200"},
    {&RigControlfrm::optBaud24, "2400"},
    {&RigControlfrm::optBaud48, "4800"},
    {&RigControlfrm::optBaud96, "9600"},
    {&RigControlfrm::optBaud144, "14400"},
    {&RigControlfrm::optBaud192, "19200"},
    {&RigControlfrm::optBaud288, "28800"},
    {&RigControlfrm::optBaud384, "38400"},
    {&RigControlfrm::optBaud560, "56000"},
}};
inline constexpr std::array<StoredOption, 3> kParityOptions{{
    {&RigControlfrm::optParityOdd, "O"},
    {&RigControlfrm::optParityNone, "N"},
    {&RigControlfrm::optParityEven, "E"},
}};
inline constexpr std::array<StoredOption, 2> kDataOptions{{
    {&RigControlfrm::optData7, "7"},
    {&RigControlfrm::optData8, "8"},
}};
inline constexpr std::array<StoredOption, 2> kStopOptions{{
    {&RigControlfrm::optStop1, "1"},
    {&RigControlfrm::optStop2, "2"},
}};
inline constexpr std::array<StoredOption, 3> kPowerOptions{{
    {&RigControlfrm::optPowerNone, "N"},
    {&RigControlfrm::optPowerRTS, "R"},
    {&RigControlfrm::optPowerDTR, "D"},
}};
inline constexpr std::array<StoredOption, 4> kPollOptions{{
    {&RigControlfrm::optPollFast, "F"},
    {&RigControlfrm::optPollMed, "M"},
    {&RigControlfrm::optPollSlow, "S"},
    {&RigControlfrm::optReallySlow, "R"},
}};
inline constexpr std::array<StoredOption, 3> kModeByOptions{{
    {&RigControlfrm::OptRig, "1"},
    {&RigControlfrm::OptFreq, "2"},
    {&RigControlfrm::OptDont, "3"},
}};

/// The interval of the poll's timer: half of what the option promises, for one tick sends and the next one reads.
struct PollRate {
    std::string_view letter;
    std::int32_t intervalMs;
};
inline constexpr std::array<PollRate, 4> kPollRates{{{"F", 50}, {"M", 250}, {"S", 1000}, {"R", 5000}}};

/// What the chosen option of a group is in the settings.
template <std::size_t Size>
std::string_view Chosen(const RigControlfrm& form, const std::array<StoredOption, Size>& group) {
    for (const StoredOption& row : group) {
        if ((form.*row.option).Value()) {
            return row.stored;
        }
    }
    return {};
}

/// Chooses the option that a stored text stands for; none of them for a text that is none.
template <std::size_t Size>
void Choose(RigControlfrm& form, const std::array<StoredOption, Size>& group, std::string_view stored) {
    for (const StoredOption& row : group) {
        if (row.stored == stored) {
            (form.*row.option).SetValue(true);
        }
    }
}

}  // namespace tallyhut
