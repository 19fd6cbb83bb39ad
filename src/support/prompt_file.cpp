#include "support/prompt_file.h"

namespace tallyhut {

std::string PromptFile(const Files& files, const Directories& directories, const std::string& dataFolder,
                       const std::string& prompt) {
    const std::string own = WorkingFile(directories, prompt + ".wav");
    return files.FileExists(own) ? own : dataFolder + "/prompts/" + prompt + ".wav";
}

}  // namespace tallyhut
