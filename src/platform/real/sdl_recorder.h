#pragma once

#include <memory>
#include <string>

#include "platform/real/sdl_audio.h"
#include "platform/sound.h"

namespace tallyhut {

/// Records from the desktop's sound, into memory until it is saved. Each recording has a thread of its own, since the
/// sound system may hang.
class SdlRecorder : public WaveRecorder {
public:
    SdlRecorder(Files& files, std::shared_ptr<SdlAudio> audio);
    ~SdlRecorder() override;
    SdlRecorder(const SdlRecorder&) = delete;
    SdlRecorder& operator=(const SdlRecorder&) = delete;

    void Start(const std::string& path) override;
    void Stop() override;
    bool IsRecording() const override;
    double Level() override;
    std::chrono::milliseconds Length() const override;

    struct Recording;

private:
    void End();

    Files& files_;
    std::shared_ptr<SdlAudio> audio_;
    std::shared_ptr<Recording> recording_;  // none once all is saved
    std::string path_;
};

}  // namespace tallyhut
