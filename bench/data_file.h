#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace tallyhut {

/// A file of those that a fresh installation gets.
inline std::string DataFile(const std::string& name) {
    std::ifstream file{TALLYHUT_DATA "/" + name};
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

}  // namespace tallyhut
