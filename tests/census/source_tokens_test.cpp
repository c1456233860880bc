#include "census/source_tokens.h"

#include <gmock/gmock.h>

#include <stdexcept>

namespace kvopt::test {
namespace {

std::vector<std::string> Texts(std::string_view source, Token::Kind kind) {
    std::vector<std::string> texts;
    for (const Token& token : TokensOf(source, "sample")) {
        if (token.kind == kind) {
            texts.push_back(token.text);
        }
    }
    return texts;
}

using testing::ElementsAre;

TEST(SourceTokens, PassOverCommentsAndDirectives) {
    EXPECT_THAT(
        Texts("#include \"a b\"\n#define x \\\n y\n// no\n/* no\n*/ yes", Token::Kind::Word),
        ElementsAre("yes"));
    EXPECT_THAT(Texts("#include \"a b\"\n", Token::Kind::Literal), ElementsAre());
}

TEST(SourceTokens, JoinNeighbouringLiteralsAndReadEscapes) {
    EXPECT_THAT(Texts("f(\"a\\n\" // and\n \"b\\\"\", L\"c\")", Token::Kind::Literal),
                ElementsAre("a\nb\"", "c"));
}

TEST(SourceTokens, TakeNumbersAndCharactersForNoWords) {
    EXPECT_THAT(Texts("x1 = 6'001 + 0x1F + 1.5e3 + 'q'", Token::Kind::Word), ElementsAre("x1"));
    EXPECT_THAT(Texts("x1 = 6001 + '\"'", Token::Kind::Number), ElementsAre("6001", "\""));
}

TEST(SourceTokens, KnowTheirLines) {
    EXPECT_EQ(TokensOf("/*\n*/\n a", "sample").at(0).line, 3);
}

TEST(SourceTokens, FindTheBracketThatCloses) {
    const auto tokens = TokensOf("f(a, (b), c) + d", "sample");
    EXPECT_EQ(tokens.at(ClosingOf(tokens, 1) + 1).text, "+");
    EXPECT_THROW(ClosingOf(TokensOf("(a", "sample"), 0), std::runtime_error);
}

TEST(SourceTokens, RefuseWhatTheyCannotRead) {
    EXPECT_THROW(TokensOf("R\"(raw)\"", "sample"), std::runtime_error);
    EXPECT_THROW(TokensOf("\"open\n\"", "sample"), std::runtime_error);
}

}  // namespace
}  // namespace kvopt::test
