#pragma once

#include <map>
#include <string>

#include "platform/environment.h"

namespace tallyhut::sim {

struct Environment : tallyhut::Environment {
    std::map<std::string, std::string> variables;
    std::string documentsFolder = "/home/operator/Documents";
    std::string shortDatePicture = "m/d/yyyy";
    std::string userDataFolder = "/home/operator/.local/share";

    std::string Variable(const std::string& name) const override {
        const auto found = variables.find(name);
        return found != variables.end() ? found->second : "";
    }
    std::string DocumentsFolder() const override { return documentsFolder; }
    std::string UserDataFolder() const override { return userDataFolder; }
    std::string ShortDatePicture() const override { return shortDatePicture; }
};

}  // namespace tallyhut::sim
