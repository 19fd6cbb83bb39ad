#pragma once

#include <string>
#include <vector>

#include "contest/contact_record.h"
#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// The name that a contact has for other programs: 32 hexadecimal digits, made of its serial, date and time, so that it
/// is the same after a restart.
std::string IdOfCommit(const Contact& contact);

/// Keeps that name over edits of what it is made of. Those contacts, and no others, stand in a file of the contest's
/// folder, with the name that they were first told of by.
struct ContactIds {
    Files& files;
    const Directories& directories;

    /// Of a contact as it stands in the log.
    std::string IdOf(const Contact& contact) const;
    /// The contact has been edited, and its name stays. Throws PlatformError.
    void Keep(const Contact& before, const Contact& after);

    std::string Path() const { return WorkingFile(directories, kContactIdsFile); }
    static constexpr const char* kContactIdsFile = "ContactIDs.txt";

private:
    struct Row {
        Contact contact;  ///< serial, call, date and time count
        std::string id;
    };

    std::vector<Row> Rows() const;
    static std::string IdIn(const std::vector<Row>& rows, const Contact& contact);
    static bool IsOf(const Row& row, const Contact& contact);
};

}  // namespace tallyhut
