#pragma once

#include <ostream>
#include <string>

#include "app/options.h"

namespace tallyhut {

/// Runs the whole program without a screen, driven by the lines of a descriptor and telling what happens in JSON lines,
/// until it ends.
///
/// @return the exit status of the process
int RunConsole(const Options& options, const std::string& workingDirectory, const std::string& dataFolder,
               int inputDescriptor, std::ostream& out);

}  // namespace tallyhut
