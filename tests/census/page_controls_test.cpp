#include "census/page_controls.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "census/source_tokens.h"
#include "tests/support/control_kind_name.h"

namespace kvopt::test {
namespace {

// Numbers of controls, templates and tables lie in this range; nothing else in the pages' code
// does.
constexpr int kFirstNumber = 6000;
constexpr int kLastNumber = 6999;

std::set<int> NumbersIn(const std::filesystem::path& file) {
    std::set<int> numbers;
    for (const Token& token : TokensOf(ReadText(file), ShortName(file))) {
        if (token.kind == Token::Kind::Number && token.text.size() == 4 &&
            token.text.find_first_not_of("0123456789") == std::string::npos) {
            const int number = std::stoi(token.text);
            if (number >= kFirstNumber && number <= kLastNumber) {
                numbers.insert(number);
            }
        }
    }
    return numbers;
}

std::filesystem::path Source(const char* file) {
    return std::filesystem::path(KVOPT_SOURCE_DIR) / "src" / file;
}

bool IsOtherNumber(int number) {
    for (const OtherNumber& other : OtherNumbers()) {
        if (other.number == number) {
            return true;
        }
    }
    return TemplateCatalog::Instance().Find(number) != nullptr;
}

TEST(PageControls, StandInTheTemplateWithTheRightKind) {
    for (const PageOfTemplate& page : PagesOfTemplates()) {
        const DialogTemplate* dialog = TemplateCatalog::Instance().Find(page.number);
        ASSERT_NE(dialog, nullptr) << page.pageClass << " " << page.number;
        std::map<int, ControlKind> kinds;
        for (const ControlTemplate& control : dialog->Controls()) {
            kinds[control.number] = control.kind;
        }
        for (const NamedControl& named : page.controls) {
            const auto found = kinds.find(named.number);
            ASSERT_NE(found, kinds.end())
                << page.pageClass << ": template " << page.number << " has no " << named.number;
            EXPECT_STREQ(KindName(found->second), KindName(named.kind))
                << page.pageClass << ": " << page.number << ":" << named.number;
        }
        for (const int number : page.absent) {
            EXPECT_EQ(kinds.count(number), 0U)
                << page.pageClass << ": " << page.number << ":" << number;
        }
    }
}

TEST(PageControls, AreAllTheNumberedControlsOfTheTemplate) {
    for (const PageOfTemplate& page : PagesOfTemplates()) {
        std::set<int> named{-1};
        for (const NamedControl& control : page.controls) {
            EXPECT_TRUE(named.insert(control.number).second) << "twice in the table";
        }
        for (const ControlTemplate& control :
             TemplateCatalog::Instance().Find(page.number)->Controls()) {
            EXPECT_EQ(named.count(control.number), 1U)
                << "no code of " << page.pageClass << " names " << page.number << ":"
                << control.number;
        }
    }
}

TEST(PageControls, AreTheNumbersInTheSourcesOfThePage) {
    for (const PageSources& sources : SourcesOfPages()) {
        std::set<int> written;
        for (const char* file : sources.files) {
            for (const int number : NumbersIn(Source(file))) {
                if (!IsOtherNumber(number)) {
                    written.insert(number);
                }
            }
        }
        std::set<int> listed;
        for (const PageOfTemplate& page : PagesOfTemplates()) {
            if (std::string(page.pageClass) != sources.pageClass) {
                continue;
            }
            for (const NamedControl& control : page.controls) {
                listed.insert(control.number);
                EXPECT_EQ(written.count(control.number), 1U)
                    << sources.pageClass << " does not name " << control.number;
            }
            listed.insert(page.absent.begin(), page.absent.end());
        }
        EXPECT_FALSE(listed.empty()) << sources.pageClass;
        // The axis pages share their rows and leave out those that they have no axis for.
        const bool isAxisPage = std::string(sources.files.front()) == "axes/axis_page.cpp";
        if (!isAxisPage || std::string(sources.pageClass) == "AxisPage") {
            EXPECT_EQ(written, listed) << sources.pageClass;
        }
    }
}

TEST(PageControls, StandInNoSourceThatTheTableForgets) {
    std::set<std::string> read;
    for (const PageSources& sources : SourcesOfPages()) {
        for (const char* file : sources.files) {
            read.insert(std::string("src/") + file);
        }
    }
    for (const auto& file : FilesBelow("src", {".cpp", ".h"})) {
        if (read.count(ShortName(file)) != 0) {
            continue;
        }
        for (const int number : NumbersIn(file)) {
            EXPECT_TRUE(IsOtherNumber(number))
                << ShortName(file) << " names " << number << ", and no page of the table reads it";
        }
    }
}

TEST(PageControls, CoverEveryTemplateOfTheLibrary) {
    std::set<int> covered;
    for (const PageOfTemplate& page : PagesOfTemplates()) {
        covered.insert(page.number);
    }
    for (const DialogTemplate* dialog : TemplateCatalog::Instance().All()) {
        EXPECT_EQ(covered.count(dialog->number), 1U) << dialog->number;
    }
    for (const OtherNumber& other : OtherNumbers()) {
        EXPECT_EQ(covered.count(other.number), 0U) << other.number << ": " << other.why;
    }
}

}  // namespace
}  // namespace kvopt::test
