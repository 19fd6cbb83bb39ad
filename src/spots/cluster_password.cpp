#include "spots/cluster_password.h"

#include "spots/cluster_nodes.h"
#include "spots/terminal_text.h"
#include "values/secret.h"

namespace tallyhut {
namespace {

constexpr std::string_view kLooking = "Looking for the desktop's keyring.";
constexpr std::string_view kKept = "It is kept in the desktop's keyring, and nowhere else.";

}  // namespace

void ClusterPassword::Show() {
    node_ = NodeInForm(form_);
}

void ClusterPassword::LookForKeyring() {
    if (!isThere_) {
        form_.chkKeepPassword.SetToolTip(kLooking);
        keyring_.Look();
    }
}

bool ClusterPassword::Keeps() const {
    return isThere_ && form_.chkKeepPassword.Value();
}

void ClusterPassword::Fetch() {
    if (!node_.empty()) {
        keyring_.ShieldMemory();  // before what it keeps is in the memory
        keyring_.Fetch(node_);
    }
}

void ClusterPassword::Keyring_Arrived() {
    for (;;) {
        KeyringAnswer answer = keyring_.Take();
        if (answer.kind == KeyringAnswer::Kind::Nothing) {
            return;
        }
        TakeAnswer(answer);
        OverwriteFrom(answer.text, 0);
    }
}

void ClusterPassword::TakeAnswer(const KeyringAnswer& answer) {
    switch (answer.kind) {
        case KeyringAnswer::Kind::There:
            isThere_ = true;
            form_.chkKeepPassword.SetEnabled(true);
            form_.chkKeepPassword.SetToolTip(kKept);
            if (Keeps() && form_.txtPassword.Text().empty()) {
                Fetch();
            }
            break;
        case KeyringAnswer::Kind::Absent:
            form_.chkKeepPassword.SetEnabled(false);
            form_.chkKeepPassword.SetToolTip("No keyring: " + ShownText(answer.text));
            break;
        case KeyringAnswer::Kind::Failed:
            form_.chkKeepPassword.SetToolTip("The keyring refuses: " + ShownText(answer.text));
            break;
        case KeyringAnswer::Kind::Secret:
            // What was typed meanwhile, or is for another cluster, goes before.
            if (answer.place == node_ && !wasTyped_ && !answer.text.empty() && Keeps()) {
                filling_ = true;
                form_.txtPassword.SetText(answer.text);
                filling_ = false;
                fetched();
            }
            break;
        case KeyringAnswer::Kind::Nothing:
            break;
    }
}

void ClusterPassword::txtPassword_Change() {
    if (!filling_) {
        wasTyped_ = true;
        node_ = NodeInForm(form_);
    }
    if (!form_.txtPassword.Text().empty()) {
        keyring_.ShieldMemory();
    }
}

void ClusterPassword::chkKeepPassword_Click() {
    TakeOtherNode();
    if (!form_.chkKeepPassword.Value()) {
        if (!node_.empty()) {
            keyring_.Forget(node_);
        }
        wasTyped_ = true;  // in case that it is to be kept again
    } else if (form_.txtPassword.Text().empty()) {
        Fetch();
    } else {
        wasTyped_ = true;
        Store();
    }
}

void ClusterPassword::TakeOtherNode() {
    const std::string node = NodeInForm(form_);
    if (node == node_) {
        return;
    }
    const bool isForTheFirst = node_.empty() && wasTyped_;
    node_ = node;
    if (isForTheFirst) {
        return;
    }
    filling_ = true;
    form_.txtPassword.SetText("");
    filling_ = false;
    wasTyped_ = false;
    if (Keeps()) {
        Fetch();
    }
}

void ClusterPassword::Store() {
    TakeOtherNode();
    if (!Keeps() || !wasTyped_ || node_.empty()) {
        return;
    }
    wasTyped_ = false;
    if (form_.txtPassword.Text().empty()) {
        keyring_.Forget(node_);
    } else {
        keyring_.Keep(node_, form_.txtPassword.Text());
    }
}

}  // namespace tallyhut
