#pragma once

#include <functional>
#include <string>

#include "forms/PacketSpotfrm.h"
#include "platform/keyring.h"

namespace tallyhut {

/// The password of a cluster. It stands in its box and, if the operator wants that and the desktop has a keyring, in
/// that one, by the cluster's address; never anywhere else. While the box holds one, no image of the program's memory
/// is written.
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
    /// The form may name another cluster than before: no password goes to one that it was not typed or kept for.
    void TakeOtherNode();
    /// Takes it that the password is for the cluster in the form, if it was typed since, and keeps it, if the operator
    /// wants that.
    void Store();

private:
    void TakeAnswer(const KeyringAnswer& answer);
    void Fetch();
    bool Keeps() const;

    PacketSpotfrm& form_;
    Keyring& keyring_;
    bool isThere_ = false;  ///< the keyring
    bool filling_ = false;
    bool wasTyped_ = false;   ///< by the operator, and is not kept yet
    bool isForForm_ = false;  ///< it was typed since the cluster in the form was looked at
    std::string node_ = {};   ///< whose password the box is for
};

}  // namespace tallyhut
