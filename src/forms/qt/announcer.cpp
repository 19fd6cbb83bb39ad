#include "forms/qt/announcer.h"

#include <QAccessibleObject>
#include <QCoreApplication>
#include <utility>

namespace tallyhut {
namespace {

/// More than follow each other before a reader has asked for the first one's words.
constexpr std::size_t kKept = 16;

/// An announcement as a screen reader sees it.
class Notification : public QAccessibleObject {
public:
    Notification(QObject& announcement, QString words) : QAccessibleObject{&announcement}, words_{std::move(words)} {}

    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? words_ : QString{}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

private:
    QString words_;
};

}  // namespace

void Announcer::Add(const QString& words) {
    const QString spoken = words.simplified();
    if (!spoken.isEmpty() && QAccessible::isActive()) {
        waiting_.push_back(spoken);
    }
}

void Announcer::Tell() {
    if (waiting_.isEmpty()) {
        return;
    }
    told_.push_back(std::make_unique<QObject>());
    auto* notification = new Notification{*told_.back(), std::exchange(waiting_, {}).join(". ")};
    QAccessible::registerAccessibleInterface(notification);  // which lasts as long as its object
    QAccessibleEvent shown{notification, QAccessible::ObjectShow};
    QAccessible::updateAccessibility(&shown);
    if (told_.size() > kKept) {
        told_.pop_front();
    }
}

}  // namespace tallyhut
