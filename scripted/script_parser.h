#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/scripted/user_step.h"
#include "scripted/script_lexer.h"

namespace kvopt {

/// Reads one line of a script. Throws ScriptFault.
class ScriptParser {
public:
    explicit ScriptParser(std::string_view line);

    /// Nothing for a line without words.
    std::optional<UserStep> Parse();

private:
    const ScriptWord* Peek() const;
    bool TakeKeyword(std::string_view keyword);
    [[noreturn]] void Expected(std::string what) const;
    const ScriptWord& Take(const char* expected);
    int TakeCount(const char* expected);

    StepVerb TakeVerb(bool& optional);
    StepTarget TakeTarget();
    StepTarget TakePlaces();
    StepTarget TakeCell();
    StepTarget TakeCellAfterKeyword();
    StepTarget TakeItem();
    StepTarget TakeItemAfterKeyword();
    StepTarget TakeEditable();
    CellPlace TakePlace(const char* expected);
    std::optional<double> TakeShare();
    void TakeEntries(UserStep& step);
    void TakeText(UserStep& step, const char* expected);
    void TakeArguments(UserStep& step);
    void TakeSpin(UserStep& step);
    void TakeDrag(UserStep& step);
    void TakeKey(UserStep& step);
    void TakeBox(UserStep& step);
    void TakePage(UserStep& step);
    void TakeState(UserStep& step);

    std::size_t length_;
    std::vector<ScriptWord> words_;
    std::size_t at_ = 0;
};

}  // namespace kvopt
