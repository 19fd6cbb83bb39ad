#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "contest/told_sections.h"

namespace tallyhut {

// A post as a cluster sends it, in fixed columns that count from 1:
//
//   DX de K3LR:      14025.3  W1AW         CW CT                          2104Z FN31

/// True for a line whose first two characters are "DX", in either case.
bool BeginsPost(std::string_view line);

struct PostColumns {
    std::string frequency;  ///< kHz, columns 16 to 24
    std::string call;       ///< columns 27 to 39
};

/// Without the blanks around them. What ends the line is no blank: of a line that is shorter than its call column it
/// stays in the call.
PostColumns ColumnsOf(std::string_view line);

/// The line from "de" on, without the blanks around it.
std::string PostOf(std::string_view line);

/// How far before its last character the terminal is searched for a line.
inline constexpr std::size_t kRepeatReach = 800;

/// True for a line that stands already, letters in either case, at the end of the terminal: several nodes send on the
/// same post.
bool IsRepeat(std::string_view line, std::string_view terminal);

/// True where somebody asks for a spot instead of giving one.
///
/// @param post  in capitals
bool IsRequest(std::string_view post);

/// The call begins like one of the United States or Canada. Nothing but its first letter is looked at: VK2ABC does too.
bool MayBeOfTheContest(std::string_view call);

/// The section that a call's prefix stands for, a blank on each side (" AK "); empty for all whose prefix says none. A
/// call of Ontario where the list gives its prefix to no section stands for " ON ". Refers to the list.
std::string_view SectionOfPrefix(std::string_view call, const SectionList& list = ToldSections());

/// The comment of a post with the section behind it, between blanks so that each word of it can be found as one.
///
/// @param post     in capitals
/// @param section  with its blanks; lost where the comment is shorter than the time and locator at the end of a post
std::string SpotTextOf(std::string_view post, std::string_view section);

/// A short label of the call: its prefix, or where it is operated from. K1ABC is "K1", K1ABC/VE3 "VE3", W1AW/3 "W3".
std::string CallPrefix(std::string_view call);

/// What the list of spots shows of the post itself, in its columns 4 to 7.
struct PostTexts {
    std::string comment;  ///< the spotter, the comment and the section
    std::string behind;   ///< what follows it
    std::string time;
    std::string locator;
};

/// @param post  in capitals
PostTexts PostTextsOf(std::string_view post, std::string_view section);

}  // namespace tallyhut
