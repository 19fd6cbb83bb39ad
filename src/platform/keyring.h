#pragma once

namespace tallyhut {

/// The desktop's keyring, where passwords are kept beyond the end of the program.
struct Keyring {
    virtual ~Keyring() = default;
};

}  // namespace tallyhut
