#include "network/radio_news.h"

namespace tallyhut {

RadioNews::RadioNews(Desk& owner, const RigLine& radioLine, const NewsChoice& radioChoice, const NewsOrigin& newsOrigin,
                     NewsSender& newsSender)
    : rigLine_{radioLine}, choice_{radioChoice}, origin_{newsOrigin}, sender_{newsSender}, repeat_{owner, [this] {
                                                                                                       Forget();
                                                                                                       Look();
                                                                                                   }} {}

void RadioNews::Look() {
    const std::optional<RadioFacts> facts = Facts();
    if (!facts) {
        repeat_.Stop();
    } else if (facts != told_) {
        sender_.Send(News::Radio, RadioInfo(*facts, origin_, rigLine_.radio.preferences.gOwnCall));
        repeat_.Start(kRepeatMs);
    }
    told_ = facts;
}

std::optional<RadioFacts> RadioNews::Facts() const {
    const std::optional<float> megahertz = choice_.isOn ? rigLine_.Frequency() : std::nullopt;
    if (!megahertz) {
        return std::nullopt;
    }
    const Radio& radio = rigLine_.radio;
    return FactsOfRadio(*megahertz, radio.state.RigMode, radio.preferences.gContestMode == 1,
                        radio.preferences.gRigName);
}

}  // namespace tallyhut
