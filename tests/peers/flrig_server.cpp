#include "tests/peers/flrig_server.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <utility>

namespace tallyhut {
namespace {

std::string Between(const std::string& text, const std::string& begin, const std::string& end) {
    const std::size_t from = text.find(begin);
    const std::size_t to = from == std::string::npos ? from : text.find(end, from + begin.size());
    return to == std::string::npos ? "" : text.substr(from + begin.size(), to - from - begin.size());
}

std::string InLowerCase(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char one) { return static_cast<char>(std::tolower(one)); });
    return text;
}

std::string Response(const std::string& inside) {
    const std::string body = "<?xml version=\"1.0\"?>\r\n<methodResponse>" + inside + "</methodResponse>\r\n";
    return "HTTP/1.1 200 OK\r\nServer: XMLRPC++ 0.8\r\nContent-Type: text/xml\r\nContent-length: " +
           std::to_string(body.size()) + "\r\n\r\n" + body;
}

std::string Value(const std::string& value) {
    return Response("<params><param>\r\n\t<value>" + value + "</value>\r\n</param></params>");
}

std::string Fault(const std::string& text) {
    return Response(
        "<fault>\r\n\t<value><struct><member><name>faultCode</name><value><i4>-1</i4></value></member>"
        "<member><name>faultString</name><value>" +
        text + "</value></member></struct></value>\r\n</fault>");
}

}  // namespace

void FlrigServer::Talk(ServedClient& client) {
    std::string received;
    while (client.IsThere()) {
        received += client.Receive();
        const std::string answer = With([&] { return Answer(received); });
        if (!answer.empty() && With([&] { return std::exchange(hangsUp, false); })) {
            client.Send(answer.substr(0, answer.size() / 2));
            return;
        }
        client.Send(answer);
    }
}

std::string FlrigServer::Answer(std::string& received) {
    const std::size_t headEnd = received.find("\r\n\r\n");
    if (headEnd == std::string::npos || !received.starts_with("POST ")) {
        return {};
    }
    const std::string head = InLowerCase(received.substr(0, headEnd + 2));
    const std::size_t length = std::strtoul(Between(head, "\r\ncontent-length: ", "\r\n").c_str(), nullptr, 10);
    if (length == 0 || received.size() < headEnd + 4 + length) {
        return {};
    }
    const std::string body = received.substr(headEnd + 4, length);
    received.erase(0, headEnd + 4 + length);
    return Obey(Between(body, "<methodName>", "</methodName>"), body);
}

std::string FlrigServer::Obey(const std::string& method, const std::string& body) {
    if (method == "rig.get_xcvr") {
        return Value(radio);
    }
    if (method == "rig.get_vfo") {
        return Value(radio.empty() ? "14070000" : std::to_string(hertz));
    }
    if (method == "rig.get_mode") {
        return Value(radio.empty() ? "USB" : mode);
    }
    if (method == "rig.get_modes" && knowsModes) {
        std::string values;
        for (const std::string& one : modes) {
            values += "<value>" + one + "</value>";
        }
        return Value(radio.empty() ? "" : "<array><data>" + values + "</data></array>");
    }
    if (method == "rig.set_vfo") {
        const std::string number = Between(body, "<value><double>", "</double></value>");
        if (number.empty()) {
            return Fault("type error");
        }
        if (radio.empty()) {
            return Value("<i4>0</i4>");
        }
        hertz = static_cast<long>(std::strtod(number.c_str(), nullptr));
        sets.push_back("set_vfo " + std::to_string(hertz));
        return Value("");
    }
    if (method == "rig.set_mode") {
        const std::string name = Between(body, "<value><string>", "</string></value>");
        if (radio.empty() || std::ranges::find(modes, name) == modes.end()) {
            return Value("<i4>0</i4>");
        }
        mode = name;
        sets.push_back("set_mode " + name);
        return Value("<i4>1</i4>");
    }
    return Fault(method + ": unknown method name");
}

}  // namespace tallyhut
