#include "rig/flrig_dialect.h"

#include <gtest/gtest.h>

#include "contest/bands.h"

namespace tallyhut {
namespace {

using Kind = ServerAnswer::Kind;

constexpr ServerRequest kIntroduction = ServerRequest::Introduction;
constexpr ServerRequest kModes = ServerRequest::Modes;
constexpr ServerRequest kFrequency = ServerRequest::Frequency;
constexpr ServerRequest kMode = ServerRequest::Mode;
constexpr ServerRequest kSetMode = ServerRequest::SetMode;
constexpr ServerRequest kSetFrequency = ServerRequest::SetFrequency;

std::string Http(const std::string& body) {
    return "HTTP/1.1 200 OK\r\nServer: XMLRPC++ 0.8\r\nContent-Type: text/xml\r\nContent-length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string ResponseOf(const std::string& value) {
    return Http("<?xml version=\"1.0\"?>\r\n<methodResponse><params><param>\r\n\t<value>" + value +
                "</value>\r\n</param></params></methodResponse>\r\n");
}

const std::string kFault = Http(
    "<?xml "
    "version=\"1.0\"?>\r\n<methodResponse><fault>\r\n\t<value><struct><member><name>faultCode</name><value><i4>-1</"
    "i4></value></member><member><name>faultString</name><value>rig.nosuch: unknown method name</value></member></"
    "struct></value>\r\n</fault></methodResponse>\r\n");

ServerAnswer Read(ServerRequest request, std::string_view received, const ServerFacts& facts = {}) {
    return kFlrig.read(request, facts, received);
}

ServerAnswer ReadValue(ServerRequest request, const std::string& value) {
    return Read(request, ResponseOf(value));
}

std::string BodyOf(const ServerOrder& order) {
    const std::string bytes = kFlrig.request(order, {});
    return bytes.substr(bytes.find("\r\n\r\n") + 4);
}

std::string NamedAmong(std::string_view planMode, std::vector<std::string> modes) {
    return kFlrig.modeNamed(planMode, {.modes = std::move(modes)});
}

TEST(FlrigDialect, RequestIsACallOfAMethod) {
    EXPECT_EQ(kFlrig.request({.request = kFrequency}, {}),
              "POST /RPC2 HTTP/1.1\r\nHost: localhost\r\nUser-Agent: tallyhut\r\nContent-Type: text/xml\r\n"
              "Content-length: 101\r\n\r\n<?xml version=\"1.0\"?>\n"
              "<methodCall><methodName>rig.get_vfo</methodName><params></params></methodCall>\n");
    struct Case {
        ServerOrder order;
        const char* call;
    };
    const std::vector<Case> cases{
        {{.request = kIntroduction}, "<methodName>rig.get_xcvr</methodName><params></params>"},
        {{.request = kModes}, "<methodName>rig.get_modes</methodName><params></params>"},
        {{.request = kMode}, "<methodName>rig.get_mode</methodName><params></params>"},
        {{.request = kSetMode, .mode = "CW-R"},
         "<methodName>rig.set_mode</methodName><params><param><value><string>CW-R</string></value></param></params>"},
        {{.request = kSetFrequency, .hertz = 14'040'000},
         "<methodName>rig.set_vfo</methodName><params><param><value><double>14040000</double></value></param></"
         "params>"},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(BodyOf(one.order),
                  "<?xml version=\"1.0\"?>\n<methodCall>" + std::string{one.call} + "</methodCall>\n");
    }
}

TEST(FlrigDialect, LengthOfARequestIsThatOfItsBody) {
    for (const ServerRequest request : {kIntroduction, kModes, kFrequency, kMode, kSetMode, kSetFrequency}) {
        const ServerOrder order{.request = request, .hertz = 1'296'000'000, .mode = "RTTY-R"};
        const std::string length = "\r\nContent-length: " + std::to_string(BodyOf(order).size()) + "\r\n";
        EXPECT_NE(kFlrig.request(order, {}).find(length), std::string::npos) << length;
    }
}

TEST(FlrigDialect, FrequencyIsReadInWhateverTypeItStands) {
    for (const char* value :
         {"14070000", "<string>14070000</string>", "<i4>14070000</i4>", "<int>14070000</int>",
          "<double>14070000</double>", "<double>14070000.0</double>", "\r\n\t<string>14070000</string>\r\n",
          "<!-- 7 --><string>14070000</string>", "<![CDATA[14070000]]>", "&#49;4070000"}) {
        const ServerAnswer answer = ReadValue(kFrequency, value);
        EXPECT_EQ(answer.kind, Kind::Good) << value;
        EXPECT_EQ(answer.reading.frequency, 14.07F) << value;
        EXPECT_FALSE(answer.reading.mode);
    }
}

TEST(FlrigDialect, ModeIsCwWhereItsNameBeginsSo) {
    for (const char* name : {"CW", "CW-R", "CWL", "CWU", "CW-U", "CWR", "cw", "CW-N"}) {
        EXPECT_EQ(ReadValue(kMode, name).reading.mode, kCw) << name;
    }
    for (const char* name : {"USB", "LSB", "FM", "AM", "RTTY", "USB-D", "DATA-U", "C4FM", "D-USB"}) {
        EXPECT_EQ(ReadValue(kMode, name).reading.mode, kPhone) << name;
    }
    EXPECT_EQ(ReadValue(kMode, "").kind, Kind::Good);
    EXPECT_FALSE(ReadValue(kMode, "").reading.mode);
}

TEST(FlrigDialect, EmptyNameIsNoRadio) {
    EXPECT_FALSE(kFlrig.atTheBeginning.hasRadio);
    EXPECT_TRUE(ReadValue(kIntroduction, "IC-7300").facts.value().hasRadio);
    EXPECT_TRUE(ReadValue(kIntroduction, "<string>FT-991A</string>").facts.value().hasRadio);
    for (const std::string& none : {ResponseOf(""), ResponseOf("<string></string>"), ResponseOf("  "), kFault}) {
        const ServerAnswer answer = Read(kIntroduction, none);
        EXPECT_EQ(answer.kind, Kind::Good) << none;
        EXPECT_FALSE(answer.facts.value().hasRadio) << none;
    }
}

TEST(FlrigDialect, RadioIsAskedForItsModesAnewWheneverItIsNamed) {
    const ServerAnswer answer =
        Read(kIntroduction, ResponseOf("IC-7300"), {.hasRadio = true, .knowsModes = true, .modes = {"CW"}});
    EXPECT_FALSE(answer.facts.value().knowsModes);
    EXPECT_EQ(answer.facts.value().modes, std::vector<std::string>{"CW"}) << "until they are told";
}

TEST(FlrigDialect, ModesAreRead) {
    const ServerAnswer answer = ReadValue(kModes,
                                          "<array><data><value>LSB</value><value><string>USB</string></value>"
                                          "<value>CW-R</value></data></array>");
    EXPECT_EQ(answer.kind, Kind::Good);
    EXPECT_TRUE(answer.facts.value().knowsModes);
    EXPECT_TRUE(answer.facts.value().hasRadio);
    EXPECT_EQ(answer.facts.value().modes, (std::vector<std::string>{"LSB", "USB", "CW-R"}));
    EXPECT_FALSE(ReadValue(kModes, "").facts.value().knowsModes) << "the radio is not ready: ask again";
}

TEST(FlrigDialect, ServerWithoutAListOfModesIsNotAskedForItAgain) {
    const ServerAnswer answer = Read(kModes, kFault);
    EXPECT_EQ(answer.kind, Kind::Good);
    EXPECT_TRUE(answer.facts.value().knowsModes);
    EXPECT_TRUE(answer.facts.value().modes.empty());
}

TEST(FlrigDialect, ModesThatAreNoNamesAreLeftOutAndTheListIsBounded) {
    EXPECT_TRUE(ReadValue(kModes,
                          "<array><data><value>A&lt;B\x01</value><value></value><value>17</value><value>A name that is "
                          "too long</value><value>CW\xFF</value></data></array>")
                    .facts.value()
                    .modes.empty());
    std::string many;
    for (int i = 0; i < 1'000; ++i) {
        many += "<value>CW</value>";
    }
    EXPECT_EQ(ReadValue(kModes, "<array><data>" + many + "</data></array>").facts.value().modes.size(),
              kMostServerModes);
}

TEST(FlrigDialect, PlanModesHaveTheRadiosOwnNames) {
    const std::vector<std::string> icom{"LSB", "USB", "AM", "CW", "RTTY", "FM", "CW-R", "RTTY-R", "LSB-D", "USB-D"};
    const std::vector<std::string> yaesu{"LSB",  "USB",    "CW-U",   "FM",      "AM",     "RTTY-L",
                                         "CW-L", "DATA-L", "RTTY-U", "DATA-FM", "DATA-U", "AM-N"};
    const std::vector<std::string> kenwood{"LSB", "USB", "CW", "FM", "AM", "FSK", "CW-R", "FSK-R"};
    struct Case {
        const char* plan;
        const char* icom;
        const char* yaesu;
        const char* kenwood;
    };
    constexpr std::array kCases{
        Case{"CW", "CW", "CW-U", "CW"},
        Case{"CW-R", "CW-R", "CW-L", "CW-R"},
        Case{"LSB", "LSB", "LSB", "LSB"},
        Case{"USB", "USB", "USB", "USB"},
        Case{"AM", "AM", "AM", "AM"},
        Case{"FM", "FM", "FM", "FM"},
        Case{"RTTY", "RTTY", "RTTY-L", "FSK"},
        Case{"RTTY-R", "RTTY-R", "RTTY-U", "FSK-R"},
        Case{"FSK", "RTTY", "RTTY-L", "FSK"},
        Case{"DIG", "USB-D", "DATA-U", ""},
        Case{"PKT", "USB-D", "DATA-U", ""},
        Case{"PH", "", "", ""},
        Case{"", "", "", ""},
    };
    for (const Case& one : kCases) {
        EXPECT_EQ(NamedAmong(one.plan, icom), one.icom) << one.plan;
        EXPECT_EQ(NamedAmong(one.plan, yaesu), one.yaesu) << one.plan;
        EXPECT_EQ(NamedAmong(one.plan, kenwood), one.kenwood) << one.plan;
    }
    EXPECT_EQ(NamedAmong("CW-R", {"Cw", "Cwr"}), "Cwr") << "as the radio writes it";
    EXPECT_EQ(NamedAmong("CW", {}), "");
    EXPECT_EQ(NamedAmong("CW", {"USB", ""}), "");
}

TEST(FlrigDialect, CommandIsAnswered) {
    EXPECT_EQ(ReadValue(kSetFrequency, "").kind, Kind::Good);
    EXPECT_EQ(ReadValue(kSetFrequency, "<nil/>").kind, Kind::Good);
    EXPECT_EQ(ReadValue(kSetMode, "<i4>1</i4>").kind, Kind::Good);
    EXPECT_EQ(Read(kSetMode, kFault).kind, Kind::Refused);
    EXPECT_EQ(Read(kFrequency, kFault).kind, Kind::Refused);
}

TEST(FlrigDialect, HalfAnAnswerIsWaitedFor) {
    const std::string whole = ResponseOf("14070000");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(Read(kFrequency, whole.substr(0, length)).kind, Kind::NotYet) << length;
    }
    EXPECT_EQ(Read(kFrequency, whole).kind, Kind::Good);
    EXPECT_EQ(Read(kFrequency, whole + "H").kind, Kind::Broken);
}

TEST(FlrigDialect, HeadIsReadInAnyLetterCase) {
    const std::string body = "<methodResponse><params><param><value>7035000</value></param></params></methodResponse>";
    const std::string length = std::to_string(body.size());
    EXPECT_EQ(Read(kFrequency, "HTTP/1.0 200 OK\r\nCONTENT-LENGTH:" + length + "\r\n\r\n" + body).reading.frequency,
              7.035F);
    EXPECT_EQ(Read(kFrequency, "HTTP/1.1 200 OK\r\ncontent-length:  " + length + " \r\n\r\n" + body).kind, Kind::Good);
}

TEST(FlrigDialect, WhatIsNoAnswerIsBroken) {
    const std::string body = "<methodResponse><params><param><value>7035000</value></param></params></methodResponse>";
    const std::string length = "Content-length: " + std::to_string(body.size()) + "\r\n";
    const std::vector<std::string> cases{
        "HTTP/1.1 404 Not Found\r\n" + length + "\r\n" + body,
        "HTTP/2 200\r\n" + length + "\r\n" + body,
        "HTTP/1.1 200 OK\r\n\r\n" + body,
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + body,
        "HTTP/1.1 200 OK\r\nContent-length: -1\r\n\r\n",
        "HTTP/1.1 200 OK\r\nContent-length: \r\n\r\n",
        "HTTP/1.1 200 OK\r\nContent-length: 65537\r\n\r\n",
        "HTTP/1.1 200 OK\r\nContent-length: 99999999999999999999999\r\n\r\n",
        "HTTP/1.1 200 OK\r\n" + length + length + "\r\n" + body,
        "get_freq:\nFrequency: 14040500\nRPRT 0\n\r\n\r\n",
        Http(""),
        Http("14040500"),
        Http("<html><body>7035000</body></html>"),
        Http("<methodResponse></methodResponse>"),
        Http("<methodResponse><params><param></param></params></methodResponse>"),
        Http("<methodResponse><params><param><value>7035000</value>"),
        Http("<methodCall><methodName>rig.get_vfo</methodName></methodCall>"),
        ResponseOf(""),
        ResponseOf("USB"),
        ResponseOf("7035000Hz"),
        ResponseOf("-7035000"),
        ResponseOf("1e7"),
        ResponseOf("<array><data><value>7035000</value></data></array>"),
        std::string(4'096, 'x'),
    };
    for (const std::string& received : cases) {
        EXPECT_EQ(Read(kFrequency, received).kind, Kind::Broken) << received;
    }
    EXPECT_EQ(Read(kFrequency, std::string(4'095, 'x')).kind, Kind::NotYet);
    EXPECT_EQ(ReadValue(kMode, "14070000").kind, Kind::Broken) << "a frequency is no mode";
    EXPECT_EQ(ReadValue(kMode, "A name that is too long").kind, Kind::Broken);
    EXPECT_EQ(ReadValue(kFrequency, "0").kind, Kind::Refused);
}

TEST(FlrigDialect, DeepAndDeclaredTroubleIsNone) {
    std::string deep;
    while (deep.size() + 200 < 65'536) {
        deep += "<a>";
    }
    EXPECT_EQ(Read(kFrequency, Http(deep)).kind, Kind::Broken);
    const std::string entities =
        "<!DOCTYPE x [<!ENTITY a \"9999999999\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]>"
        "<methodResponse><params><param><value>&b;</value></param></params></methodResponse>";
    EXPECT_EQ(Read(kFrequency, Http(entities)).kind, Kind::Broken) << "no entity but XML's own is known";
    EXPECT_EQ(Read(kFrequency, Http("<!DOCTYPE x SYSTEM \"file:///etc/passwd\">" +
                                    std::string{"<methodResponse><params><param><value>7035000</value></param>"
                                                "</params></methodResponse>"}))
                  .reading.frequency,
              7.035F)
        << "which nobody fetches";
}

}  // namespace
}  // namespace tallyhut
