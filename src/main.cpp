#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <variant>
#include <vector>

#include "app/about.h"
#include "app/options.h"
#include "console/console_host.h"
#include "platform/platform_error.h"
#include "platform/real/posix_files.h"
#include "values/value_error.h"
#include "window_main.h"

namespace {

bool HasDisplay() {
    constexpr std::array kNames{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::ranges::any_of(kNames, [](const char* name) {
        const char* value = std::getenv(name);
        return value != nullptr && *value != '\0';
    });
}

/// Where the files of a fresh installation lie: beside the installed program, or in the sources it was built from.
std::string DataFolder() {
    std::error_code failure;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", failure);
    const std::filesystem::path installed = program.parent_path().parent_path() / "share" / "tallyhut";
    const bool found = !failure && std::filesystem::exists(installed / "BandPlan.txt", failure);
    return found ? installed.string() : TALLYHUT_SOURCE_DATA;
}

std::string AbsoluteFolder(const std::string& folder, const std::string& current) {
    return folder.starts_with('/') ? folder : current + '/' + folder;
}

/// The options, or the status to end with.
std::variant<tallyhut::Options, int> TakeOptions(int argc, char** argv) try {
    using namespace tallyhut;
    Options options = ParseOptions({argv + 1, argv + argc});
    if (options.help) {
        std::cout << UsageText();
        return 0;
    }
    if (options.version) {
        std::cout << "tallyhut " << ProgramVersion() << "\n";
        return 0;
    }
    return options;
} catch (const tallyhut::ValueError& error) {
    std::cerr << "tallyhut: " << error.what() << "\n" << tallyhut::UsageText();
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace tallyhut;
    std::signal(SIGPIPE, SIG_IGN);  // nobody at the other end is a write that fails, not the end of the program
    try {
        const std::variant<Options, int> taken = TakeOptions(argc, argv);
        if (const auto* const status = std::get_if<int>(&taken)) {
            return *status;
        }
        const Options& options = *std::get_if<Options>(&taken);
        const std::string current = PosixFiles{}.CurrentFolder();
        const std::string directory = options.directory ? AbsoluteFolder(*options.directory, current) : current;
        if (!options.console && !HasDisplay()) {
            std::cerr << "tallyhut: there is no display; starting the console host (docs/console.md)\n";
        }
        if (options.console || !HasDisplay()) {
            return RunConsole(options, directory, DataFolder(), 0, std::cout);
        }
        return RunWindow(argc, argv, options, directory, DataFolder());
    } catch (const ValueError& error) {
        std::cerr << "tallyhut: " << error.what() << "\n";
        return 2;
    } catch (const PlatformError& error) {
        std::cerr << "tallyhut: " << error.what() << "\n";
        return 1;
    }
}
