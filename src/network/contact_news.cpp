#include "network/contact_news.h"

#include <utility>

#include "contest/worked_before.h"
#include "log/attempts.h"

namespace tallyhut {

/// The operator types on: what the commit knows is not looked for in the whole log. It takes no duplicate.
void ContactNews::Logged(std::int32_t row) {
    const Contact& contact = contest.log.Row(row);
    KeepingFirst([&] { ids.Add(contest.log, row); },
                 [&] {
                     ContactFacts facts = FactsOf(contact, contact, ids.IdOf(contact));
                     const int section = contest.sections.Find(contact.Sec);
                     facts.isNewSection =
                         section != 0 && contest.sections.SectionQsos.at(static_cast<std::size_t>(section)) == 0;
                     sender.Send(News::Contacts, ContactInfo(facts));
                 });
}

void ContactNews::Edited(const Contact& before, std::int32_t row) {
    const Contact& contact = contest.log.Row(row);
    const std::string id = ids.IdOf(before);
    KeepingFirst([&] { ids.Keep(before, contact); },
                 [&] {
                     ContactFacts facts = FactsOf(contact, before, id);
                     AddWorth(facts, row);
                     sender.Send(News::Contacts, ContactDelete(facts));
                     sender.Send(News::Contacts, ContactReplace(facts));
                 });
}

void ContactNews::Deleted(const Contact& contact) {
    const std::string id = ids.IdOf(contact);
    KeepingFirst([&] { ids.Forget(contact); },
                 [&] { sender.Send(News::Contacts, ContactDelete(FactsOf(contact, contact, id))); });
}

void ContactNews::LogReplaced() {
    KeepingFirst([&] { ids.ForgetAllBut(contest.log); }, [] {});
}

/// Whoever was told of a contact once knows it by its name, also while nobody is told.
template <typename Keep, typename Tell>
void ContactNews::KeepingFirst(const Keep& keep, const Tell& tell) {
    Attempts attempts;
    if (choice.wasOn || ids.FileExists()) {
        attempts.Try(keep);
    }
    if (choice.isOn) {
        tell();
    }
    attempts.ThrowIfAnyFailed();
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
    facts.isDuplicate = WorkedBefore(contest.log, facts.contact.Call).value_or(row) < row;
    facts.isNewSection = contest.sections.Find(facts.contact.Sec) != 0;
    for (std::int32_t n = 1; n < row; ++n) {
        facts.isNewSection = facts.isNewSection && contest.log.Row(n).Sec != facts.contact.Sec;
    }
}

}  // namespace tallyhut
