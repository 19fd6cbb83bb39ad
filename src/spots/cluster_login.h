#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "contest/preferences.h"
#include "forms/PacketSpotfrm.h"
#include "platform/tcp_socket.h"
#include "spots/cluster_text.h"
#include "spots/spot_terminal.h"
#include "toolkit/alarm.h"
#include "toolkit/desk.h"

namespace tallyhut {

/// A connection to a cluster that the program looks after, where the operator wants that: it answers what the cluster
/// asks for, each prompt once a connection, sends the operator's lines once inside, and when the connection fails or
/// ends, or the cluster asks again, it connects anew after a pause. A line is a post if it begins with "DX".
///
/// Banners end like the inside does. So one is inside when two seconds have passed behind a line that does, or a prompt
/// of the kind that no line end follows, in which the cluster asks for nothing; what asks then is what somebody says.
///
/// Nothing waits in it, and what comes is taken in bounded parts. The password is read from its box when it is sent,
/// and stands nowhere else; what the cluster echoes of it is not shown.
class ClusterLogin {
public:
    ClusterLogin(PacketSpotfrm& setupForm, TcpSocket& clusterSocket, Desk& owner, const Preferences& thePreferences);

    /// A line that begins with "DX", without its end.
    std::function<void(std::string_view post)> received = [](std::string_view) {};
    /// Whose password stands in the box, HOST:PORT; it goes to no other.
    std::function<std::string()> passwordsNode = [] { return std::string{}; };
    /// More is there than one turn takes: Arrived is to be called again.
    std::function<void()> moreWaits = [] {};

    /// Connects, and goes on doing so until it is closed.
    void Open(const std::string& host, int port);
    void Close();
    /// From Open to Close, in a pause too.
    bool IsOpen() const { return isOpen_; }

    /// The socket has something for the program, or lines still wait.
    void Arrived();
    /// The connection has failed.
    void Fail(int number);
    /// The password has come into its box: a prompt that stands for it is answered.
    void PasswordIsThere();

private:
    void Connect();
    void TakeEvent();
    void TakeText();
    void TakeLine(const std::string& line);
    void LookAtUnfinished();
    /// What stands unfinished has stood for a while: nothing follows at once.
    void Rest();
    void SeeInside();
    void Answer(ClusterPrompt prompt);
    std::string AnswerTo(ClusterPrompt prompt) const;
    void GoInside();
    void SendNextLine();
    void PutOff(const std::string& reason);

    /// What of the text that begins a line is not shown yet, its end included.
    void ShowRest(const std::string& text);
    void ShowUnfinished();
    void StopWaiting();
    void Send(std::string_view text);

    PacketSpotfrm& form_;
    TcpSocket& socket_;
    Desk& desk_;
    const Preferences& preferences_;
    SpotTerminal terminal_;

    std::string host_;
    int port_ = 0;
    bool isOpen_ = false;
    std::size_t failures_ = 0;  ///< since the last good connection

    // Of the present connection.
    ClusterText text_;
    std::size_t shown_ = 0;  ///< of the unfinished line, characters as they are shown
    std::set<ClusterPrompt> answered_;
    bool isInside_ = false;
    std::deque<std::string> lines_;  ///< to be sent

    Alarm pause_;     ///< before the next attempt
    Alarm good_;      ///< until the connection counts as a good one
    Alarm settling_;  ///< until what looks like the inside is the inside
    Alarm sending_;   ///< until the next line
    Alarm rest_;
};

}  // namespace tallyhut
