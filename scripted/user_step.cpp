#include "kvopt/scripted/user_step.h"

#include "scripted/script_lexer.h"
#include "scripted/script_words.h"

namespace kvopt {

namespace {

std::string PlaceText(const CellPlace& place) {
    return place.position > 0 ? std::to_string(place.position) : QuoteForScript(place.name);
}

/// Numbers stand bare, which is how one writes them; everything else in quotes.
std::string ValueText(const std::string& value) {
    return NumberOf(value) ? value : QuoteForScript(value);
}

std::string EntriesText(const std::vector<std::string>& entries) {
    std::string text;
    for (const std::string& entry : entries) {
        text += ' ' + ValueText(entry);
    }
    return entries.empty() ? " none" : text;
}

std::string ItemText(const StepTarget& target) {
    std::string text = "item";
    const char* before = " ";
    for (const std::string& caption : target.path) {
        text += before + QuoteForScript(caption);
        before = " in ";
    }
    return target.number != 0 ? text + " in " + std::to_string(target.number) : text;
}

std::string DragText(const UserStep& step) {
    std::string text = " to";
    if (step.to.kind == StepTarget::Kind::Cell) {
        text += ' ' + step.to.Text();
    }
    if (step.share) {
        text += ' ' + NumberText(*step.share) + '%';
    }
    return step.number ? text + ' ' + NumberText(*step.number) : text;
}

std::string SpinText(int count) {
    const int clicks = count < 0 ? -count : count;
    return std::string(count < 0 ? " down" : " up") +
           (clicks == 1 ? "" : ' ' + std::to_string(clicks));
}

std::string BoxText(const ExpectedBox& box) {
    std::string text = std::string(" ") + BoxStyleText(box.style) +
                       (box.containing ? " containing " : " ") + QuoteForScript(box.text);
    return box.answer == BoxAnswer::Ok ? text : text + " answer " + BoxAnswerText(box.answer);
}

/// The other end of a range; its worksheet is the one that its begin names.
std::string RangeText(const UserStep& step) {
    return step.to == step.target
               ? ""
               : " to " + PlaceText(step.to.row) + ' ' + PlaceText(step.to.column);
}

}  // namespace

StepTarget StepTarget::Control(int number) {
    StepTarget target;
    target.kind = Kind::Number;
    target.number = number;
    return target;
}

StepTarget StepTarget::Control(std::string name) {
    StepTarget target;
    target.kind = Kind::Name;
    target.name = std::move(name);
    return target;
}

StepTarget StepTarget::Cell(CellPlace row, CellPlace column) {
    StepTarget target;
    target.kind = Kind::Cell;
    target.row = std::move(row);
    target.column = std::move(column);
    return target;
}

StepTarget StepTarget::Item(std::vector<std::string> path) {
    StepTarget target;
    target.kind = Kind::Item;
    target.path = std::move(path);
    return target;
}

StepTarget StepTarget::Frame(FrameButton button) {
    StepTarget target;
    target.kind = Kind::Frame;
    target.button = button;
    return target;
}

std::string StepTarget::Text() const {
    switch (kind) {
        case Kind::None:
            return "";
        case Kind::Number:
            return std::to_string(number);
        case Kind::Name:
            return QuoteForScript(name);
        case Kind::Cell: {
            const std::string text = "cell " + PlaceText(row) + ' ' + PlaceText(column);
            if (!name.empty()) {
                return text + " in " + QuoteForScript(name);
            }
            return number != 0 ? text + " in " + std::to_string(number) : text;
        }
        case Kind::Item:
            return ItemText(*this);
        case Kind::Frame:
            return FrameButtonText(button);
    }
    return "";
}

std::string UserStep::Text() const {
    std::string text = VerbText(verb);
    if (verb == StepVerb::ExpectBox) {
        return (box.optional ? "optional box" : text) + BoxText(box);
    }
    if (target.kind != StepTarget::Kind::None) {
        text += ' ' + target.Text();
    }
    switch (verb) {
        case StepVerb::Mark:
        case StepVerb::ExpectEntries:
        case StepVerb::ExpectMarked:
            return text + EntriesText(values);
        case StepVerb::Select:
            return text + RangeText(*this);
        case StepVerb::Drag:
            return text + DragText(*this);
        case StepVerb::Hover:
            return share ? text + ' ' + NumberText(*share) + '%' : text;
        case StepVerb::Spin:
            return text + SpinText(count);
        case StepVerb::Wait:
            return text + ' ' + std::to_string(count);
        case StepVerb::Key:
            return text + ' ' + KeyText(key);
        case StepVerb::ExpectCursor:
            return text + ' ' + CursorText(cursor);
        case StepVerb::ExpectPage:
            return text + ' ' +
                   (values.empty() ? std::to_string(count) : QuoteForScript(values.front()));
        default:
            return values.empty() ? text : text + ' ' + ValueText(values.front());
    }
}

}  // namespace kvopt
