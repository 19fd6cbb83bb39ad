#include "network/contact_news.h"

#include <utility>

namespace tallyhut {

/// The operator types on: what the commit knows is not looked for in the whole log. It takes no duplicate.
void ContactNews::Logged(std::int32_t row) {
    if (!choice.isOn) {
        return;
    }
    const Contact& contact = contest.log.Row(row);
    ContactFacts facts = FactsOf(contact, contact, IdOfCommit(contact));
    const int section = contest.sections.Find(contact.Sec);
    facts.isNewSection = section != 0 && contest.sections.SectionQsos.at(static_cast<std::size_t>(section)) == 0;
    sender.Send(ContactInfo(facts));
}

void ContactNews::Edited(const Contact& before, std::int32_t row) {
    if (!choice.isOn) {
        return;
    }
    ContactFacts facts = FactsOf(contest.log.Row(row), before, ids.IdOf(before));
    AddWorth(facts, row);
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
void ContactNews::AddWorth(ContactFacts& facts, std::int32_t row) const {
    facts.isNewSection = contest.sections.Find(facts.contact.Sec) != 0;
    for (std::int32_t n = 1; n < row; ++n) {
        const Contact& earlier = contest.log.Row(n);
        facts.isDuplicate = facts.isDuplicate || earlier.Call == facts.contact.Call;
        facts.isNewSection = facts.isNewSection && earlier.Sec != facts.contact.Sec;
    }
}

}  // namespace tallyhut
