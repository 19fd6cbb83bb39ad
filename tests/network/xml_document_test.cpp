#include "network/xml_document.h"

#include <gtest/gtest.h>

#include <pugixml.hpp>

namespace tallyhut {
namespace {

TEST(XmlDocument, ElementsStandInTheirOrderWithNothingBetween) {
    EXPECT_EQ((XmlDocument{"news"}.Element("a", "1").Element("b", "").Element("a", "2").Text()),
              "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<news><a>1</a><b></b><a>2</a></news>");
}

TEST(XmlDocument, WhatXmlHasAUseForIsNamed) {
    EXPECT_EQ(XmlText(R"(&<>"')"), "&amp;&lt;&gt;&quot;&apos;");
    EXPECT_EQ(XmlText("</call><ID>1</ID>"), "&lt;/call&gt;&lt;ID&gt;1&lt;/ID&gt;");
    EXPECT_EQ(XmlText("]]>&amp;"), "]]&gt;&amp;amp;");
}

TEST(XmlDocument, LettersBeyondAsciiAreUtf8AndWhatCannotBePrintedIsABlank) {
    EXPECT_EQ(XmlText("Jos\xE9"), "Jos\xC3\xA9");
    EXPECT_EQ(XmlText(std::string_view{"a\0b\r\n\t\x1B\x7F\x80\x9F"
                                       "c",
                                       11}),
              "a b       c");
}

TEST(XmlDocument, ALongValueIsCut) {
    EXPECT_EQ(XmlText(std::string(1'000, 'x')), std::string(100, 'x'));
    EXPECT_EQ(XmlText(std::string(1'000, '&')).size(), 500U);
}

TEST(XmlDocument, AnyBytesMakeADocumentThatAParserTakesBack) {
    std::string all;
    std::string back;
    for (int code = 0x20; code < 0x7F; ++code) {
        all += static_cast<char>(code);
    }
    pugi::xml_document parsed;
    ASSERT_TRUE(parsed.load_string(XmlDocument{"news"}.Element("value", all).Text().c_str()));
    EXPECT_EQ(parsed.child("news").child_value("value"), all);
    for (int code = 0; code <= 0xFF; ++code) {
        back += static_cast<char>(code);
    }
    const std::string text = XmlDocument{"news"}.Element("v", back.substr(0, 90)).Element("v", back.substr(90)).Text();
    EXPECT_TRUE(parsed.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8));
}

}  // namespace
}  // namespace tallyhut
