#include "kvopt/study/label_types.h"

#include <array>
#include <string_view>

#include "kvopt/text.h"
#include "study_texts.h"

namespace kvopt {

namespace {

struct LabelText {
    LabelTypes::PlotLabelType type;
    const char* stored;
    PlainText title;
};

constexpr std::array<LabelText, 5> kLabels{{
    {LabelTypes::None, "None", texts::kStudyNoLabel},
    {LabelTypes::ExperimentNumber, "ExperimentNumber", texts::kStudyExperimentNumber},
    {LabelTypes::ExperimentName, "ExperimentName", texts::kStudyExperimentName},
    {LabelTypes::RunOrder, "RunOrder", texts::kStudyRunOrder},
    {LabelTypes::PredictionNumber, "PredictionNumber", texts::kStudyPredictionNumber},
}};

const LabelText& LabelOf(LabelTypes::PlotLabelType type) {
    for (const LabelText& label : kLabels) {
        if (label.type == type) {
            return label;
        }
    }
    return kLabels.front();
}

}  // namespace

LabelTypes::PlotLabelType LabelTypes::GetLabelType(const char* text) {
    for (const LabelText& label : kLabels) {
        if (text != nullptr && (std::string_view(text) == label.stored ||
                                std::string_view(text) == label.title.Text())) {
            return label.type;
        }
    }
    return None;
}

std::string LabelTypes::GetString(PlotLabelType type, bool title) {
    return title ? LabelOf(type).title.Text() : LabelOf(type).stored;
}

std::wstring LabelTypes::GetWString(PlotLabelType type) {
    return LabelOf(type).title.Wide();
}

BaseLabelTitles::~BaseLabelTitles() = default;

int StandardLabelTitles::NumNameTitles() const {
    return 3;
}

std::string StandardLabelTitles::GetName(int index) const {
    switch (index) {
        case 0:
            return LabelTypes::GetString(LabelTypes::ExperimentNumber, true);
        case 1:
            return LabelTypes::GetString(LabelTypes::ExperimentName, true);
        case 2:
            return LabelTypes::GetString(LabelTypes::RunOrder, true);
        default:
            return {};
    }
}

}  // namespace kvopt
