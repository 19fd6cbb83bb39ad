#pragma once

#include <string>
#include <vector>

namespace tallyhut {

/// A change of the key.
struct KeyChange {
    double atMs = 0;  ///< from wherever; only differences count
    bool down = false;
};

/// What a decoder that is not ours makes of a key: its changes become a tone with soft edges, which sox brings into the
/// form that multimon-ng listens to. Words with a blank between, whatever the pauses. The decoder is told the speed, as
/// it would otherwise take the first letters to find it. Throws std::runtime_error where the two programs cannot be
/// run.
std::string HeardByDecoder(const std::vector<KeyChange>& changes, double wpm);

}  // namespace tallyhut
