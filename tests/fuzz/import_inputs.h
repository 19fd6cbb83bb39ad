#pragma once

#include <string_view>

namespace tallyhut {

/// Reads the bytes by each reader of foreign logs, whatever they are. What is read must be a log that this program
/// takes, with bounded notes that lie within the file, and make a history of whole rows; false otherwise.
bool TakesImportInput(std::string_view bytes);

}  // namespace tallyhut
