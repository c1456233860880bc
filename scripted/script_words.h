#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "kvopt/scripted/user_step.h"

namespace kvopt {

// The words that a script's keywords stand for, each in one table that both the parser and the
// printer read.

/// The verb of these words ("click", "expect text"); nothing for words that name none.
std::optional<StepVerb> VerbOf(std::string_view words);
/// All verbs that begin with `first` ("expect"), or all first words, for messages.
std::string VerbChoices(std::string_view first);

std::optional<FrameButton> FrameButtonOf(std::string_view word);
const char* FrameButtonText(FrameButton button);
/// The button that a frame verb presses; nothing for another verb.
std::optional<FrameButton> ButtonOfVerb(StepVerb verb);

std::optional<BoxStyle> BoxStyleOf(std::string_view word);
const char* BoxStyleText(BoxStyle style);
std::optional<BoxAnswer> BoxAnswerOf(std::string_view word);
const char* BoxAnswerText(BoxAnswer answer);

std::optional<Cursor> CursorOf(std::string_view word);
const char* CursorText(Cursor cursor);

/// "Ctrl+V", "Shift+Insert", "Escape".
std::optional<KeyStroke> KeyOf(std::string_view word);
std::string KeyText(const KeyStroke& key);

/// The whole text as a number, whatever the locale.
std::optional<double> NumberOf(std::string_view text);
std::optional<int> IntegerOf(std::string_view text);
/// The shortest text that reads back to the same number.
std::string NumberText(double number);

}  // namespace kvopt
