#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace tallyhut {

/// Plays one wave file at a time on the default output. Nothing waits for the sound system: what only shows there (no
/// sound card, one that is unplugged, a server that does not answer) is no failure of an operation, it ends the
/// playing.
struct WavePlayer {
    static constexpr int kPlaying = 526;

    virtual ~WavePlayer() = default;

    /// Takes the file that Play plays, in the place of the one before. Throws PlatformError, and no file is open then,
    /// where no file can be read, and for what is no wave file or none of a known coding. The file may be removed or
    /// replaced while it is open.
    virtual void Open(const std::string& path) = 0;
    /// Plays the open file from its beginning, whatever was playing, and returns at once. Without an open file it does
    /// nothing.
    virtual void Play() = 0;
    /// Silence. The file stays open.
    virtual void Stop() = 0;
    /// Silence, and no file is open.
    virtual void Close() = 0;
    /// kPlaying from Play to the last sample's way out of the loudspeaker, unless something ended the playing before;
    /// at the latest a second longer than the file, counted from its first sample on, or from Play until that is
    /// asked for. Else 0.
    virtual int Mode() const = 0;
    /// Of the open file, the last millisecond counted whole; 0 if there is none.
    virtual std::chrono::milliseconds Length() const = 0;
};

/// Records from the default input into a wave file: 44,100 Hz, one channel, 16 bits. One that ends in a recording
/// throws away what it has recorded.
struct WaveRecorder {
    static constexpr std::chrono::minutes kLongest{10};  ///< a recording ends there by itself
    static constexpr int kRate = 44'100;
    static constexpr const char* kNothingRecorded = "Nothing was recorded";

    virtual ~WaveRecorder() = default;

    /// Begins a recording; one that is not saved yet is thrown away. No file is touched before Stop. Throws
    /// PlatformError, with the reason, where there is no input, or none that answers within a second.
    virtual void Start(const std::string& path) = 0;
    /// Ends the recording and puts it in the place of the file, in one step. Throws PlatformError where that fails
    /// (Files::Replace), and what was recorded is kept for another Stop, and where nothing was recorded. Does nothing
    /// where all is saved.
    virtual void Stop() = 0;
    /// From Start to Stop, unless the longest time is over or the input is gone. Stop saves what there is then, too.
    virtual bool IsRecording() const = 0;
    /// The greatest level since it was last asked for, 0 to 1; 1 is as much as the file can hold.
    virtual double Level() = 0;
    /// Of what is recorded and not yet saved.
    virtual std::chrono::milliseconds Length() const = 0;
};

/// The sound of the machine. What it makes may outlive it by nothing.
struct Sound {
    virtual ~Sound() = default;

    /// One with nothing open. Each plays by itself, so two may be heard at once. The name is the form's that it plays
    /// for.
    virtual std::unique_ptr<WavePlayer> NewPlayer(std::string name) = 0;
    virtual std::unique_ptr<WaveRecorder> NewRecorder() = 0;
};

}  // namespace tallyhut
