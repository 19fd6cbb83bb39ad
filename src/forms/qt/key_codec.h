#pragma once

#include <QKeyEvent>
#include <optional>
#include <vector>

#include "toolkit/key.h"

namespace tallyhut {

/// The key press that an event of the desktop tells. Nothing for a modifier pressed alone, a dead key, a character
/// beyond Latin-1, a key without a code of ours, and for what the desktop's own (Super) modifier goes with.
std::optional<Key> KeyFromEvent(const QKeyEvent& event);

/// The key presses that would type what an input method has composed.
std::vector<Key> KeysFromText(const QString& composed);

}  // namespace tallyhut
