#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

/// Inputs for what reads bytes from outside, the same ones in each run.
class Damage {
public:
    explicit Damage(unsigned seed) : random_{seed} {}

    /// From 0 up to below the limit.
    std::size_t Below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>{0, limit - 1}(random_); }
    /// At most so many.
    std::string RandomBytes(std::size_t most) {
        std::string bytes(Below(most + 1), '\0');
        for (char& one : bytes) {
            one = static_cast<char>(Below(256));
        }
        return bytes;
    }
    /// One of the good inputs with up to four changes: a byte is another, is gone, is one more of those that mean
    /// something, or another good input follows.
    std::string Damaged(const std::vector<std::string>& good, std::string_view meaningful) {
        std::string bytes = good.at(Below(good.size()));
        for (std::size_t left = Below(4) + 1; left > 0 && !bytes.empty(); --left) {
            const std::size_t place = Below(bytes.size());
            switch (Below(4)) {
                case 0:
                    bytes[place] = static_cast<char>(Below(256));
                    break;
                case 1:
                    bytes.erase(place, 1);
                    break;
                case 2:
                    bytes.insert(place, 1, meaningful[Below(meaningful.size())]);
                    break;
                default:
                    bytes += good.at(Below(good.size()));
            }
        }
        return bytes;
    }

private:
    std::mt19937 random_;
};

}  // namespace tallyhut
