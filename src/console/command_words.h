#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace tallyhut {

/// One word of a command line. Texts are in the driver's encoding, UTF-8.
struct CommandWord {
    std::string text;
    bool quoted = false;  ///< it was a JSON string
};

/// The words of a command line, taken from the front.
class CommandWords {
public:
    /// Throws ConsoleError for a JSON string that is none.
    explicit CommandWords(std::string_view line);

    bool AtEnd() const { return next_ == words_.size(); }
    /// Throws ConsoleError, saying what is missing, when no word is left.
    const CommandWord& Take(std::string_view what);
    /// A whole number; throws ConsoleError for anything else.
    int TakeNumber(std::string_view what);
    /// A time that passes; throws ConsoleError for one that runs backwards.
    Tick TakeMilliseconds();
    /// Throws ConsoleError when words are left.
    void CheckEnd() const;
    /// What stands in the line behind the words taken so far.
    std::string_view Rest() const;

private:
    std::string line_;
    std::vector<CommandWord> words_;
    std::vector<std::size_t> ends_;  ///< where each word ends in the line
    std::size_t next_ = 0;
};

}  // namespace tallyhut
