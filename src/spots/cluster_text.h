#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace tallyhut {

/// What a cluster sends over Telnet, put together by line however it arrives: without the protocol's own commands and
/// without NUL. A line ends with CR, LF or both. One of more than 1,024 characters comes as an empty one.
class ClusterText {
public:
    static constexpr std::size_t kLongestLine = 1'024;

    void Add(std::string_view bytes);
    bool HasLine() const { return !whole_.empty(); }
    /// The next whole line without its end; false when none is there.
    bool Take(std::string& line);
    /// What stands behind the last line end; empty where it is too long.
    const std::string& Unfinished() const { return begun_; }
    /// What comes next begins a line.
    void EndUnfinished();
    /// As at the start of a connection.
    void Forget() { *this = {}; }

private:
    /// Where the next byte stands in a command of the protocol.
    enum class Place : std::uint8_t { Text, Command, Option, Inside, InsideCommand };

    void AddText(char character);
    void TakeCommand(unsigned char byte);

    Place place_ = Place::Text;
    std::size_t inside_ = 0;  ///< bytes of the present subnegotiation
    bool wasCarriageReturn_ = false;
    bool isTooLong_ = false;
    std::string begun_;
    std::deque<std::string> whole_;
};

/// What a cluster asks for when somebody comes in.
enum class ClusterPrompt : std::uint8_t { Login, Call, Callsign, Password };
inline constexpr std::size_t kClusterPrompts = 4;

/// The prompt that the text ends in, blanks behind it or not and letters in any case. "Last login:" is none.
///
/// @param unfinished  what stands behind the last line end
std::optional<ClusterPrompt> PromptIn(std::string_view unfinished);

/// A line that ends in ">" is the prompt of one who is inside.
bool EndsInside(std::string_view line);

/// The text with "****" in place of the secret, letters in any case and whatever control characters stand within it.
/// The secret may be empty and is none then. Of an unfinished text the end is left out as long as it may be the
/// beginning of the secret; so what is shown of a line goes on as the line does.
std::string WithoutSecret(std::string_view text, std::string_view secret, bool isFinished);

}  // namespace tallyhut
