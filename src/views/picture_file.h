#pragma once

#include <string>

#include "platform/files.h"
#include "support/directories.h"
#include "toolkit/controls.h"

namespace tallyhut {

/// Where pictures are saved to.
struct PictureFiles {
    Files& files;
    const Directories& directories;

    /// Asks for a file, writes the picture with what lies on it as PNG, and tells the outcome.
    void Save(const Raster& picture, const std::string& name) const;
};

}  // namespace tallyhut
