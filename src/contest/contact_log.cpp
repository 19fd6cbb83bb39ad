#include "contest/contact_log.h"

#include "values/number.h"

namespace tallyhut {

double ContactLog::NextSerial() const {
    return gContactCount == 0 ? 1 : TrimmedNumber(Last().Ns) + 1;
}

std::size_t ContactLog::Checked(std::int32_t n) {
    if (n < 1 || n > kMostContacts) {
        throw LogFullError{"The log holds " + PlainText(kMostContacts) + " contacts and no more."};
    }
    return static_cast<std::size_t>(n);
}

}  // namespace tallyhut
