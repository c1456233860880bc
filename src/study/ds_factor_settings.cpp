#include "kvopt/study/ds_factor_settings.h"

#include "study_texts.h"

namespace kvopt {

std::wstring DSFactorSettings::ToString(Distribution distribution) {
    switch (distribution) {
        case Uniform:
            return texts::kStudyUniformDistribution.Wide();
        case Normal:
            return texts::kStudyNormalDistribution.Wide();
        case Triangular:
            return texts::kStudyTriangularDistribution.Wide();
        case OtherNormal:
            break;
    }
    return {};
}

}  // namespace kvopt
