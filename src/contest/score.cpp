#include "contest/score.h"

#include "values/number.h"

namespace tallyhut {

std::int32_t Score(int sectionsWorked, std::int32_t contacts) {
    return sectionsWorked * contacts * 2;
}

std::int32_t ClaimedScore(std::int32_t contacts, int sectionsWorked) {
    return ToInt32(static_cast<double>(contacts) * sectionsWorked * 2);
}

}  // namespace tallyhut
