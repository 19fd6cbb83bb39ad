#include "network/contact_news.h"

#include <utility>

namespace tallyhut {

void ContactNews::Logged(std::int32_t row) {
    if (choice.isOn) {
        const Contact& contact = contest.log.Row(row);
        sender.Send(ContactInfo(FactsOfRow(row, contact, IdOfCommit(contact))));
    }
}

void ContactNews::Edited(const Contact& before, std::int32_t row) {
    if (!choice.isOn) {
        return;
    }
    const ContactFacts facts = FactsOfRow(row, before, ids.IdOf(before));
    sender.Send(ContactDelete(facts));
    sender.Send(ContactReplace(facts));
    ids.Keep(before, facts.contact);
}

void ContactNews::Deleted(const Contact& contact) {
    if (choice.isOn) {
        sender.Send(ContactDelete(FactsOf(contact, contact, ids.IdOf(contact))));
    }
}

ContactFacts ContactNews::FactsOf(const Contact& contact, const Contact& before, std::string id) const {
    return {.origin = origin,
            .preferences = contest.preferences,
            .contact = contact,
            .before = before,
            .id = std::move(id),
            .presentYear = clock.Now().year};
}

/// What a contact is worth depends on those before it in the log.
ContactFacts ContactNews::FactsOfRow(std::int32_t row, const Contact& before, std::string id) const {
    const Contact& contact = contest.log.Row(row);
    ContactFacts facts = FactsOf(contact, before, std::move(id));
    facts.isNewSection = contest.sections.Find(contact.Sec) != 0;
    for (std::int32_t n = 1; n < row; ++n) {
        const Contact& earlier = contest.log.Row(n);
        facts.isDuplicate = facts.isDuplicate || earlier.Call == contact.Call;
        facts.isNewSection = facts.isNewSection && earlier.Sec != contact.Sec;
    }
    return facts;
}

}  // namespace tallyhut
