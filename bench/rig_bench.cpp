// What a poll of the radio takes from the operator: it runs many times a second beside the typing.

#include <benchmark/benchmark.h>

#include "bench/loaded_program.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

/// A read tick with a whole reply, the form open; the radio stays on its band.
void ReadTick(benchmark::State& state, std::string_view rig, const std::string& reply) {
    LoadedProgram loaded{0};
    ProgramUnits& program = loaded.program;
    program.rigForm.Show();
    program.preferences.gRigName = rig;
    program.preferences.gBand = "20";
    program.rigForm.txtFreq.SetText(RigNamed(rig).frequencyString);
    program.rigForm.txtMode.SetText(RigNamed(rig).modeString);
    program.comComm1.Open();
    for (auto _ : state) {
        state.PauseTiming();
        program.rigState.ReadPhase = 1;
        program.rigState.ModeTurn = 1;
        loaded.serialPorts.Line(1).Receive(reply);
        state.ResumeTiming();
        program.rigPoll.tmrGetData_Elapsed();
    }
    state.SetLabel(program.rigForm.lblFreq.Caption());
}

void ReadTickOfATextRadio(benchmark::State& state) {
    ReadTick(state, "Kenwood", "FA00014200000;MD3;");
}
BENCHMARK(ReadTickOfATextRadio);

void ReadTickOfABusRadio(benchmark::State& state) {
    ReadTick(state, "Icom", HexToBytes("FEFE64E003FDFEFEE064030000201400FD"));
}
BENCHMARK(ReadTickOfABusRadio);

void ReadTickOfAStatusBlock(benchmark::State& state) {
    ReadTick(state, "Yaesu 890", HexToBytes("000015AAE0000002"));
}
BENCHMARK(ReadTickOfAStatusBlock);

}  // namespace
}  // namespace tallyhut
