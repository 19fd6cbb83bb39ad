#pragma once

#include <string>

#include "app/options.h"

namespace tallyhut {

/// Runs the program in a window on the desktop until it ends; returns the exit status of the process. The arguments are
/// those of main, for the desktop's own options.
int RunWindow(int& argc, char** argv, const Options& options, const std::string& workingDirectory,
              const std::string& dataFolder);

}  // namespace tallyhut
