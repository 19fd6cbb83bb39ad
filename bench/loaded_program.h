#pragma once

#include <string>

#include "bench/full_log.h"
#include "platform/sim/machine.h"
#include "tests/program_units.h"

namespace tallyhut {

struct LogSetting {
    static constexpr std::int64_t kContest = 108'000;

    std::int64_t duration = kContest;  ///< from the first contact to the last, in seconds
    sim::InPlaceOfTwins real = {};
    std::string folder = "/contest";
};

/// The whole program on a simulated machine with a log of so many contacts; some devices and the folder may be real.
struct LoadedProgram : sim::Machine {
    explicit LoadedProgram(int contacts, const LogSetting& setting = {})
        : sim::Machine{{2026, 11, 8, 21, 0, 0}}, program{Lend(setting.real), setting.folder} {
        program.ShowWithoutQuestions();
        program.form1.Show();
        Lend(setting.real).files.Write(setting.folder + "/Log.txt", FullLog(contacts, clock.Now(), setting.duration));
        program.reload.mnuopen2();
        program.time.gTimeOn = 1;
        program.desk.RunPending();
    }

    void Type(const std::string& text) {
        for (const char character : text) {
            program.desk.PostKey(KeyForCharacter(static_cast<unsigned char>(character)));
            program.desk.RunPending();
        }
    }

    ProgramUnits program;
};

}  // namespace tallyhut
