#include "platform/serial_settings.h"

#include <gtest/gtest.h>

#include "tests/platform/failure_of.h"

namespace tallyhut {
namespace {

TEST(SerialSettings, TextIsReadAndWritten) {
    EXPECT_EQ(ParseSerialSettings("4800,N,8,2"),
              (SerialSettings{.baud = 4800, .parity = 'N', .dataBits = 8, .stopBits = 2}));
    for (const char* text : {"1200,E,7,1", "14400,O,8,1", "56000,N,8,1", "50,N,5,2", "4000000,N,6,1"}) {
        EXPECT_EQ(SettingsText(ParseSerialSettings(text)), text);
    }
}

TEST(SerialSettings, BlanksAndSmallLettersAreTaken) {
    EXPECT_EQ(SettingsText(ParseSerialSettings("1200 ,n, 8,1 ")), "1200,N,8,1");
}

TEST(SerialSettings, WhatIsNoneIsRefusedByName) {
    for (const std::string text :
         {"",           "9600",       "9600,N,8",    "9600,N,8,1,1",  "9600,M,8,1",        "9600,NN,8,1",
          "9600,,8,1",  "9600,N,9,1", "9600,N,4,1",  "9600,N,8,0",    "9600,N,8,1.5",      "9600,N,8,3",
          "0,N,8,1",    "49,N,8,1",   "-9600,N,8,1", "4000001,N,8,1", "99999999999,N,8,1", "96 00,N,8,1",
          "fast,N,8,1", "9600;N;8;1"}) {
        EXPECT_EQ(FailureOf([&] { ParseSerialSettings(text); }), text + ": These are no settings of a serial port");
    }
}

}  // namespace
}  // namespace tallyhut
