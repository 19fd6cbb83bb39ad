#include "tests/fuzz/server_inputs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/fuzz/damage.h"
#include "values/hex.h"

namespace tallyhut {
namespace {

constexpr int kRounds = 300;

std::string Http(const std::string& body) {
    return "HTTP/1.1 200 OK\r\nServer: XMLRPC++ 0.8\r\nContent-Type: text/xml\r\nContent-length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string BodyWith(const std::string& value) {
    return "<?xml version=\"1.0\"?>\r\n<methodResponse><params><param>\r\n\t<value>" + value +
           "</value>\r\n</param></params></methodResponse>\r\n";
}

/// What servers really say.
const std::vector<std::string>& Lines() {
    static const std::vector<std::string> inputs{
        "0\n",
        "CHKVFO 1\n",
        "get_freq:\nFrequency: 14040500\nRPRT 0\n",
        "get_freq: currVFO\nFrequency: 14040500.000\nRPRT -5\n",
        "get_mode:\nMode: CW\nPassband: 500\nRPRT 0\n",
        "set_freq: 7035000\nRPRT 0\n",
        "set_mode: USB -1\nRPRT -11\n",
        "0\nget_freq:\nFrequency: 14040500\nRPRT 0\n",
    };
    return inputs;
}

const std::vector<std::string>& Bodies() {
    static const std::vector<std::string> inputs{
        BodyWith("14070000"),
        BodyWith("<string>CW-R</string>"),
        BodyWith("<double>7035000.0</double>"),
        BodyWith("<array><data><value>LSB</value><value><string>CW-U</string></value></data></array>"),
        BodyWith(""),
        "<methodResponse><fault><value><struct><member><name>faultCode</name><value><i4>-1</i4></value></member>"
        "</struct></value></fault></methodResponse>",
    };
    return inputs;
}

TEST(ServerInputs, RandomBytesAreTaken) {
    Damage damage{1937};
    for (int round = 0; round < kRounds; ++round) {
        const std::string bytes = damage.RandomBytes(80);
        ASSERT_TRUE(TakesServerInput(bytes)) << BytesToHexDump(bytes);
        ASSERT_TRUE(TakesServerInput(Http(bytes))) << BytesToHexDump(bytes);
    }
}

TEST(ServerInputs, DamagedAnswersAreTaken) {
    Damage damage{2026};
    for (int round = 0; round < kRounds; ++round) {
        const std::string lines = damage.Damaged(Lines(), "\n\r :-.01RPRT");
        ASSERT_TRUE(TakesServerInput(lines)) << lines;
        const std::string body = damage.Damaged(Bodies(), "<>/&;\"'!?-[]");
        ASSERT_TRUE(TakesServerInput(Http(body))) << body;
        const std::string answer = damage.Damaged({Http(body)}, "\r\n: 0123456789");
        ASSERT_TRUE(TakesServerInput(answer)) << answer;
    }
}

TEST(ServerInputs, FloodsAreTaken) {
    for (const std::vector<std::string>& pieces : {Lines(), Bodies()}) {
        for (const std::string& piece : pieces) {
            std::string flood;
            while (flood.size() < 100'000) {
                flood += piece;
            }
            EXPECT_TRUE(TakesServerInput(flood)) << piece;
            EXPECT_TRUE(TakesServerInput(Http(flood))) << piece;
            EXPECT_TRUE(TakesServerInput(Http(flood.substr(0, 65'536)))) << piece;
        }
    }
}

}  // namespace
}  // namespace tallyhut
