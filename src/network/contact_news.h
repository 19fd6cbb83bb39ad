#pragma once

#include "contest/contest.h"
#include "network/contact_documents.h"
#include "network/contact_ids.h"
#include "network/network_settings.h"
#include "network/news_sender.h"

namespace tallyhut {

/// Tells other programs of the contacts: each one that the log holds for good, each edit and each deletion, never what
/// the log has not taken. What a reload, a restore or a new log brings is no news.
struct ContactNews {
    const Contest& contest;
    const NewsChoice& choice;
    const NewsOrigin& origin;
    ContactIds& ids;
    NewsSender& sender;
    const Clock& clock;

    /// The contact of a row stands on the disk; its section does not count it yet.
    void Logged(std::int32_t row);
    /// The contact of a row stands on the disk, changed. Throws PlatformError where the name that it keeps cannot be
    /// stored, behind what was sent.
    void Edited(const Contact& before, std::int32_t row);
    /// The log on the disk does not hold the contact any more.
    void Deleted(const Contact& contact);

private:
    ContactFacts FactsOf(const Contact& contact, const Contact& before, std::string id) const;
    void AddWorth(ContactFacts& facts, std::int32_t row) const;
};

}  // namespace tallyhut
