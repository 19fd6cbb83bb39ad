#pragma once

#include "contest/contest.h"
#include "network/contact_documents.h"
#include "network/contact_ids.h"
#include "network/network_settings.h"
#include "network/news_sender.h"

namespace tallyhut {

/// Tells other programs of the contacts: each one that the log holds for good, each edit and each deletion, never what
/// the log has not taken. What a reload, a restore or a new log brings is no news. The name that a contact has is kept
/// first, from the moment on when somebody may know it; where it cannot be stored that is a PlatformError behind what
/// was sent.
struct ContactNews {
    const Contest& contest;
    const NewsChoice& choice;
    const NewsOrigin& origin;
    ContactIds& ids;
    NewsSender& sender;
    const Clock& clock;

    /// The contact of a row stands on the disk; its section does not count it yet.
    void Logged(std::int32_t row);
    /// The contact of a row stands on the disk, changed.
    void Edited(const Contact& before, std::int32_t row);
    /// The log on the disk does not hold the contact any more.
    void Deleted(const Contact& contact);
    /// Another log stands in place of the one before.
    void LogReplaced();

private:
    template <typename Keep, typename Tell>
    void KeepingFirst(const Keep& keep, const Tell& tell);
    ContactFacts FactsOf(const Contact& contact, const Contact& before, std::string id) const;
    void AddWorth(ContactFacts& facts, std::int32_t row) const;
};

}  // namespace tallyhut
