// From a key to the first and to the last pixel that it changes on the screen, as somebody before it would see them:
// keys come from the X server, and the server says what was drawn. The window that has the keyboard is the main form's.
//
//     tallyhut_pixels [CONTACTS]

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "bench/full_log.h"

namespace tallyhut {
namespace {

using Moment = std::chrono::steady_clock::time_point;

double Milliseconds(Moment from, Moment to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

/// The screen, worked with keys.
class Screen {
public:
    Screen() : connection_{xcb_connect(nullptr, nullptr)} {
        if (xcb_connection_has_error(connection_) != 0) {
            throw std::runtime_error{"no screen"};
        }
        const xcb_setup_t* const setup = xcb_get_setup(connection_);
        std::free(xcb_damage_query_version_reply(
            connection_, xcb_damage_query_version(connection_, XCB_DAMAGE_MAJOR_VERSION, XCB_DAMAGE_MINOR_VERSION),
            nullptr));
        damaged_ = xcb_get_extension_data(connection_, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
        xcb_damage_create(connection_, xcb_generate_id(connection_), xcb_setup_roots_iterator(setup).data->root,
                          XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
        LearnKeys(*setup);
    }
    ~Screen() { xcb_disconnect(connection_); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    Screen(Screen&&) = delete;
    Screen& operator=(Screen&&) = delete;

    struct Drawn {
        double first = 0;  ///< milliseconds behind the key
        double last = 0;
    };
    /// Presses a key and waits until nothing is drawn any more. Nothing when it draws nothing.
    std::optional<Drawn> Press(xcb_keysym_t symbol) {
        Quiet();
        const xcb_keycode_t code = codes_.at(symbol);
        const Moment pressed = std::chrono::steady_clock::now();
        Send(XCB_KEY_PRESS, code);
        const std::optional<Drawn> drawn = Watch(pressed);
        Send(XCB_KEY_RELEASE, code);
        return drawn;
    }

private:
    static constexpr int kQuietMs = 60;

    void LearnKeys(const xcb_setup_t& setup) {
        const auto first = setup.min_keycode;
        auto* const mapping = xcb_get_keyboard_mapping_reply(
            connection_,
            xcb_get_keyboard_mapping(connection_, first, static_cast<std::uint8_t>(setup.max_keycode - first + 1)),
            nullptr);
        const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(mapping);
        const int count = xcb_get_keyboard_mapping_keysyms_length(mapping);
        for (int at = 0; at < count; at += mapping->keysyms_per_keycode) {
            codes_.try_emplace(symbols[at], static_cast<xcb_keycode_t>(first + at / mapping->keysyms_per_keycode));
        }
        std::free(mapping);
    }

    void Send(std::uint8_t type, xcb_keycode_t code) {
        xcb_test_fake_input(connection_, type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        xcb_flush(connection_);
    }

    /// The moment something was drawn; nothing when for so long nothing is.
    std::optional<Moment> NextDrawing() {
        pollfd ready{.fd = xcb_get_file_descriptor(connection_), .events = POLLIN, .revents = 0};
        const Moment end = std::chrono::steady_clock::now() + std::chrono::milliseconds{kQuietMs};
        for (;;) {
            while (xcb_generic_event_t* const event = xcb_poll_for_event(connection_)) {
                const bool drawing = (event->response_type & 0x7F) == damaged_;
                std::free(event);
                if (drawing) {
                    return std::chrono::steady_clock::now();
                }
            }
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
            if (left.count() <= 0 || poll(&ready, 1, static_cast<int>(left.count())) <= 0) {
                return std::nullopt;
            }
        }
    }

    void Quiet() {
        while (NextDrawing()) {
        }
    }

    std::optional<Drawn> Watch(Moment pressed) {
        const auto first = NextDrawing();
        if (!first) {
            return std::nullopt;
        }
        Moment last = *first;
        while (const auto next = NextDrawing()) {
            last = *next;
        }
        return Drawn{.first = Milliseconds(pressed, *first), .last = Milliseconds(pressed, last)};
    }

    xcb_connection_t* connection_;
    int damaged_ = 0;
    std::map<xcb_keysym_t, xcb_keycode_t> codes_;
};

void Tell(const char* what, std::vector<double> times) {
    if (times.empty()) {
        std::printf("%s: nothing was drawn\n", what);
        return;
    }
    std::ranges::sort(times);
    std::printf("%s: median %.2f ms, 9 of 10 below %.2f ms, %zu times\n", what, times.at(times.size() / 2),
                times.at(times.size() * 9 / 10), times.size());
}

constexpr xcb_keysym_t kReturn = 0xFF0D;

void Measure(int contacts) {
    Screen screen;
    std::vector<double> keys;
    std::vector<double> lastOfKeys;
    std::vector<double> enters;
    for (int n = 1; n <= contacts; ++n) {
        for (const char character : "88aw9" + CallOf(n).substr(2) + "72mdc") {
            const auto lower =
                static_cast<xcb_keysym_t>(character >= 'A' && character <= 'Z' ? character + 32 : character);
            if (const auto drawn = screen.Press(lower)) {
                keys.push_back(drawn->first);
                lastOfKeys.push_back(drawn->last);
            }
        }
        if (const auto drawn = screen.Press(kReturn)) {
            enters.push_back(drawn->last);
        }
    }
    Tell("a key to the first pixel", keys);
    Tell("a key to the last pixel", lastOfKeys);
    Tell("Enter to the last pixel", enters);
}

}  // namespace
}  // namespace tallyhut

int main(int count, char** words) {
    constexpr int kUsual = 20;
    tallyhut::Measure(count > 1 ? std::atoi(words[1]) : kUsual);
    return 0;
}
