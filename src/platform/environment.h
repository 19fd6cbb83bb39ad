#pragma once

#include <string>

namespace tallyhut {

/// What the desktop says of the user's folders.
struct Environment {
    virtual ~Environment() = default;

    /// Empty where the variable is not set.
    virtual std::string Variable(const std::string& name) const = 0;
    /// The desktop's documents folder, also where it does not exist.
    virtual std::string DocumentsFolder() const = 0;
    /// The folder for the user's application data.
    virtual std::string UserDataFolder() const = 0;
    /// The picture of a short date by the machine's customs, "dd/mm/yyyy"; "m/d/yyyy" where they say nothing.
    virtual std::string ShortDatePicture() const = 0;
};

}  // namespace tallyhut
