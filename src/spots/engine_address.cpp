#include "spots/engine_address.h"

#include "values/text.h"

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kKey = "AgwEngine";
constexpr const char* kThisMachine = "127.0.0.1:8000";

}  // namespace

void EngineAddress::Show() {
    const std::string stored = settings.Get(kSection, kKey);
    const std::string& known = given.empty() ? stored : given;
    shown_ = known.empty() ? kThisMachine : known;
    form.txtEngine.SetText(shown_);
}

void EngineAddress::Store() {
    const std::string typed = Trim(form.txtEngine.Text());
    if (typed != shown_) {
        settings.Set(kSection, kKey, typed);
        shown_ = typed;
    }
}

}  // namespace tallyhut
