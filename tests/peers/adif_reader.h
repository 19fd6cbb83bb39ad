#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhut::peers {

/// An ADIF file as any other logger reads it. Knows the format's rules and nothing of the program that wrote the file.
struct AdifFile {
    std::map<std::string, std::string> head;                  ///< by the field's name in upper case
    std::vector<std::map<std::string, std::string>> records;  ///< likewise
};

/// Throws std::runtime_error where a data item is damaged or its length is not that of its data: what follows the data
/// must be white space or the next item.
AdifFile ReadAdif(std::string_view text);

}  // namespace tallyhut::peers
