#include "support/free_name.h"

#include <gtest/gtest.h>

#include "platform/sim/files.h"

namespace tallyhut {
namespace {

TEST(FreeName, IsTheNameItselfWhereNothingStands) {
    const sim::Files files;
    EXPECT_EQ(FreeName(files, "/contest/Log-found", ".txt"), "/contest/Log-found.txt");
}

TEST(FreeName, CountsFrom2PastEverythingThatStandsThere) {
    sim::Files files;
    files.Put("/contest/Log-found.txt", "");
    EXPECT_EQ(FreeName(files, "/contest/Log-found", ".txt"), "/contest/Log-found-2.txt");
    files.AddFolder("/contest/Log-found-2.txt");
    files.irregular.insert("/contest/Log-found-3.txt");
    EXPECT_EQ(FreeName(files, "/contest/Log-found", ".txt"), "/contest/Log-found-4.txt");
}

TEST(FreeName, PlaceThatCannotBeLookedAtIsNotTakenForFree) {
    sim::Files files;
    files.unreachable["/contest/Log-found.txt"] = "Permission denied";
    EXPECT_THROW(FreeName(files, "/contest/Log-found", ".txt"), PlatformError);
}

}  // namespace
}  // namespace tallyhut
