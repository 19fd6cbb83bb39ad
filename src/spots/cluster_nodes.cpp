#include "spots/cluster_nodes.h"

#include <algorithm>

#include "spots/cluster_settings.h"
#include "values/number.h"
#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kKey = "ClusterNodes";
constexpr std::size_t kMostNodes = 100;
constexpr int kHighestPort = 65'535;

/// What a host's name and a port are made of.
bool IsAddress(std::string_view text) {
    return text.size() > 1 && text.find(':') != std::string_view::npos && text.front() != ':' &&
           std::ranges::all_of(text, [](char character) { return character > ' ' && character < 127; });
}

}  // namespace

int PortInForm(const PacketSpotfrm& form) {
    const double port = ParseNumber(form.txtTelnetPort.Text()).value_or(0);
    return port >= 1 && port <= kHighestPort ? static_cast<int>(port) : 0;
}

std::string NodeInForm(const PacketSpotfrm& form) {
    const std::string host = Trim(form.txtTelnetHost.Text());
    const int port = PortInForm(form);
    return host.empty() || port == 0 ? "" : host + ':' + std::to_string(port);
}

void ClusterNodes::Show() {
    std::vector<std::string> nodes;
    for (std::string& node : Words(settings.Get(kMachineSection, kKey))) {
        if (IsAddress(node) && nodes.size() < kMostNodes) {
            nodes.push_back(std::move(node));
        }
    }
    form.lstNodes.SetItems(std::move(nodes));
}

void ClusterNodes::lstNodes_Click() {
    const int row = form.lstNodes.Row();
    if (row < 0) {
        return;
    }
    const std::string node = form.lstNodes.Items().at(static_cast<std::size_t>(row));
    const std::size_t colon = node.rfind(':');
    form.txtTelnetHost.SetText(node.substr(0, colon));
    form.txtTelnetPort.SetText(node.substr(colon + 1));
    picked();
}

void ClusterNodes::cmdAddNode_Click() {
    const std::string node = NodeInForm(form);
    std::vector<std::string> nodes = form.lstNodes.Items();
    if (IsAddress(node) && nodes.size() < kMostNodes && std::ranges::find(nodes, node) == nodes.end()) {
        nodes.push_back(node);
        Keep(nodes);
    }
}

void ClusterNodes::cmdRemoveNode_Click() {
    const int row = form.lstNodes.Row();
    if (row >= 0) {
        std::vector<std::string> nodes = form.lstNodes.Items();
        nodes.erase(nodes.begin() + row);
        Keep(nodes);
    }
}

void ClusterNodes::Keep(const std::vector<std::string>& nodes) {
    std::string text;
    for (const std::string& node : nodes) {
        text += (text.empty() ? "" : " ") + node;
    }
    settings.Set(kMachineSection, kKey, text);
    form.lstNodes.SetItems(nodes);
}

}  // namespace tallyhut
