#pragma once

#include <string>

#include "bench/full_log.h"
#include "platform/sim/machine.h"
#include "tests/program_units.h"

namespace tallyhut {

/// The whole program on a simulated machine with a log of so many contacts; its serial ports may be real ones.
struct LoadedProgram : sim::Machine {
    static constexpr std::int64_t kContest = 108'000;  ///< seconds

    explicit LoadedProgram(int contacts, SerialPorts* realPorts = nullptr, std::int64_t duration = kContest)
        : sim::Machine{{2026, 11, 8, 21, 0, 0}}, program{Lend({.serialPorts = realPorts}), "/contest"} {
        program.ShowWithoutQuestions();
        program.form1.Show();
        files.Put("/contest/Log.txt", FullLog(contacts, clock.Now(), duration));
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
