#pragma once

#include <array>
#include <string>
#include <vector>

#include "contest/contact_log.h"
#include "platform/files.h"
#include "support/directories.h"

namespace tallyhut {

/// The name that a contact has for other programs: 32 hexadecimal digits, made of its serial, date and time, so that it
/// is the same after a restart.
std::string IdOfCommit(const Contact& contact);

/// Keeps that name over edits of what it is made of, and gives a contact another one where it is taken. Those contacts
/// of the log, and no others, stand in a file of the contest's folder, with the name that they were first told of by.
/// Whatever changes the file throws PlatformError.
struct ContactIds {
    Files& files;
    const Directories& directories;

    /// Of a contact as it stands in the log.
    std::string IdOf(const Contact& contact) const;
    /// The last row of the log is new, and has a name of its own.
    void Add(const ContactLog& log, std::int32_t row);
    /// The contact has been edited, and its name stays.
    void Keep(const Contact& before, const Contact& after);
    /// The contact has been deleted.
    void Forget(const Contact& contact);
    /// Another log stands in place of the one before.
    void ForgetAllBut(const ContactLog& log);

    bool FileExists() const { return files.FileExists(Path()); }
    std::string Path() const { return WorkingFile(directories, kContactIdsFile); }
    static constexpr const char* kContactIdsFile = "ContactIDs.txt";

private:
    struct Row {
        std::array<std::string, 4> key;  ///< serial, call, date and time, as they stand in the log
        std::string id;

        bool operator==(const Row&) const = default;
    };

    std::vector<Row> Rows() const;
    /// Stores the rows where the step has changed them.
    template <typename Step>
    void Change(const Step& step);
    static std::string IdIn(const std::vector<Row>& rows, const Contact& contact);
    /// The first that no row has, where so many are taken.
    static std::string FreeName(const std::vector<Row>& rows, const Contact& contact, int taken);
    /// What follows from the log needs no row.
    static void Put(std::vector<Row>& rows, const Contact& contact, const std::string& id);
    static void Drop(std::vector<Row>& rows, const Contact& contact);
    static bool IsOf(const Row& row, const Contact& contact);
};

}  // namespace tallyhut
