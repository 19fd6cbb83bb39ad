#pragma once

#include <map>
#include <string>

namespace tallyhut {

/// Runs the program in a window on the desktop until it ends; returns the exit status of the process. The arguments are
/// those of main, for the desktop's own options. The ports are the devices that the command line names for numbers.
int RunWindow(int& argc, char** argv, const std::string& workingDirectory, const std::string& dataFolder,
              const std::map<int, std::string>& ports);

}  // namespace tallyhut
