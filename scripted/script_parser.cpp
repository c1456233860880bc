#include "scripted/script_parser.h"

#include "scripted/script_words.h"

namespace kvopt {

ScriptParser::ScriptParser(std::string_view line)
    : length_(line.size()), words_(SplitScriptLine(line)) {}

const ScriptWord* ScriptParser::Peek() const {
    return at_ < words_.size() ? &words_[at_] : nullptr;
}

bool ScriptParser::TakeKeyword(std::string_view keyword) {
    const bool is = Peek() != nullptr && Peek()->Is(keyword);
    at_ += is ? 1U : 0U;
    return is;
}

void ScriptParser::Expected(std::string what) const {
    const ScriptWord* word = Peek();
    if (word == nullptr) {
        throw ScriptFault{length_ + 1, std::move(what), "the end of the line"};
    }
    throw ScriptFault{word->column, std::move(what),
                      word->quoted ? QuoteForScript(word->text) : word->text};
}

const ScriptWord& ScriptParser::Take(const char* expected) {
    if (Peek() == nullptr) {
        Expected(expected);
    }
    return words_[at_++];
}

int ScriptParser::TakeCount(const char* expected) {
    const std::optional<int> count =
        Peek() != nullptr && !Peek()->quoted ? IntegerOf(Peek()->text) : std::nullopt;
    if (!count || *count < 1) {
        Expected(expected);
    }
    ++at_;
    return *count;
}

std::optional<UserStep> ScriptParser::Parse() {
    if (words_.empty()) {
        return std::nullopt;
    }
    UserStep step;
    step.verb = TakeVerb(step.box.optional);
    TakeArguments(step);
    if (Peek() != nullptr) {
        Expected("the end of the line");
    }
    return step;
}

StepVerb ScriptParser::TakeVerb(bool& optional) {
    if (TakeKeyword("optional")) {
        optional = true;
        if (!TakeKeyword("box")) {
            Expected("box");
        }
        return StepVerb::ExpectBox;
    }
    const bool expects = TakeKeyword("expect");
    const ScriptWord* word = Peek();
    const std::optional<StepVerb> verb = word != nullptr && !word->quoted
                                             ? VerbOf((expects ? "expect " : "") + word->text)
                                             : std::nullopt;
    if (!verb) {
        Expected("one of " + VerbChoices(expects ? "expect" : ""));
    }
    ++at_;
    return *verb;
}

void ScriptParser::TakeArguments(UserStep& step) {
    switch (step.verb) {
        case StepVerb::Click:
        case StepVerb::Focus:
        case StepVerb::ExpectChecked:
        case StepVerb::ExpectUnchecked:
        case StepVerb::ExpectFocus:
            step.target = TakeTarget();
            break;
        case StepVerb::DoubleClick:
        case StepVerb::Pick:
            step.target = TakeTarget();
            TakeText(step, "the text of an entry");
            break;
        case StepVerb::Type:
        case StepVerb::Paste:
        case StepVerb::ExpectText:
            step.target = TakeTarget();
            TakeText(step, "a text");
            break;
        case StepVerb::Edit:
            step.target = TakeEditable();
            TakeText(step, "a text");
            break;
        case StepVerb::Expand:
        case StepVerb::Collapse:
            step.target = TakeItemAfterKeyword();
            break;
        case StepVerb::ExpectTip:
            step.target = TakeCellAfterKeyword();
            TakeText(step, "a text");
            break;
        case StepVerb::Menu:
            step.target = TakeCellAfterKeyword();
            TakeText(step, "the label of a menu entry");
            break;
        case StepVerb::Mark:
        case StepVerb::ExpectEntries:
        case StepVerb::ExpectMarked:
            step.target = TakeTarget();
            TakeEntries(step);
            break;
        case StepVerb::Spin:
            TakeSpin(step);
            break;
        case StepVerb::Select:
            step.target = TakeCellAfterKeyword();
            step.to = step.target;
            if (TakeKeyword("to")) {
                const StepTarget end = TakePlaces();
                step.to.row = end.row;
                step.to.column = end.column;
            }
            break;
        case StepVerb::Drag:
            TakeDrag(step);
            break;
        case StepVerb::Hover:
            step.target = TakeCellAfterKeyword();
            step.share = TakeShare();
            break;
        case StepVerb::Key:
            TakeKey(step);
            break;
        case StepVerb::Tab:
            TakeText(step, "the caption of a page");
            break;
        case StepVerb::Ok:
        case StepVerb::Apply:
        case StepVerb::Cancel:
        case StepVerb::Close:
        case StepVerb::Next:
        case StepVerb::Back:
        case StepVerb::Finish:
            break;
        case StepVerb::Wait:
            step.count = TakeCount("a number of milliseconds");
            break;
        case StepVerb::Picture:
            TakeText(step, "a name for the picture");
            break;
        case StepVerb::ExpectBox:
            TakeBox(step);
            break;
        case StepVerb::ExpectPage:
            TakePage(step);
            break;
        case StepVerb::ExpectEnabled:
        case StepVerb::ExpectDisabled:
        case StepVerb::ExpectVisible:
        case StepVerb::ExpectHidden:
            TakeState(step);
            break;
        case StepVerb::ExpectCursor: {
            const std::optional<Cursor> cursor =
                Peek() != nullptr ? CursorOf(Peek()->text) : std::nullopt;
            if (!cursor) {
                Expected("arrow, size-horizontal or wait");
            }
            ++at_;
            step.cursor = *cursor;
            break;
        }
        case StepVerb::ExpectDescription:
        case StepVerb::ExpectClipboard:
            TakeText(step, "a text");
            break;
    }
}

StepTarget ScriptParser::TakeTarget() {
    if (TakeKeyword("cell")) {
        return TakeCell();
    }
    if (TakeKeyword("item")) {
        return TakeItem();
    }
    const ScriptWord& word = Take("a control: its number, its name in quotes, cell, or item");
    const std::optional<int> number = word.quoted ? std::nullopt : IntegerOf(word.text);
    return number ? StepTarget::Control(*number) : StepTarget::Control(word.text);
}

StepTarget ScriptParser::TakeCellAfterKeyword() {
    if (!TakeKeyword("cell")) {
        Expected("cell");
    }
    return TakeCell();
}

StepTarget ScriptParser::TakeItem() {
    StepTarget item = StepTarget::Item({Take("the caption of a row").text});
    while (item.number == 0 && TakeKeyword("in")) {
        const ScriptWord& word =
            Take("the caption of a row above it, or the number of a property grid");
        const std::optional<int> number = word.quoted ? std::nullopt : IntegerOf(word.text);
        if (number) {
            item.number = *number;
        } else {
            item.path.push_back(word.text);
        }
    }
    return item;
}

StepTarget ScriptParser::TakeItemAfterKeyword() {
    if (!TakeKeyword("item")) {
        Expected("item");
    }
    return TakeItem();
}

StepTarget ScriptParser::TakeEditable() {
    if (TakeKeyword("item")) {
        return TakeItem();
    }
    if (!TakeKeyword("cell")) {
        Expected("cell or item");
    }
    return TakeCell();
}

StepTarget ScriptParser::TakePlaces() {
    CellPlace row = TakePlace("a row: its position, or the text in its first column in quotes");
    CellPlace column = TakePlace("a column: its position, or its heading in quotes");
    return StepTarget::Cell(std::move(row), std::move(column));
}

StepTarget ScriptParser::TakeCell() {
    StepTarget cell = TakePlaces();
    if (TakeKeyword("in")) {
        const ScriptWord& word = Take("a worksheet: its number, or its name in quotes");
        const std::optional<int> number = word.quoted ? std::nullopt : IntegerOf(word.text);
        cell.number = number.value_or(0);
        cell.name = number ? "" : word.text;
    }
    return cell;
}

CellPlace ScriptParser::TakePlace(const char* expected) {
    const ScriptWord& word = Take(expected);
    const std::optional<int> position = word.quoted ? std::nullopt : IntegerOf(word.text);
    if (!position) {
        return {0, word.text};
    }
    if (*position < 1) {
        --at_;
        Expected(expected);
    }
    return {*position, ""};
}

std::optional<double> ScriptParser::TakeShare() {
    const ScriptWord* word = Peek();
    if (word == nullptr || word->quoted || word->text.empty() || word->text.back() != '%') {
        return std::nullopt;
    }
    const std::optional<double> share =
        NumberOf(std::string_view(word->text).substr(0, word->text.size() - 1));
    if (!share) {
        Expected("a share of the cell's width such as 80%");
    }
    ++at_;
    return share;
}

void ScriptParser::TakeEntries(UserStep& step) {
    if (TakeKeyword("none")) {
        return;
    }
    do {
        TakeText(step, "the text of an entry, or none");
    } while (Peek() != nullptr);
}

void ScriptParser::TakeText(UserStep& step, const char* expected) {
    step.values.push_back(Take(expected).text);
}

void ScriptParser::TakeSpin(UserStep& step) {
    step.target = TakeTarget();
    const bool down = TakeKeyword("down");
    if (!down && !TakeKeyword("up")) {
        Expected("up or down");
    }
    const int clicks = Peek() != nullptr ? TakeCount("a number of clicks") : 1;
    step.count = down ? -clicks : clicks;
}

void ScriptParser::TakeDrag(UserStep& step) {
    step.target = TakeCellAfterKeyword();
    if (!TakeKeyword("to")) {
        Expected("to");
    }
    if (TakeKeyword("cell")) {
        step.to = TakeCell();
        step.share = TakeShare();
        return;
    }
    step.share = TakeShare();
    if (!step.share) {
        step.number = Peek() != nullptr && !Peek()->quoted ? NumberOf(Peek()->text) : std::nullopt;
        if (!step.number) {
            Expected("a value, a share such as 80%, or cell");
        }
        ++at_;
    }
}

void ScriptParser::TakeKey(UserStep& step) {
    const std::optional<KeyStroke> key = Peek() != nullptr ? KeyOf(Peek()->text) : std::nullopt;
    if (!key) {
        Expected(
            "a key: Return, Escape, F1, Insert, Delete, a letter or a digit, after Ctrl+, Shift+ "
            "or Alt+ where held");
    }
    ++at_;
    step.key = *key;
}

void ScriptParser::TakeBox(UserStep& step) {
    const std::optional<BoxStyle> style =
        Peek() != nullptr && !Peek()->quoted ? BoxStyleOf(Peek()->text) : std::nullopt;
    if (!style) {
        Expected("a style: plain, error, information, warning-question or question");
    }
    ++at_;
    step.box.style = *style;
    step.box.containing = TakeKeyword("containing");
    step.box.text = Take("the text of the box").text;
    MessageBoxRequest request;
    request.style = *style;
    if (!TakeKeyword("answer")) {
        if (request.IsQuestion()) {
            Expected("answer yes or answer no");
        }
        return;
    }
    const std::optional<BoxAnswer> answer =
        Peek() != nullptr && !Peek()->quoted ? BoxAnswerOf(Peek()->text) : std::nullopt;
    const bool answersQuestion = answer == BoxAnswer::Yes || answer == BoxAnswer::No;
    const bool answersOther = answer == BoxAnswer::Ok || answer == BoxAnswer::Silence;
    if (request.IsQuestion() ? !answersQuestion : !answersOther) {
        Expected(request.IsQuestion() ? "yes or no" : "ok or silence");
    }
    ++at_;
    step.box.answer = *answer;
}

void ScriptParser::TakePage(UserStep& step) {
    const ScriptWord& word = Take("a page: its number, or its title in quotes");
    const std::optional<int> number = word.quoted ? std::nullopt : IntegerOf(word.text);
    if (number) {
        step.count = *number;
    } else {
        step.values.push_back(word.text);
    }
}

void ScriptParser::TakeState(UserStep& step) {
    const std::optional<FrameButton> button =
        Peek() != nullptr && !Peek()->quoted ? FrameButtonOf(Peek()->text) : std::nullopt;
    if (button) {
        ++at_;
        step.target = StepTarget::Frame(*button);
    } else {
        step.target = TakeTarget();
    }
}

}  // namespace kvopt
