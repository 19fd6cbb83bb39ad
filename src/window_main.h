#pragma once

#include <string>

namespace tallyhut {

/// Runs the program in a window on the desktop until it ends; returns the exit status of the process. The arguments are
/// those of main, for the desktop's own options.
int RunWindow(int& argc, char** argv, const std::string& workingDirectory, const std::string& dataFolder);

}  // namespace tallyhut
