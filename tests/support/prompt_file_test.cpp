#include "support/prompt_file.h"

#include <gtest/gtest.h>

#include "platform/sim/files.h"

namespace tallyhut {
namespace {

struct PromptFileTest : testing::Test {
    sim::Files files{"/contest"};
    const Directories directories{.WorkingDirectory = "/contest", .DataDirectory = "", .SharedDirectory = ""};

    std::string Of(const std::string& prompt) { return PromptFile(files, directories, "/data", prompt); }
};

TEST_F(PromptFileTest, OneOfTheOperatorsOwnGoesBeforeTheProgramsOwn) {
    files.Put("/data/prompts/Call.wav", "ours");
    EXPECT_EQ(Of("Call"), "/data/prompts/Call.wav");
    files.Put("/contest/Call.wav", "theirs");
    EXPECT_EQ(Of("Call"), "/contest/Call.wav");
    EXPECT_EQ(Of("Dupe"), "/data/prompts/Dupe.wav");
}

TEST_F(PromptFileTest, FolderOfThatNameIsNoRecording) {
    files.AddFolder("/contest/Call.wav");
    EXPECT_EQ(Of("Call"), "/data/prompts/Call.wav");
}

}  // namespace
}  // namespace tallyhut
