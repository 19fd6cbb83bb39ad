#include "import/log_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "values/utf8.h"

namespace tallyhut {
namespace {

const std::string kQso = "QSO: 7000 CW 2026-11-07 2104 W9ZZZ 1 A 72 IL W1XX 88 A 72 MDC\r\n";

std::string Utf16(const std::string& text, bool bigEndian) {
    std::string pairs = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text) {
        pairs += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    }
    return pairs;
}

TEST(LogText, FilesInUtf16AndInUtf8WithAMarkAreReadAsAnyOther) {
    for (const std::string& bytes : {kQso, "\xEF\xBB\xBF" + kQso, Utf16(kQso, false), Utf16(kQso, true)}) {
        std::string room;
        const std::string text{PlainBytesOf(bytes, room)};
        EXPECT_EQ(text, kQso);
        EXPECT_EQ(FormatOf(text), LogFormat::Cabrillo);
    }
}

TEST(LogText, WhatStandsFirstSaysTheFormat) {
    const std::string record = R"("1","88","A","W1XX","72","MDC","2026/11/07","21:04:33","40","")";
    const std::vector<std::pair<std::string, LogFormat>> rows{
        {"START-OF-LOG: 3.0\r\n", LogFormat::Cabrillo},
        {"  start-of-log: 2.0\n", LogFormat::Cabrillo},
        {"\n\nsome text\nX-QSO: 7000", LogFormat::Cabrillo},
        {"some head <EOH>", LogFormat::Adif},
        {"<call:4>W1XX <eor>\nQSO:\n", LogFormat::Adif},
        {"QSO: 7000\nSOAPBOX: <eor>", LogFormat::Cabrillo},
        {"\r\n" + record + "\r\n", LogFormat::Records},
        {record + ",\"more\"", LogFormat::None},
        {"", LogFormat::None},
        {"QSOs of mine", LogFormat::None},
        {"<call:4>W1XX", LogFormat::None},
        {std::string(1000, '\0'), LogFormat::None},
        {std::string(1000, 'x'), LogFormat::None},
    };
    for (const auto& [text, format] : rows) {
        EXPECT_EQ(FormatOf(text), format) << text;
    }
}

}  // namespace
}  // namespace tallyhut
