#include <gtest/gtest.h>

#include "platform/sim/settings_store.h"
#include "tests/platform/failure_of.h"

namespace tallyhut {
namespace {

TEST(SimSettingsStore, ValuesAreKeptBySectionAndKey) {
    sim::SettingsStore settings;
    settings.Set("Settings", "Port", "1");
    settings.Set("Machine", "Port", "2");
    EXPECT_EQ(settings.Get("Settings", "Port"), "1");
    EXPECT_EQ(settings.Get("Machine", "Port"), "2");
    EXPECT_EQ(settings.Get("Machine", "Left"), "");
}

TEST(SimSettingsStore, WriteFailsWhileAFailureIsArranged) {
    sim::SettingsStore settings;
    settings.failure = "tallyhut.ini: The settings cannot be written";
    EXPECT_EQ(FailureOf([&] { settings.Set("Settings", "Left", "1"); }),
              "tallyhut.ini: The settings cannot be written");
    EXPECT_EQ(settings.Get("Settings", "Left"), "");
    settings.failure.clear();
    settings.Set("Settings", "Left", "1");
    EXPECT_EQ(settings.Get("Settings", "Left"), "1");
}

}  // namespace
}  // namespace tallyhut
