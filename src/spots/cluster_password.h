#pragma once

#include <functional>
#include <string>

#include "forms/PacketSpotfrm.h"
#include "platform/keyring.h"

namespace tallyhut {

/// The password of a cluster. It stands in its box and, if the operator wants that and the desktop has a keyring, in
/// that one, by the cluster's address; never anywhere else. Once the box has held one, no image of the program's memory
/// is written any more.
class ClusterPassword {
public:
    ClusterPassword(PacketSpotfrm& setupForm, Keyring& desktopKeyring) : form_{setupForm}, keyring_{desktopKeyring} {}

    /// The box has got what the keyring keeps.
    std::function<void()> fetched = [] {};

    /// The form has been filled.
    void Show();
    /// Finds out whether there is a keyring, until there is one; what it keeps for the cluster is fetched then.
    void LookForKeyring();
    /// The keyring has answered.
    void Keyring_Arrived();
    void txtPassword_Change();
    void chkKeepPassword_Click();
    /// The form may name another cluster than before: the box is emptied then, unless what stands there was typed
    /// before any cluster was named.
    void TakeOtherNode();
    /// The same, and keeps what was typed, if the operator wants that.
    void Store();
    /// Whose password stands in the box, HOST:PORT: the cluster that the form named when it was typed or fetched.
    const std::string& Node() const { return node_; }

private:
    void TakeAnswer(const KeyringAnswer& answer);
    void Fetch();
    bool Keeps() const;

    PacketSpotfrm& form_;
    Keyring& keyring_;
    bool isThere_ = false;  ///< the keyring
    bool filling_ = false;
    bool wasTyped_ = false;  ///< by the operator, and is not kept yet
    std::string node_ = {};
};

}  // namespace tallyhut
