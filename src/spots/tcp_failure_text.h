#pragma once

#include <string>

namespace tallyhut {

/// What the terminal tells of a connection that has failed.
///
/// @param number  of TcpFailure; one that is not listed is told as a number
std::string TextOfFailure(int number);

}  // namespace tallyhut
