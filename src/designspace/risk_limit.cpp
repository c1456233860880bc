#include "designspace/risk_limit.h"

#include "designspace_texts.h"
#include "kvopt/study/settings.h"
#include "kvopt/text.h"

namespace kvopt {

namespace {

constexpr float kDpmoPerPercent = 10000.0F;
constexpr float kLowestPercent = 0.001F;
constexpr float kHighestPercent = 50.0F;
constexpr float kLowestDpmo = 10.0F;
constexpr float kHighestDpmo = 500000.0F;

}  // namespace

RiskPresentationEnum::RiskPresentation PresentRiskPresentation() {
    return RiskPresentationEnum::IntToEnum(GeneralSettings::Instance().riskPresentation);
}

std::wstring RiskLimitCaption(RiskPresentationEnum::RiskPresentation presentation) {
    return FormatWide(texts::kRiskLimitCaption, RiskPresentationEnum::ToLimitString(presentation));
}

std::optional<int> ReadRiskLimit(RiskPresentationEnum::RiskPresentation presentation,
                                 std::wstring_view text) {
    const bool inPercent = presentation == RiskPresentationEnum::Probability;
    float value = kNotSetF;
    KvString::ToFloat(text, value);
    if (value < (inPercent ? kLowestPercent : kLowestDpmo) ||
        value > (inPercent ? kHighestPercent : kHighestDpmo)) {
        return std::nullopt;
    }
    return static_cast<int>(inPercent ? value * kDpmoPerPercent : value);
}

const PlainText& RiskLimitMessage(RiskPresentationEnum::RiskPresentation presentation) {
    return presentation == RiskPresentationEnum::Probability ? texts::kRiskPercentOutside
                                                             : texts::kRiskDpmoOutside;
}

}  // namespace kvopt
