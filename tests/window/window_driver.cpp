#include "tests/window/window_driver.h"

#include <X11/Xlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include "tests/window/processes.h"

namespace tallyhut {
namespace {

/// The screen tells its number when it takes connections, and does not start over when a client was its only one: a
/// program that connects at that moment would be refused. It repeats no key, however long the machine keeps it down.
std::string StartScreen(pid_t& screen, const std::string& size) {
    const std::vector<std::string> words{"Xvfb",       "-displayfd", "{}",  "-screen",  "0",
                                         size + "x24", "-nolisten",  "tcp", "-noreset", "-r"};
    return ":" + StartAndReadLine(screen, words, [] {});
}

}  // namespace

bool Eventually(const std::function<bool()>& claim) {
    constexpr int kLooks = 250;
    constexpr useconds_t kBetweenLooks = 20'000;
    for (int look = 0; look < kLooks; ++look) {
        if (claim()) {
            return true;
        }
        usleep(kBetweenLooks);
    }
    return false;
}

WindowDriver::WindowDriver(const std::string& folder, const std::string& screenSize, const Companion& companion)
    : display_{StartScreen(screen_, screenSize)} {
    const Environment added = companion ? companion(display_) : Environment{};
    program_ = StartProcess({TALLYHUT_PROGRAM, "--directory", folder}, [this, &folder, &added] {
        setenv("DISPLAY", display_.c_str(), 1);
        setenv("XDG_CONFIG_HOME", (folder + "/.config").c_str(), 1);
        setenv("HOME", folder.c_str(), 1);
        setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        unsetenv("WAYLAND_DISPLAY");
        setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);  // else a bus might be started for the screen
        unsetenv("USERPROFILE");
        for (const auto& [name, value] : added) {
            setenv(name.c_str(), value.c_str(), 1);
        }
    });
    // A first start: the station as it stands, no log to continue, YES to a new one.
    AnswerWindow("Amateur Station", "Return");
    AnswerWindow("Open existing log", "alt+n");
    AnswerWindow("WARNING", "Y E S Return");
    AnswerWindow("Q7ZZQ", "");
}

std::string WindowDriver::Find(const std::string& title) const {
    const std::string ofProgram = "--pid " + std::to_string(program_);  // the screen itself has an empty title, too
    return Run("xdotool search --onlyvisible --all " + ofProgram + " --name '" + title +
               "' 2>/dev/null | head -n 1 | tr -d '\\n'");
}

void WindowDriver::AnswerWindow(const std::string& title, const std::string& keys) {
    if (!Eventually([&] { return !Find(title).empty(); })) {
        KeepScreenshot("no window " + title);
        EndAll();
        throw std::runtime_error{"no window comes up: " + title};
    }
    Run("xdotool windowfocus --sync " + Find(title));
    if (!keys.empty()) {
        Press(keys);
    }
}

WindowDriver::~WindowDriver() {
    EndAll();
}

void WindowDriver::EndAll() {
    EndProcess(program_, SIGKILL);
    EndProcess(screen_, SIGTERM);
}

std::string WindowDriver::Run(const std::string& command) const {
    const std::string line = "DISPLAY=" + display_ + "; export DISPLAY; " + command;
    FILE* pipe = popen(line.c_str(), "r");
    std::string output;
    std::array<char, 4'096> chunk{};
    for (std::size_t count = 1; count > 0;) {
        count = fread(chunk.data(), 1, chunk.size(), pipe);
        output.append(chunk.data(), count);
    }
    pclose(pipe);
    return output;
}

void WindowDriver::Type(const std::string& text) const {
    Run("xdotool type --delay 5 -- '" + text + "'");
}

void WindowDriver::Press(const std::string& keys) const {
    Run("xdotool key --delay 5 " + keys);
}

void WindowDriver::Click(int x, int y, int button) const {
    Run("xdotool mousemove " + std::to_string(x) + ' ' + std::to_string(y) + " click " + std::to_string(button));
}

std::string WindowDriver::PixelAt(int x, int y) const {
    const std::string at = std::to_string(x) + "+" + std::to_string(y);
    const std::string text = Run("import -silent -window root -crop 1x1+" + at + " -depth 8 txt:- | tail -n 1");
    const std::size_t hash = text.find('#');
    return hash == std::string::npos ? "" : text.substr(hash, 7);
}

int WindowDriver::CountPixels(const std::string& colour) const {
    const std::string pixels = Run("import -silent -window root -depth 8 rgb:-");
    std::string wanted;
    for (const std::size_t at : {1, 3, 5}) {
        wanted += static_cast<char>(std::stoi(colour.substr(at, 2), nullptr, 16));
    }
    int count = 0;
    for (std::size_t at = 0; at + wanted.size() <= pixels.size(); at += wanted.size()) {
        count += pixels.compare(at, wanted.size(), wanted) == 0 ? 1 : 0;
    }
    return count;
}

std::string WindowDriver::PictureOf(int x, int y, int width, int height) const {
    const std::string size = std::to_string(width) + 'x' + std::to_string(height);
    const std::string at = '+' + std::to_string(x) + '+' + std::to_string(y);
    return Run("import -silent -window root -crop " + size + at + " -depth 8 rgb:- | md5sum");
}

void WindowDriver::CloseWindow(const std::string& title) const {
    Display* display = XOpenDisplay(display_.c_str());
    if (display == nullptr) {
        throw std::runtime_error{"no connection to " + display_};
    }
    XEvent message{};
    message.xclient.type = ClientMessage;
    message.xclient.window = std::strtoul(Find(title).c_str(), nullptr, 10);
    message.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
    message.xclient.format = 32;
    message.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
    XSendEvent(display, message.xclient.window, False, NoEventMask, &message);
    XCloseDisplay(display);
}

void WindowDriver::ResizeWindow(const std::string& title, int width, int height) const {
    Run("xdotool windowsize --sync " + Find(title) + ' ' + std::to_string(width) + ' ' + std::to_string(height));
}

void WindowDriver::Signal(int signal) const {
    kill(program_, signal);
}

int WindowDriver::Wait() {
    return EndProcess(program_, 0);
}

void WindowDriver::KeepScreenshot(const std::string& name) const {
    mkdir(TALLYHUT_SCREENSHOTS, 0777);
    Run("import -silent -window root '" TALLYHUT_SCREENSHOTS "/" + name + ".png'");
}

}  // namespace tallyhut
