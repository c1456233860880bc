#pragma once

#include <string>
#include <vector>

#include "kvopt/platform/geometry.h"
#include "monkey/dice.h"
#include "monkey/step_source.h"

namespace kvopt {
class CControl;
class CItemControl;
class CXTPPropertyGrid;
class VirtualWorksheet;
}  // namespace kvopt

namespace kvopt::monkey {

/// A user who does anything that the page in front offers at that moment. `names` are names of the
/// study that are typed now and then. Goes away after `steps` steps.
class RandomUser : public StepSource {
public:
    RandomUser(Dice& dice, std::vector<std::string> names, int steps);

    std::optional<UserStep> Next(const StepScope& scope) override;
    BoxAnswer Answer(const MessageBoxRequest& request) override;

private:
    UserStep OnFrame(const StepScope& scope);
    UserStep OnControl(CControl& control);
    UserStep OnList(const CItemControl& list, UserStep step);
    UserStep OnWorksheet(const VirtualWorksheet& worksheet, UserStep step);
    UserStep OnGrid(const CXTPPropertyGrid& grid, UserStep step);
    UserStep PressKey();
    /// `present` is what stands there now.
    UserStep Typing(UserStep step, StepVerb verb, const std::string& present);
    std::string AnyText();
    std::string TextNear(const std::string& present);
    StepVerb CellVerb(const VirtualWorksheet& worksheet, CPoint cell);
    StepTarget AnyCell(const VirtualWorksheet& worksheet);

    Dice& dice_;
    std::vector<std::string> names_;
    int left_;
};

}  // namespace kvopt::monkey
