#pragma once

#include <string>

namespace tallyhut {

/// What a keyring has to say.
struct KeyringAnswer {
    enum class Kind {
        Nothing,
        There,   ///< there is a keyring
        Absent,  ///< there is none, and the text says why
        Secret,  ///< what was fetched; empty where nothing is kept
        Failed,  ///< the text says what was refused
    };

    Kind kind = Kind::Nothing;
    std::string place = {};  ///< whose secret it is; of Secret and Failed
    std::string text = {};

    bool operator==(const KeyringAnswer&) const = default;
};

/// The desktop's keyring, where secrets are kept beyond the end of the program, by the place that they open. A keyring
/// may first ask the operator to unlock it, in a dialog of the desktop's own, so no operation waits: what comes of it
/// is taken as answers. What is asked for comes in order; the end of the program waits for none of it.
struct Keyring {
    virtual ~Keyring() = default;

    /// Is there one? Answered by There or Absent.
    virtual void Look() = 0;
    /// Answered by Secret or Failed.
    virtual void Fetch(const std::string& place) = 0;
    /// In place of the one that is kept. Answered by Failed, or not at all.
    virtual void Keep(const std::string& place, const std::string& secret) = 0;
    /// Answered by Failed, or not at all.
    virtual void Forget(const std::string& place) = 0;
    /// The next answer, the oldest first.
    virtual KeyringAnswer Take() = 0;
    /// Has something to read whenever Take may have an answer; the same for as long as the keyring lives.
    virtual int EventDescriptor() const = 0;

    /// From now on to its end the system writes no image of the program's memory, whatever becomes of it: where a
    /// secret has been held once, something may be left of it.
    virtual void ShieldMemory() = 0;
};

}  // namespace tallyhut
