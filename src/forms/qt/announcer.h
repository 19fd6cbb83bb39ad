#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <deque>
#include <memory>

namespace tallyhut {

/// Words for those who do not see the screen: a screen reader speaks each of them once, wherever the focus is.
///
/// What a screen reader speaks unasked is an object of the notification's role that comes to be shown; the new name of
/// a label it passes over. So each announcement is such an object, seen by nobody else. It stays for a while after it
/// was told, since the reader asks for its words afterwards.
class Announcer {
public:
    /// Nothing for words without any.
    void Add(const QString& words);
    /// Tells what was added, in that order, as one: a reader breaks off what it says for the next announcement. It also
    /// does so at a move of the focus, so this is to be called behind all else that came of the same event.
    void Tell();

private:
    QStringList waiting_;
    std::deque<std::unique_ptr<QObject>> told_;
};

}  // namespace tallyhut
