#include "kvopt/designspace/risk_presentation_enum.h"

#include "designspace_texts.h"

namespace kvopt {

namespace {

std::wstring TextOf(const PlainText (&texts)[2], RiskPresentationEnum::RiskPresentation which) {
    switch (which) {
        case RiskPresentationEnum::Probability:
            return texts[0].Wide();
        case RiskPresentationEnum::Dpmo:
            return texts[1].Wide();
    }
    return {};
}

}  // namespace

std::wstring RiskPresentationEnum::ToString(RiskPresentation presentation) {
    return TextOf(texts::kRisk, presentation);
}

std::wstring RiskPresentationEnum::ToShortString(RiskPresentation presentation) {
    return TextOf(texts::kRiskShort, presentation);
}

std::wstring RiskPresentationEnum::ToChoiceString(RiskPresentation presentation) {
    return TextOf(texts::kRiskChoice, presentation);
}

std::wstring RiskPresentationEnum::ToLimitString(RiskPresentation presentation) {
    return TextOf(texts::kRiskLimit, presentation);
}

std::wstring RiskPresentationEnum::ToListHeaderString(RiskPresentation presentation) {
    return TextOf(texts::kRiskListHeader, presentation);
}

RiskPresentationEnum::RiskPresentation RiskPresentationEnum::IntToEnum(int number) {
    return static_cast<RiskPresentation>(number);
}

RiskPresentationEnum::RiskPresentation RiskPresentationEnum::StringToEnum(
    const std::wstring& text) {
    for (const RiskPresentation presentation : {Dpmo, Probability}) {
        if (text == ToString(presentation) || text == ToChoiceString(presentation) ||
            text == ToShortString(presentation) || text == ToLimitString(presentation)) {
            return presentation;
        }
    }
    return Dpmo;
}

}  // namespace kvopt
