#pragma once

#include <array>

#include "forms/CWFrm.h"
#include "toolkit/key.h"

namespace tallyhut {

/// What FKeyCW knows F10 by: its own code means nothing there.
inline constexpr int kCwKeyF10 = 124;

/// A function key and the field of its message.
struct MessageKey {
    int code;
    TextBox CWFrm::*message;
};

/// F1 to F11 in order.
inline constexpr std::array kMessageKeys{
    MessageKey{kKeyF1, &CWFrm::Text1},     MessageKey{kKeyF1 + 1, &CWFrm::Text2}, MessageKey{kKeyF1 + 2, &CWFrm::Text3},
    MessageKey{kKeyF1 + 3, &CWFrm::Text4}, MessageKey{kKeyF1 + 4, &CWFrm::Text5}, MessageKey{kKeyF1 + 5, &CWFrm::Text6},
    MessageKey{kKeyF1 + 6, &CWFrm::Text7}, MessageKey{kKeyF1 + 7, &CWFrm::Text8}, MessageKey{kKeyF1 + 8, &CWFrm::Text9},
    MessageKey{kCwKeyF10, &CWFrm::Text12}, MessageKey{122, &CWFrm::Text13},
};

/// Of F9: what the test sends.
inline constexpr int kTestKey = kKeyF1 + 8;

}  // namespace tallyhut
