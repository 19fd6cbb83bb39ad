#include "tests/console/console_driver.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace tallyhut {
namespace {

[[noreturn]] void Fail(const char* what) {
    throw std::system_error{errno, std::generic_category(), what};
}

[[noreturn]] void Become(const std::string& folder, const std::vector<std::string>& options) {
    std::vector<std::string> words{TALLYHUT_PROGRAM, "--console", "--directory", folder};
    words.insert(words.end(), options.begin(), options.end());
    std::vector<char*> arguments;
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    const std::string settings = folder + "/.config";
    setenv("XDG_CONFIG_HOME", settings.c_str(), 1);
    setenv("HOME", folder.c_str(), 1);
    unsetenv("USERPROFILE");
    execv(arguments[0], arguments.data());
    _exit(127);
}

}  // namespace

ConsoleDriver::ConsoleDriver(const std::string& folder, const std::vector<std::string>& options, Questions questions) {
    const bool hasLog = std::filesystem::exists(folder + "/Log.txt");
    std::array<int, 2> toProgram{};
    std::array<int, 2> fromProgram{};
    if (pipe2(toProgram.data(), O_CLOEXEC) != 0 || pipe2(fromProgram.data(), O_CLOEXEC) != 0) {
        Fail("pipe");
    }
    std::signal(SIGPIPE, SIG_IGN);
    process_ = fork();
    if (process_ < 0) {
        Fail("fork");
    }
    if (process_ == 0) {
        dup2(toProgram[0], 0);
        dup2(fromProgram[1], 1);
        Become(folder, options);
    }
    close(toProgram[0]);
    close(fromProgram[1]);
    input_ = toProgram[1];
    output_ = fromProgram[0];
    greeting_ = ReadTurn();
    if (questions == Questions::Answered && lastTurn_.find("frmStationID") != std::string::npos) {
        Do("click Command1");
        Do(hasLog ? "answer Yes" : "answer No");
        if (!hasLog) {
            Do(R"(answer "YES")");
        }
    }
}

ConsoleDriver::~ConsoleDriver() {
    if (!waited_) {
        kill(process_, SIGKILL);
        Wait();
    }
    close(output_);
    if (input_ >= 0) {
        close(input_);
    }
}

bool ConsoleDriver::ReadLine(std::string& line) {
    std::size_t end = 0;
    while ((end = buffer_.find('\n')) == std::string::npos) {
        std::array<char, 65'536> chunk{};
        const ssize_t count = read(output_, chunk.data(), chunk.size());
        if (count <= 0) {
            return false;
        }
        buffer_.append(chunk.data(), static_cast<std::size_t>(count));
    }
    line = buffer_.substr(0, end);
    buffer_.erase(0, end + 1);
    return true;
}

std::vector<std::string> ConsoleDriver::ReadTurn() {
    std::vector<std::string> lines;
    std::string line;
    lastTurn_.clear();
    while (ReadLine(line)) {
        if (line.starts_with(R"({"ready":)")) {
            lastTurn_ = line;
            return lines;
        }
        lines.push_back(line);
        if (line.starts_with(R"({"event":"exit")")) {
            lastTurn_ = line;
        }
    }
    return lines;
}

void ConsoleDriver::Send(const std::string& command) const {
    const std::string line = command + '\n';
    if (write(input_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) {
        Fail("the program takes no command");
    }
}

std::vector<std::string> ConsoleDriver::Do(const std::string& command) {
    Send(command);
    return ReadTurn();
}

std::string ConsoleDriver::Get(const std::string& target) {
    const std::vector<std::string> lines = Do("get " + target);
    constexpr std::string_view kBegin = R"({"value":)";
    if (lines.size() != 1 || !lines[0].starts_with(kBegin)) {
        return lines.empty() ? "(nothing)" : lines[0];
    }
    return lines[0].substr(kBegin.size(), lines[0].size() - kBegin.size() - 1);
}

void ConsoleDriver::LogContact(const std::string& exchange) {
    Do("type \"" + exchange + "\"");
    Do("key Enter");
}

std::vector<std::string> ConsoleDriver::CloseInput() {
    close(input_);
    input_ = -1;
    return ReadTurn();
}

int ConsoleDriver::Wait() {
    if (!waited_) {
        int status = 0;
        waitpid(process_, &status, 0);
        waited_ = true;
        status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    return status_;
}

ContestFolder::ContestFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tallyhut-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        Fail("mkdtemp");
    }
    path_ = name;
}

ContestFolder::~ContestFolder() {
    std::error_code ignored;  // a folder left behind is no failure of the test
    std::filesystem::remove_all(path_, ignored);
}

std::string ContestFolder::Read(const std::string& name) const {
    std::ifstream in{path_ + '/' + name, std::ios::binary};
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

void ContestFolder::Write(const std::string& name, const std::string& content) const {
    std::ofstream{path_ + '/' + name, std::ios::binary} << content;
}

bool ContestFolder::Has(const std::string& name) const {
    return std::filesystem::exists(path_ + '/' + name);
}

}  // namespace tallyhut
