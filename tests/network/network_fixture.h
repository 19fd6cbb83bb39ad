#pragma once

#include <string>
#include <vector>

#include "tests/log/editing_fixture.h"

namespace tallyhut {

inline constexpr const char* kHere = "127.0.0.1:12060";
inline constexpr const char* kIdsPath = "/contest/ContactIDs.txt";

/// The text of an element in a document; "?" where there is none.
inline std::string ElementOf(const std::string& document, const std::string& name) {
    const std::size_t begin = document.find('<' + name + '>');
    const std::size_t end = document.find("</" + name + '>');
    return begin == std::string::npos ? "?" : document.substr(begin + name.size() + 2, end - begin - name.size() - 2);
}

/// The root of a document.
inline std::string RootOf(const std::string& document) {
    const std::size_t begin = document.find("\n<") + 2;
    return document.substr(begin, document.find('>', begin) - begin);
}

/// A program whose news can be read as they go out.
struct NetworkFixture : EditingFixture {
    void ChooseStored(const std::string& key, const std::string& value) { settings.values[{"Machine", key}] = value; }
    void StartSending(const std::vector<Contact>& contacts = {}) {
        ChooseStored("SendContacts", "1");
        StartOnDesk(contacts);
        program->time.gTimeOn = 1;
    }
    void Log(const std::string& call, const std::string& section = "MDC") {
        FillAll("88", "A", call, "72", section);
        Focus(Main().txtSec);
        Press("Enter");
    }
    /// Opens the edit form on a row of the list, runs the steps in it, and closes it unless they did.
    void Edit(int row, const std::function<void()>& steps) {
        ClickRow(row);
        Meanwhile([this, steps] {
            steps();
            if (EditForm().IsLoaded()) {
                EditForm().RequestClose();
            }
        });
        Click(Main().cmdEdit);
    }
    void Delete(int row) {
        ClickRow(row);
        dialogs.answers.push_back(Answer::Yes);
        Click(Main().cmdDelete);
    }
    std::vector<sim::SentDatagram> TakeSent() { return std::exchange(datagramSockets.sent, {}); }
    /// The datagrams since the last call: "contactinfo W1XX, contactdelete W1XX".
    std::string TakeNews() {
        std::string news;
        for (const sim::SentDatagram& sent : TakeSent()) {
            news += (news.empty() ? "" : ", ") + RootOf(sent.bytes) + ' ' + ElementOf(sent.bytes, "call");
        }
        return news;
    }

    NetworkPart& Part() { return program->networkPart; }
    frmNetwork& Network() { return Part().form; }
    std::string Failure() { return Network().lblNetwork.Caption(); }
};

}  // namespace tallyhut
