#include <gtest/gtest.h>

#include <cwctype>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "census/page_controls.h"
#include "kvopt/platform.h"
#include "kvopt/text.h"
#include "qt_texts.h"
#include "selection_texts.h"
#include "tests/support/control_kind_name.h"

namespace kvopt::test {
namespace {

bool IsForUser(ControlKind kind) {
    return kind != ControlKind::Label && kind != ControlKind::Markup;
}

/// Two controls of a template that answer to the same key, by the system's own labels.
struct KnownDouble {
    int number;  ///< of the template
    wchar_t key;
    const char* why;
};

/// None of the present labels share a key.
const std::vector<KnownDouble> kKnownDoubles{};

bool IsKnownDouble(int number, wchar_t key) {
    for (const KnownDouble& known : kKnownDoubles) {
        if (known.number == number && known.key == key) {
            return true;
        }
    }
    return false;
}

wchar_t KeyOf(const std::wstring& label) {
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(MnemonicOf(label))));
}

void CollectTitles(const LayoutItem& item, std::vector<std::wstring>& titles) {
    titles.push_back(KvStdString::ToWide(item.title));
    for (const LayoutItem& child : item.children) {
        CollectTitles(child, titles);
    }
}

void CollectLeaves(const LayoutItem& item, std::vector<ControlTemplate>& leaves) {
    if (item.kind == LayoutKind::Control) {
        leaves.push_back(item.control);
        EXPECT_TRUE(item.children.empty()) << item.control.number << " holds other items";
    }
    for (const LayoutItem& child : item.children) {
        CollectLeaves(child, leaves);
    }
}

class Templates : public testing::TestWithParam<int> {
protected:
    const DialogTemplate& Dialog() const { return *TemplateCatalog::Instance().Find(GetParam()); }
    std::vector<ControlTemplate> Controls() const { return Dialog().Controls(); }

    const ControlTemplate* Find(int number) const {
        static std::map<int, ControlTemplate> found;
        found.clear();
        for (const ControlTemplate& control : Controls()) {
            found[control.number] = control;
        }
        const auto at = found.find(number);
        return number == -1 || at == found.end() ? nullptr : &at->second;
    }
};

TEST_P(Templates, HaveACaption) {
    EXPECT_STRNE(Dialog().caption, "");
    EXPECT_GT(Dialog().number, 0);
}

TEST_P(Templates, NumberEachControlOnce) {
    std::set<int> numbers;
    for (const ControlTemplate& control : Controls()) {
        if (control.number == -1) {
            EXPECT_EQ(control.kind, ControlKind::Label) << control.label;
        } else {
            EXPECT_GT(control.number, 0);
            EXPECT_TRUE(numbers.insert(control.number).second) << control.number;
        }
    }
    EXPECT_FALSE(numbers.empty());
}

TEST_P(Templates, GiveEachKeyToOneControl) {
    std::map<wchar_t, std::wstring> labelOfKey;
    std::vector<std::wstring> labels;
    for (const ControlTemplate& control : Controls()) {
        labels.push_back(KvStdString::ToWide(control.label));
    }
    CollectTitles(Dialog().layout, labels);
    // The frame's own buttons stand below every page.
    for (const PlainText& text : {texts::kFrameOk, texts::kFrameCancel, texts::kFrameApply,
                                  texts::kFrameBack, texts::kFrameNext, texts::kFrameFinish}) {
        labels.push_back(text.Wide());
    }
    for (const std::wstring& label : labels) {
        const wchar_t key = KeyOf(label);
        if (key != 0 && !IsKnownDouble(Dialog().number, key)) {
            const auto [found, isNew] = labelOfKey.emplace(key, label);
            EXPECT_TRUE(isNew) << KvStdString::ToUtf8(label) << " and "
                               << KvStdString::ToUtf8(found->second);
        }
    }
}

TEST_P(Templates, LeadFromEveryKeyOfATextToAControl) {
    for (const ControlTemplate& control : Controls()) {
        const bool hasKey = MnemonicOf(KvStdString::ToWide(control.label)) != 0;
        if (control.kind == ControlKind::Label && hasKey) {
            EXPECT_NE(control.buddy, -1) << control.label;
        }
    }
}

TEST_P(Templates, NameBuddiesThatAreThere) {
    std::set<int> led;
    for (const ControlTemplate& control : Controls()) {
        if (control.kind == ControlKind::Spin) {
            const ControlTemplate* edit = Find(control.buddy);
            ASSERT_NE(edit, nullptr) << control.number;
            EXPECT_EQ(edit->kind, ControlKind::Edit) << control.number;
        } else if (control.buddy != -1) {
            EXPECT_EQ(control.kind, ControlKind::Label) << control.number;
            const ControlTemplate* buddy = Find(control.buddy);
            ASSERT_NE(buddy, nullptr) << control.label;
            EXPECT_TRUE(IsForUser(buddy->kind)) << control.label;
            EXPECT_TRUE(led.insert(control.buddy).second) << "two texts lead to " << control.buddy;
        }
    }
}

TEST_P(Templates, BeginEveryRadioGroup) {
    ControlKind before = ControlKind::Label;
    for (const ControlTemplate& control : Controls()) {
        if (control.kind != ControlKind::Radio) {
            EXPECT_FALSE(control.startsGroup) << control.number;
        } else if (before != ControlKind::Radio) {
            EXPECT_TRUE(control.startsGroup) << control.number;
        }
        before = control.kind;
    }
}

TEST_P(Templates, HaveAChoiceInEveryRadioGroup) {
    CDialog dialog(Dialog().number, nullptr);
    dialog.Create();
    for (const ControlTemplate& control : Controls()) {
        if (control.kind == ControlKind::Radio) {
            const std::vector<CButton*> group = dialog.RadioGroup(control.number);
            EXPECT_GE(group.size(), 2U) << control.number;
            EXPECT_TRUE(group.front()->Template().startsGroup) << control.number;
            for (std::size_t i = 1; i < group.size(); ++i) {
                EXPECT_FALSE(group[i]->Template().startsGroup) << control.number;
            }
        }
    }
}

TEST_P(Templates, BuildTheirControlsInTabOrder) {
    std::vector<ControlTemplate> leaves;
    CollectLeaves(Dialog().layout, leaves);
    const std::vector<ControlTemplate> controls = Controls();
    CDialog dialog(Dialog().number, nullptr);
    dialog.Create();
    ASSERT_EQ(controls.size(), leaves.size());
    ASSERT_EQ(dialog.Controls().size(), leaves.size());
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        const CControl& model = *dialog.Controls()[i];
        EXPECT_EQ(controls[i].number, leaves[i].number);
        EXPECT_EQ(model.Number(), leaves[i].number);
        EXPECT_STREQ(KindName(model.Kind()), KindName(leaves[i].kind));
        if (leaves[i].kind != ControlKind::Edit) {
            EXPECT_EQ(model.GetText(), KvStdString::ToWide(leaves[i].label));
        }
        EXPECT_EQ(model.IsEnabled(), leaves[i].enabled);
        EXPECT_EQ(model.IsVisible(), leaves[i].visible);
    }
}

TEST_P(Templates, BuildAModelThatFitsTheKind) {
    CDialog dialog(Dialog().number, nullptr);
    dialog.Create();
    for (const auto& control : dialog.Controls()) {
        const CWnd* model = control.get();
        bool fits = false;
        switch (control->Kind()) {
            case ControlKind::Edit:
                fits = dynamic_cast<const CEdit*>(model) != nullptr;
                break;
            case ControlKind::ComboList:
            case ControlKind::ComboEdit: {
                const auto* combo = dynamic_cast<const CComboBox*>(model);
                fits = combo != nullptr &&
                       combo->IsEditable() == (control->Kind() == ControlKind::ComboEdit);
                break;
            }
            case ControlKind::ListSingle:
            case ControlKind::ListMulti:
                fits = dynamic_cast<const CListBox*>(model) != nullptr;
                break;
            case ControlKind::Push:
            case ControlKind::Check:
            case ControlKind::Radio:
                fits = dynamic_cast<const CButton*>(model) != nullptr;
                break;
            case ControlKind::Spin:
                fits = dynamic_cast<const CSpinButtonCtrl*>(model) != nullptr;
                break;
            case ControlKind::Worksheet:
                fits = dynamic_cast<const VirtualWorksheet*>(model) != nullptr;
                break;
            case ControlKind::PropertyGrid:
                fits = dynamic_cast<const CXTPPropertyGrid*>(model) != nullptr;
                break;
            case ControlKind::Markup:
                fits = dynamic_cast<const CXTPMarkupStatic*>(model) != nullptr;
                break;
            case ControlKind::Label:
                fits = dynamic_cast<const CStatic*>(model) != nullptr;
                break;
        }
        EXPECT_TRUE(fits) << control->Number() << " is no " << KindName(control->Kind());
    }
}

TEST_P(Templates, NameEveryControlThatAPersonCanActOn) {
    CDialog dialog(Dialog().number, nullptr);
    dialog.Create();
    std::map<std::wstring, int> numberOfName;
    for (const auto& control : dialog.Controls()) {
        if (IsForUser(control->Kind())) {
            const std::wstring name = control->AccessibleName();
            EXPECT_FALSE(name.empty()) << control->Number();
            EXPECT_EQ(name.find(L'&'), std::wstring::npos) << control->Number();
            const auto [found, isNew] = numberOfName.emplace(name, control->Number());
            EXPECT_TRUE(isNew) << KvStdString::ToUtf8(name) << " names " << control->Number()
                               << " and " << found->second;
        }
    }
}

TEST_P(Templates, LetTheUserFocusEveryControlButTexts) {
    CDialog dialog(Dialog().number, nullptr);
    dialog.Create();
    for (const auto& control : dialog.Controls()) {
        control->EnableWindow(true);
        control->ShowWindow(true);
        if (control->Kind() == ControlKind::Label) {
            EXPECT_FALSE(control->UserFocus()) << control->Number();
        } else {
            EXPECT_TRUE(control->UserFocus()) << control->Number();
            EXPECT_EQ(dialog.GetFocusControl(), control.get());
        }
    }
}

TEST_P(Templates, LetSomethingGrowWithTheWindow) {
    struct Stretch {
        static bool Of(const LayoutItem& item) {
            bool grows = item.stretch > 0 || item.kind == LayoutKind::Space;
            for (const LayoutItem& child : item.children) {
                grows = grows || Of(child);
            }
            return grows;
        }
    };
    EXPECT_TRUE(Stretch::Of(Dialog().layout));
}

INSTANTIATE_TEST_SUITE_P(Library, Templates, testing::ValuesIn(AllTemplateNumbers()));

TEST(LabelsWrittenAtRunTime, AddNoKeyToThoseOfTheTemplate) {
    for (const char* noun : {"responses", "factors"}) {
        for (const std::wstring& label :
             {FormatWide(texts::kSelectHeading, noun), FormatWide(texts::kAvailableLabel, noun),
              FormatWide(texts::kSelectedLabel, noun)}) {
            EXPECT_EQ(MnemonicOf(label), L'\0') << KvStdString::ToUtf8(label);
        }
    }
}

TEST(KnownDoubles, StandInTheirTemplatesStill) {
    for (const KnownDouble& known : kKnownDoubles) {
        const DialogTemplate* dialog = TemplateCatalog::Instance().Find(known.number);
        ASSERT_NE(dialog, nullptr) << known.number;
        int count = 0;
        for (const ControlTemplate& control : dialog->Controls()) {
            count += KeyOf(KvStdString::ToWide(control.label)) == known.key ? 1 : 0;
        }
        EXPECT_GE(count, 2) << known.number << ": " << known.why;
    }
}

}  // namespace
}  // namespace kvopt::test
