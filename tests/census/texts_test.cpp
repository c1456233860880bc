#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "axes_texts.h"
#include "census/source_tokens.h"
#include "constants_texts.h"
#include "designspace_texts.h"
#include "kvopt/text.h"
#include "plotargs_texts.h"
#include "qt_texts.h"
#include "selection_texts.h"
#include "sheets_texts.h"
#include "study_texts.h"

namespace kvopt::test {
namespace {

/// A literal as it stands in a header of texts.
struct WrittenText {
    std::string name;
    std::string place;
    std::string text;
    std::optional<int> arguments;  ///< nothing for a plain text
    bool isMarked = false;
};

/// Every literal of a header with the mark before it in the same statement.
std::vector<WrittenText> TextsIn(std::string_view source, const std::string& file) {
    std::vector<WrittenText> texts;
    WrittenText present;
    const std::vector<Token> tokens = TokensOf(source, file);
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        const Token& token = tokens[at];
        if (token.text == ";" && token.kind == Token::Kind::Sign) {
            present = {};
        } else if (token.kind == Token::Kind::Word && token.text == "PlainText") {
            present.isMarked = true;
            present.arguments.reset();
        } else if (token.kind == Token::Kind::Word && token.text == "FormatText") {
            present.isMarked = true;
            present.arguments = std::stoi(tokens.at(at + 2).text);
        } else if (token.kind == Token::Kind::Word) {
            present.name = token.text;
        } else if (token.kind == Token::Kind::Literal) {
            present.text = token.text;
            present.place = file + ":" + std::to_string(token.line);
            texts.push_back(present);
        }
    }
    return texts;
}

std::vector<WrittenText> AllTexts() {
    std::vector<WrittenText> all;
    std::vector<std::filesystem::path> files = FilesBelow("resources", {".h"});
    for (const auto& file : FilesBelow("qt", {".h"})) {
        files.push_back(file);
    }
    for (const auto& file : files) {
        const std::string name = ShortName(file);
        if (name.size() > 8 && name.compare(name.size() - 8, 8, "_texts.h") == 0) {
            const auto texts = TextsIn(ReadText(file), name);
            all.insert(all.end(), texts.begin(), texts.end());
        }
    }
    return all;
}

struct CompiledFormat {
    std::string text;
    int arguments = 0;
    std::string filled;
};

/// A format as the library compiles it, filled with 101, 102 and so on.
template <int N>
CompiledFormat Compiled(const FormatText<N>& format) {
    if constexpr (N == 1) {
        return {format.Text(), N, Format(format, 101)};
    } else if constexpr (N == 2) {
        return {format.Text(), N, Format(format, 101, 102)};
    } else if constexpr (N == 3) {
        return {format.Text(), N, Format(format, 101, 102, 103)};
    } else if constexpr (N == 4) {
        return {format.Text(), N, Format(format, 101, 102, 103, 104)};
    } else {
        static_assert(N == 6, "no format of the library feeds as many arguments yet");
        return {format.Text(), N, Format(format, 101, 102, 103, 104, 105, 106)};
    }
}

#define KVOPT_FORMAT(name) \
    { #name, Compiled(texts::name) }
const std::map<std::string, CompiledFormat>& CompiledFormats() {
    static const std::map<std::string, CompiledFormat> formats{
        KVOPT_FORMAT(kAxesDuplicate),        KVOPT_FORMAT(kAxesIllegalName),
        KVOPT_FORMAT(kAxesNotNumber),        KVOPT_FORMAT(kAxesLowNotBelowHigh),
        KVOPT_FORMAT(kAxesIllegalSetting),   KVOPT_FORMAT(kAxesOutsideRecommended),
        KVOPT_FORMAT(kAxesNextSetting),      KVOPT_FORMAT(kAxesUnknownSetting),
        KVOPT_FORMAT(kConstantsDoubtful),    KVOPT_FORMAT(kConstantsMissing),
        KVOPT_FORMAT(kSelectTitle),          KVOPT_FORMAT(kSelectItemsHeading),
        KVOPT_FORMAT(kSelectHeading),        KVOPT_FORMAT(kAvailableLabel),
        KVOPT_FORMAT(kSelectedLabel),        KVOPT_FORMAT(kNothingSelected),
        KVOPT_FORMAT(kStudyNameWithSetting), KVOPT_FORMAT(kSpokenSlider),
        KVOPT_FORMAT(kRiskLimitCaption)};
    return formats;
}
#undef KVOPT_FORMAT

TEST(Texts, AreAllMarkedAsPlainOrFormat) {
    const std::vector<WrittenText> texts = AllTexts();
    EXPECT_FALSE(texts.empty());
    for (const WrittenText& text : texts) {
        EXPECT_TRUE(text.isMarked) << text.place << ": \"" << text.text << "\"";
    }
}

TEST(Texts, ParseAndCountWhatTheyDeclareWhereTheyAreFormats) {
    for (const WrittenText& text : AllTexts()) {
        if (text.arguments) {
            EXPECT_EQ(DirectiveCount(text.text), text.arguments)
                << text.place << ": \"" << text.text << "\"";
        }
    }
}

TEST(Texts, HoldNoDirectiveWhereTheyArePlain) {
    // A plain text with a percent sign belongs here, with the reason why it is none of a format.
    const std::set<std::string> percentSigns{
        // The unit of a risk.
        "kRisk", "kRiskShort", "kRiskChoice", "kRiskLimit", "kRiskPercentOutside"};
    for (const WrittenText& text : AllTexts()) {
        if (!text.arguments && percentSigns.count(text.name) == 0) {
            EXPECT_EQ(text.text.find('%'), std::string::npos)
                << text.place << ": \"" << text.text << "\"";
        }
    }
}

TEST(Texts, HaveOneNameEach) {
    std::map<std::string, std::string> placeOfName;
    std::string before;
    for (const WrittenText& text : AllTexts()) {
        // The entries of an array share its name.
        if (text.name != before) {
            const auto [found, isNew] = placeOfName.emplace(text.name, text.place);
            EXPECT_TRUE(isNew) << text.name << " in " << text.place << " and " << found->second;
        }
        before = text.name;
    }
}

TEST(Texts, AreTheCompiledFormatsAndNoOthers) {
    std::set<std::string> written;
    for (const WrittenText& text : AllTexts()) {
        if (!text.arguments) {
            continue;
        }
        written.insert(text.name);
        const auto compiled = CompiledFormats().find(text.name);
        ASSERT_NE(compiled, CompiledFormats().end())
            << text.place << ": " << text.name << " is missing among the compiled formats";
        EXPECT_EQ(compiled->second.arguments, *text.arguments) << text.place;
        EXPECT_EQ(compiled->second.text, text.text) << text.place;
    }
    EXPECT_EQ(written.size(), CompiledFormats().size());
}

TEST(Texts, ShowEveryArgumentThatTheyAreFed) {
    for (const auto& [name, format] : CompiledFormats()) {
        for (int i = 1; i <= format.arguments; ++i) {
            EXPECT_NE(format.filled.find(std::to_string(100 + i)), std::string::npos)
                << name << ": " << format.filled;
        }
        EXPECT_EQ(format.filled.find('%'), std::string::npos) << name << ": " << format.filled;
    }
}

TEST(Texts, OfASampleAreFoundWithTheirMarks) {
    const auto texts = TextsIn(
        "inline constexpr FormatText<2> kTwo(\"%s\" \" %d\");\n"
        "inline constexpr PlainText kList[] = {PlainText(\"a\"), PlainText{\"b\"}};\n"
        "inline constexpr const char* kLoose = \"c\";\n",
        "sample");
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0].name, "kTwo");
    EXPECT_EQ(texts[0].text, "%s %d");
    EXPECT_EQ(texts[0].arguments, 2);
    EXPECT_EQ(texts[2].name, "kList");
    EXPECT_TRUE(texts[2].isMarked);
    EXPECT_FALSE(texts[2].arguments);
    EXPECT_FALSE(texts[3].isMarked);
}

bool HasLetter(const std::string& text) {
    for (const char c : text) {
        if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) {
            return true;
        }
    }
    return false;
}

bool IsSign(const Token& token, const char* sign) {
    return token.kind == Token::Kind::Sign && token.text == sign;
}

/// The literals with letters among the arguments of calls of these functions.
std::vector<std::string> LiteralsPassedTo(const std::set<std::string>& functions,
                                          const std::vector<Token>& tokens,
                                          const std::string& file) {
    std::vector<std::string> found;
    for (std::size_t at = 0; at + 1 < tokens.size(); ++at) {
        if (tokens[at].kind != Token::Kind::Word || functions.count(tokens[at].text) == 0 ||
            !IsSign(tokens[at + 1], "(")) {
            continue;
        }
        for (std::size_t i = at + 1; i < ClosingOf(tokens, at + 1); ++i) {
            if (tokens[i].kind == Token::Kind::Literal && HasLetter(tokens[i].text)) {
                found.push_back(file + ":" + std::to_string(tokens[i].line) + " \"" +
                                tokens[i].text + "\"");
            }
        }
    }
    return found;
}

const std::set<std::string> kShowingFunctions{
    "ShowMessage",    "SetText",        "SetPageTitle", "AddString",       "InsertString",
    "setText",        "setTitle",       "setToolTip",   "KvPropertySheet", "setAccessibleName",
    "setWindowTitle", "StorePageTitle", "SetLabel",     "Refuse"};

TEST(Sources, ShowTheUserNoTextOfTheirOwn) {
    for (const char* folder : {"src", "qt"}) {
        for (const auto& file : FilesBelow(folder, {".cpp", ".h"})) {
            const std::string name = ShortName(file);
            for (const std::string& literal :
                 LiteralsPassedTo(kShowingFunctions, TokensOf(ReadText(file), name), name)) {
                ADD_FAILURE() << literal << " belongs among the resources";
            }
        }
    }
}

TEST(Sources, OfTheSubsystemsHoldNoSentenceButThoseForProgrammers) {
    for (const char* folder :
         {"axes", "constants", "designspace", "plotargs", "selection", "sheets", "study"}) {
        for (const auto& file : FilesBelow(std::string("src/") + folder, {".cpp", ".h"})) {
            const std::string name = ShortName(file);
            std::vector<Token> tokens = TokensOf(ReadText(file), name);
            std::size_t thrownUntil = 0;
            for (std::size_t at = 0; at < tokens.size(); ++at) {
                if (tokens[at].text == "InvalidArgument" && IsSign(tokens.at(at + 1), "(")) {
                    thrownUntil = ClosingOf(tokens, at + 1);
                }
                if (tokens[at].kind == Token::Kind::Literal && at > thrownUntil &&
                    tokens[at].text.find(' ') != std::string::npos) {
                    EXPECT_FALSE(HasLetter(tokens[at].text))
                        << name << ":" << tokens[at].line << " \"" << tokens[at].text
                        << "\" belongs among the resources";
                }
            }
        }
    }
}

TEST(Sources, OfASampleAreSearchedWithinNestedCalls) {
    const auto tokens = TokensOf("ShowMessage(this, Wide(\"No way\"), 0); SetText(L\"\");", "s");
    EXPECT_EQ(LiteralsPassedTo(kShowingFunctions, tokens, "s"),
              std::vector<std::string>{"s:1 \"No way\""});
}

}  // namespace
}  // namespace kvopt::test
