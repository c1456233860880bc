#include "scripted/script_words.h"

#include <array>
#include <charconv>
#include <utility>

#include "kvopt/scripted/user_step.h"

namespace kvopt {

namespace {

template <class T>
using WordTable = std::pair<T, const char*>;

constexpr std::array<WordTable<StepVerb>, 42> kVerbs{{
    {StepVerb::Click, "click"},
    {StepVerb::DoubleClick, "double-click"},
    {StepVerb::Focus, "focus"},
    {StepVerb::Type, "type"},
    {StepVerb::Edit, "edit"},
    {StepVerb::Paste, "paste"},
    {StepVerb::Pick, "pick"},
    {StepVerb::Mark, "mark"},
    {StepVerb::Spin, "spin"},
    {StepVerb::Select, "select"},
    {StepVerb::Drag, "drag"},
    {StepVerb::Hover, "hover"},
    {StepVerb::Menu, "menu"},
    {StepVerb::Expand, "expand"},
    {StepVerb::Collapse, "collapse"},
    {StepVerb::Key, "key"},
    {StepVerb::Tab, "tab"},
    {StepVerb::Ok, "ok"},
    {StepVerb::Apply, "apply"},
    {StepVerb::Cancel, "cancel"},
    {StepVerb::Close, "close"},
    {StepVerb::Next, "next"},
    {StepVerb::Back, "back"},
    {StepVerb::Finish, "finish"},
    {StepVerb::Wait, "wait"},
    {StepVerb::Picture, "picture"},
    {StepVerb::ExpectBox, "expect box"},
    {StepVerb::ExpectPage, "expect page"},
    {StepVerb::ExpectText, "expect text"},
    {StepVerb::ExpectEntries, "expect entries"},
    {StepVerb::ExpectMarked, "expect marked"},
    {StepVerb::ExpectChecked, "expect checked"},
    {StepVerb::ExpectUnchecked, "expect unchecked"},
    {StepVerb::ExpectEnabled, "expect enabled"},
    {StepVerb::ExpectDisabled, "expect disabled"},
    {StepVerb::ExpectVisible, "expect visible"},
    {StepVerb::ExpectHidden, "expect hidden"},
    {StepVerb::ExpectFocus, "expect focus"},
    {StepVerb::ExpectTip, "expect tip"},
    {StepVerb::ExpectDescription, "expect description"},
    {StepVerb::ExpectCursor, "expect cursor"},
    {StepVerb::ExpectClipboard, "expect clipboard"},
}};

constexpr std::array<WordTable<FrameButton>, 7> kButtons{{
    {FrameButton::Ok, "ok"},
    {FrameButton::Apply, "apply"},
    {FrameButton::Cancel, "cancel"},
    {FrameButton::Close, "close"},
    {FrameButton::Next, "next"},
    {FrameButton::Back, "back"},
    {FrameButton::Finish, "finish"},
}};

constexpr std::array<WordTable<BoxStyle>, 5> kStyles{{
    {BoxStyle::Plain, "plain"},
    {BoxStyle::Error, "error"},
    {BoxStyle::Information, "information"},
    {BoxStyle::YesNoWarning, "warning-question"},
    {BoxStyle::YesNoInformation, "question"},
}};

constexpr std::array<WordTable<BoxAnswer>, 5> kAnswers{{
    {BoxAnswer::Ok, "ok"},
    {BoxAnswer::Cancel, "cancel"},
    {BoxAnswer::Yes, "yes"},
    {BoxAnswer::No, "no"},
    {BoxAnswer::Silence, "silence"},
}};

constexpr std::array<WordTable<Cursor>, 3> kCursors{{
    {Cursor::Arrow, "arrow"},
    {Cursor::SizeHorizontal, "size-horizontal"},
    {Cursor::Wait, "wait"},
}};

constexpr std::array<WordTable<int>, 5> kKeys{{
    {kKeyReturn, "Return"},
    {kKeyEscape, "Escape"},
    {kKeyF1, "F1"},
    {kKeyInsert, "Insert"},
    {kKeyDelete, "Delete"},
}};

template <class Table>
auto ValueOf(const Table& table, std::string_view word)
    -> std::optional<decltype(table.front().first)> {
    for (const auto& entry : table) {
        if (word == entry.second) {
            return entry.first;
        }
    }
    return std::nullopt;
}

template <class Table, class T>
const char* WordOf(const Table& table, T value) {
    for (const auto& entry : table) {
        if (entry.first == value) {
            return entry.second;
        }
    }
    return "";
}

bool TakePrefix(std::string_view& text, std::string_view prefix) {
    const bool has = text.substr(0, prefix.size()) == prefix;
    if (has) {
        text.remove_prefix(prefix.size());
    }
    return has;
}

template <class T>
std::optional<T> WholeNumber(std::string_view text) {
    T value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? std::optional<T>(value) : std::nullopt;
}

}  // namespace

std::optional<StepVerb> VerbOf(std::string_view words) {
    return ValueOf(kVerbs, words);
}

std::string VerbChoices(std::string_view first) {
    std::string choices;
    for (const auto& entry : kVerbs) {
        std::string_view words = entry.second;
        const std::size_t blank = words.find(' ');
        if ((blank != std::string_view::npos) != !first.empty()) {
            continue;
        }
        if (!first.empty()) {
            words.remove_prefix(blank + 1);
        }
        choices += (choices.empty() ? "" : ", ") + std::string(words);
    }
    return first.empty() ? choices + ", expect, optional box" : choices;
}

std::optional<FrameButton> FrameButtonOf(std::string_view word) {
    return ValueOf(kButtons, word);
}
const char* FrameButtonText(FrameButton button) {
    return WordOf(kButtons, button);
}

std::optional<FrameButton> ButtonOfVerb(StepVerb verb) {
    return FrameButtonOf(WordOf(kVerbs, verb));
}

std::optional<BoxStyle> BoxStyleOf(std::string_view word) {
    return ValueOf(kStyles, word);
}
const char* BoxStyleText(BoxStyle style) {
    return WordOf(kStyles, style);
}
std::optional<BoxAnswer> BoxAnswerOf(std::string_view word) {
    return ValueOf(kAnswers, word);
}
const char* BoxAnswerText(BoxAnswer answer) {
    return WordOf(kAnswers, answer);
}
std::optional<Cursor> CursorOf(std::string_view word) {
    return ValueOf(kCursors, word);
}
const char* CursorText(Cursor cursor) {
    return WordOf(kCursors, cursor);
}

std::optional<KeyStroke> KeyOf(std::string_view word) {
    KeyStroke key;
    key.control = TakePrefix(word, "Ctrl+");
    key.shift = TakePrefix(word, "Shift+");
    key.alt = TakePrefix(word, "Alt+");
    if (const std::optional<int> named = ValueOf(kKeys, word)) {
        key.key = *named;
    } else if (word.size() == 1 &&
               ((word[0] >= 'A' && word[0] <= 'Z') || (word[0] >= '0' && word[0] <= '9'))) {
        key.key = static_cast<unsigned char>(word[0]);
    } else {
        return std::nullopt;
    }
    return key;
}

std::string KeyText(const KeyStroke& key) {
    const std::string name = WordOf(kKeys, key.key);
    return std::string(key.control ? "Ctrl+" : "") + (key.shift ? "Shift+" : "") +
           (key.alt ? "Alt+" : "") +
           (name.empty() ? std::string(1, static_cast<char>(key.key)) : name);
}

std::optional<double> NumberOf(std::string_view text) {
    const std::optional<double> number = WholeNumber<double>(text);
    const bool isFinite = number && *number - *number == 0.0;
    return isFinite ? number : std::nullopt;
}

std::optional<int> IntegerOf(std::string_view text) {
    return WholeNumber<int>(text);
}

std::string NumberText(double number) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

const char* VerbText(StepVerb verb) {
    return WordOf(kVerbs, verb);
}

bool IsExpectation(StepVerb verb) {
    return std::string_view(VerbText(verb)).rfind("expect ", 0) == 0;
}

}  // namespace kvopt
