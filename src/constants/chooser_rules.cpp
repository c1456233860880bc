#include "constants/chooser_rules.h"

#include "kvopt/study.h"

namespace kvopt {

bool SkipsContourFactor(const Variables& variables, const Investigation* investigation,
                        const AxesInQuestion& axes, const std::string& name) {
    // Comes first: a factor that is held constant keeps its row even when it is on an axis.
    if (variables.GetUse(name) == CEUse::Constant) {
        return false;
    }
    if (investigation != nullptr &&
        !ResponseModelUtilities(investigation).IsFactorAvailable(name, true, false)) {
        return true;
    }
    for (int axis = 1; axis <= axes.count; ++axis) {
        if (axes.isFactor(axis, name)) {
            return true;
        }
    }
    return false;
}

bool SkipsPredictedFactor(const Investigation& investigation, bool filter,
                          const AxesInQuestion& axes, const std::string& name) {
    const Variables& variables = *investigation.GetVariables();
    const FactorClass* factor = variables.GetFactor(name);
    if (factor == nullptr) {
        return false;
    }
    const CEType::EType type = variables.GetType(name);
    if (type == CEType::Filler) {
        return true;
    }
    if (filter && !ResponseModelUtilities(&investigation).IsFactorAvailable(factor, true, false)) {
        return true;
    }
    int used = 0;
    int firstUsed = 0;
    for (int axis = 1; axis <= axes.count; ++axis) {
        if (axes.isUsed(axis)) {
            firstUsed = used == 0 ? axis : firstUsed;
            ++used;
        }
    }
    if (used == 0) {
        return false;
    }
    // A formulation factor on the axis takes all of them off the grid: the plot varies them
    // together.
    if (type == CEType::Formulation &&
        variables.GetType(axes.nameOf(firstUsed)) == CEType::Formulation) {
        return true;
    }
    return used == 1 && axes.isFactor(firstUsed, name);
}

}  // namespace kvopt
