#include "spots/engine_address.h"

#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kKey = "AgwEngine";
constexpr const char* kThisMachine = "127.0.0.1:8000";

}  // namespace

std::string EngineAddress::Known() const {
    const std::string known = given.empty() ? settings.Get(kSection, kKey) : given;
    return known.empty() ? kThisMachine : known;
}

void EngineAddress::Show() {
    form.txtEngine.SetText(Known());
}

void EngineAddress::Store() {
    const std::string typed = Trim(form.txtEngine.Text());
    if (typed != Known()) {
        settings.Set(kSection, kKey, typed);
    }
}

}  // namespace tallyhut
