#pragma once

#include <sys/types.h>

#include <functional>
#include <map>
#include <string>

namespace tallyhut {

using Environment = std::map<std::string, std::string>;
/// What is started on the screen before the program, told the screen's name; returns what the program finds in its
/// environment of it.
using Companion = std::function<Environment(const std::string& display)>;

/// The program in its window on a screen of its own (Xvfb), worked with real keys and clicks.
class WindowDriver {
public:
    explicit WindowDriver(const std::string& folder, const std::string& screenSize = "1280x800",
                          const Companion& companion = {});
    ~WindowDriver();
    WindowDriver(const WindowDriver&) = delete;
    WindowDriver& operator=(const WindowDriver&) = delete;
    WindowDriver(WindowDriver&&) = delete;
    WindowDriver& operator=(WindowDriver&&) = delete;

    /// Types a text, a key press a character.
    void Type(const std::string& text) const;
    /// Presses keys by their names on the screen's keyboard: "Return", "alt+c", "shift+Insert".
    void Press(const std::string& keys) const;
    void Click(int x, int y, int button = 1) const;
    /// The colour of a pixel as "#RRGGBB".
    std::string PixelAt(int x, int y) const;
    /// What a part of the screen looks like; equal texts are equal pictures.
    std::string PictureOf(int x, int y, int width, int height) const;
    /// How many pixels of the screen have the colour "#rrggbb".
    int CountPixels(const std::string& colour) const;
    /// There is a window of that title to be seen. Titles are regular expressions, as everywhere here.
    bool Shows(const std::string& title) const { return !Find(title).empty(); }
    /// Waits for a window of that title, gives it the keyboard, as there is nothing here that would, and presses keys.
    void AnswerWindow(const std::string& title, const std::string& keys);
    /// Asks the window to close, as a click on its close box does.
    void CloseWindow(const std::string& title) const;
    void ResizeWindow(const std::string& title, int width, int height) const;
    void Signal(int signal) const;
    int Wait();
    /// Keeps a picture of the screen for whoever looks into a failure.
    void KeepScreenshot(const std::string& name) const;

private:
    std::string Run(const std::string& command) const;
    /// The number of the window that bears the title, as text.
    std::string Find(const std::string& title) const;
    void EndAll();

    pid_t screen_ = -1;
    std::string display_;  // behind the process that it is started as
    pid_t program_ = -1;
};

/// Looks again and again until the claim holds; false when it does not within five seconds.
bool Eventually(const std::function<bool()>& claim);

}  // namespace tallyhut
