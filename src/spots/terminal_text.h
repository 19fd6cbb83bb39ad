#pragma once

#include <deque>
#include <string>
#include <string_view>

namespace tallyhut {

/// The codes from 127 to 159 are control characters too.
bool IsControl(char character);

/// What is shown of bytes that came over the air or the net: the text and its line ends, and a blank for every other
/// control character. As many characters as there were.
std::string ShownText(std::string_view bytes);

/// The terminal with a text behind it. What grows beyond 10,000 characters becomes its last 9,000.
std::string WithText(std::string_view terminal, std::string_view text);

/// What has been received on a serial line, cut into lines. A line counts when it stands between two line feeds; one
/// stands before the first byte. Of a line that does not end only the first 64 KiB are kept.
class ReceivedLines {
public:
    void Add(std::string_view bytes);
    /// There is a whole line to be taken.
    bool HasLine() const { return !whole_.empty(); }
    /// The next whole line with its line feed, a carriage return before it included; false when none is there.
    bool Take(std::string& line);
    /// As at the start.
    void Forget();

private:
    std::deque<std::string> whole_;
    std::string begun_;  ///< no line feed has come behind it
};

/// The two texts of a frame from a packet engine.
struct FrameTexts {
    std::string full;   ///< kind, call, a blank and the data
    std::string plain;  ///< the data alone; what was heard, without the engine's line before it
};

/// Each carriage return and each line feed of the data becomes a line end, so that both together make two. An end that
/// is doubled by that is one in the plain text; one that stands alone is none.
///
/// @param isMonitoring  no station is connected: the data begin with a line of the engine's own
FrameTexts TextsOf(char kind, std::string_view call, std::string_view data, bool isMonitoring);

}  // namespace tallyhut
