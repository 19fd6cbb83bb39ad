// What the log's file costs on a real disk, beside what bare system calls and plain C cost for the same, in turn.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "bench/loaded_program.h"
#include "platform/real/posix_files.h"
#include "tests/platform/temporary_folder.h"

namespace tallyhut {
namespace {

constexpr int kFull = 11'000;

using Moment = std::chrono::steady_clock::time_point;

/// The machine's files, and when they had last brought a record to the disk.
struct TimedFiles : PosixFiles {
    using PosixFiles::Append;
    FileMark Append(const std::string& path, std::string_view record,
                    const std::optional<FileMark>& expected) override {
        const FileMark mark = PosixFiles::Append(path, record, expected);
        durable = std::chrono::steady_clock::now();
        return mark;
    }

    Moment durable;
};

/// Two ways of the same, in microseconds.
class Beside {
public:
    void Add(std::chrono::steady_clock::duration ours, std::chrono::steady_clock::duration bare) {
        const auto inMicroseconds = [](auto time) { return std::chrono::duration<double, std::micro>(time).count(); };
        ours_.push_back(inMicroseconds(ours));
        bare_.push_back(inMicroseconds(bare));
    }
    void Tell(benchmark::State& state) {
        const double ours = Median(ours_);
        const double bare = Median(bare_);
        state.counters["ours_us"] = ours;
        state.counters["bare_us"] = bare;
        state.counters["ratio"] = ours / bare;
    }

private:
    static double Median(std::vector<double>& times) {
        std::ranges::sort(times);
        return times.at(times.size() / 2);
    }

    std::vector<double> ours_;
    std::vector<double> bare_;
};

template <typename Action>
std::chrono::steady_clock::duration TimeOf(const Action& action) {
    const Moment begin = std::chrono::steady_clock::now();
    action();
    return std::chrono::steady_clock::now() - begin;
}

void Require(bool done) {
    if (!done) {
        std::perror("bench");
        std::abort();
    }
}

void BareAppend(const std::string& path, const std::string& record) {
    const int file = open(path.c_str(), O_WRONLY | O_APPEND);
    Require(file >= 0);
    Require(write(file, record.data(), record.size()) == static_cast<ssize_t>(record.size()));
    Require(fdatasync(file) == 0);
    Require(close(file) == 0);
}

/// As a plain program would keep it: characters in rows of arrays.
struct BareRow {
    std::array<std::array<char, 32>, 10> fields;
};

std::string BareRead(const std::string& path) {
    std::string text;
    std::FILE* const file = std::fopen(path.c_str(), "rb");
    Require(file != nullptr);
    std::array<char, 65'536> block{};
    for (std::size_t count = 0; (count = std::fread(block.data(), 1, block.size(), file)) > 0;) {
        text.append(block.data(), count);
    }
    std::fclose(file);
    return text;
}

void BareReadAndSplit(const std::string& path, std::vector<BareRow>& rows) {
    const std::string text = BareRead(path);
    rows.clear();
    for (const char* at = text.c_str(); *at != '\0';) {
        BareRow& row = rows.emplace_back();
        for (auto& field : row.fields) {
            const char* const begin = std::strchr(at, '"') + 1;
            const char* const end = std::strchr(begin, '"');
            const auto length = std::min<std::size_t>(static_cast<std::size_t>(end - begin), field.size() - 1);
            std::memcpy(field.data(), begin, length);
            field[length] = '\0';
            at = end + 1;
        }
        at = std::strchr(at, '\n') + 1;
    }
    benchmark::DoNotOptimize(rows.data());
}

void BareRewrite(const std::string& path, const std::vector<BareRow>& rows) {
    const std::string beside = path + ".new";
    std::FILE* const file = std::fopen(beside.c_str(), "wb");
    Require(file != nullptr);
    for (const BareRow& row : rows) {
        for (std::size_t field = 0; field < row.fields.size(); ++field) {
            std::fprintf(file, field == 0 ? "\"%s\"" : ",\"%s\"", row.fields[field].data());
        }
        std::fputs("\r\n", file);
    }
    Require(std::fflush(file) == 0 && fsync(fileno(file)) == 0 && std::fclose(file) == 0);
    Require(std::rename(beside.c_str(), path.c_str()) == 0);
}

/// From Enter to the record on the disk.
void EnterToDurable(benchmark::State& state) {
    const TemporaryFolder folder;
    const TemporaryFolder bareFolder;
    TimedFiles files;
    const int before = static_cast<int>(state.range(0));
    LoadedProgram loaded{before, {.real = {.files = &files}, .folder = folder.Path()}};
    const std::string bare = bareFolder.At("Log.txt");
    files.Write(bare, FullLog(before, loaded.clock.Now()));
    const std::string record = FullLog(1, loaded.clock.Now());
    Beside times;
    int n = 0;
    for (auto _ : state) {
        loaded.Type("88APJ2" + CallOf(++n).substr(2) + "72MDC");
        const Moment pressed = std::chrono::steady_clock::now();
        loaded.Type("\r");
        const auto ours = files.durable - pressed;
        times.Add(ours, TimeOf([&] { BareAppend(bare, record); }));
    }
    times.Tell(state);
    state.counters["logged"] = loaded.program.log.gContactCount() - before;
}
BENCHMARK(EnterToDurable)->Arg(1'000)->Arg(10'600)->Iterations(300)->Unit(benchmark::kMicrosecond);

void Reload(benchmark::State& state) {
    const TemporaryFolder folder;
    PosixFiles files;
    LoadedProgram loaded{kFull, {.real = {.files = &files}, .folder = folder.Path()}};
    std::vector<BareRow> rows;
    Beside times;
    for (auto _ : state) {
        const auto ours = TimeOf([&] { loaded.program.reload.mnuopen2(); });
        times.Add(ours, TimeOf([&] { BareReadAndSplit(folder.At("Log.txt"), rows); }));
    }
    times.Tell(state);
}
BENCHMARK(Reload)->Iterations(200)->Unit(benchmark::kMillisecond);

/// What an edit or a delete does after its form: the file anew, and all counts from it.
void RewriteAndReload(benchmark::State& state) {
    const TemporaryFolder folder;
    PosixFiles files;
    LoadedProgram loaded{kFull, {.real = {.files = &files}, .folder = folder.Path()}};
    const TemporaryFolder bareFolder;
    const std::string bare = bareFolder.At("Log.txt");
    files.Copy(folder.At("Log.txt"), bare);
    std::vector<BareRow> rows;
    BareReadAndSplit(bare, rows);
    Beside times;
    for (auto _ : state) {
        const auto ours = TimeOf([&] {
            loaded.program.logFile.Rewrite(loaded.program.log);
            loaded.program.reload.mnuopen2();
        });
        times.Add(ours, TimeOf([&] {
                      BareRewrite(bare, rows);
                      BareReadAndSplit(bare, rows);
                  }));
    }
    times.Tell(state);
}
BENCHMARK(RewriteAndReload)->Iterations(100)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tallyhut
