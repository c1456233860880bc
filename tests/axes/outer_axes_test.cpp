// What the pages with outer axes show and store of a qualitative factor.

#include <gmock/gmock.h>

#include <algorithm>

#include "axes/axes_4d_fixture.h"

namespace kvopt::test {
namespace {

class OuterAxisRows : public BothAxes4D {};

TEST_P(OuterAxisRows, ShowARangeForANumber) {
    Show(GetParam(), "Speed", "Mass");
    EXPECT_EQ(Shown(0), "range");
    EXPECT_EQ(Shown(1), "range");
    EXPECT_EQ(Outer(0).Text(), "Speed|5|6");
}

TEST_P(OuterAxisRows, ShowSettingsInPlaceOfTheRangeOfAQualitativeFactor) {
    Show(GetParam(), "Colour", "Speed");
    EXPECT_EQ(Shown(0), "settings");
    EXPECT_EQ(Shown(1), "range");
    Show(GetParam(), "Speed", "Tint");
    EXPECT_EQ(Shown(0), "range");
    EXPECT_EQ(Shown(1), "settings");
}

TEST_P(OuterAxisRows, BeginWithTheFirstThreeSettingsOfAFactorThatIsPicked) {
    Show(GetParam());
    EXPECT_TRUE(Outer(0).Pick("Colour"));
    EXPECT_EQ(SettingsText(0), "red;green;blue");
    EXPECT_EQ(Shown(0), "settings");
    EXPECT_TRUE(Outer(1).Pick("Tint"));
    EXPECT_EQ(SettingsText(1), "red;green;blue");
    EXPECT_EQ(Shown(1), "settings");
    EXPECT_TRUE(page->IsChanged());
}

TEST_P(OuterAxisRows, BeginWithTheSettingsInUseAlone) {
    study.GetVariables()->GetFactor("Colour")->factorValue.included = {2, 4};
    study.GetVariables()->GetFactor("Tint")->factorValue.included = {4};
    Show(GetParam());
    Outer(0).Pick("Colour");
    Outer(1).Pick("Tint");
    EXPECT_EQ(SettingsText(0), "green;grey");
    EXPECT_EQ(SettingsText(1), "grey");
}

TEST_P(OuterAxisRows, BeginWithNothingForAFactorWithoutSettings) {
    study.FakeStudy::Names("Empty", {});
    Show(GetParam());
    Outer(0).Pick("Colour");
    Outer(0).Pick("Empty");
    EXPECT_EQ(SettingsText(0), "");
    EXPECT_EQ(Shown(0), "settings");
}

TEST_P(OuterAxisRows, BeginAnewWithEachChangeToAQualitativeFactor) {
    Show(GetParam());
    Outer(0).Pick("Colour");
    Settings(0).UserEdit(L"grey");
    Outer(0).Pick("Speed");
    Outer(0).Pick("Colour");
    EXPECT_EQ(SettingsText(0), "red;green;blue");
}

TEST_P(OuterAxisRows, ShowTheRangeAgainForANumber) {
    Show(GetParam(), "Colour", kNone);
    Outer(0).Pick("Speed");
    EXPECT_EQ(Shown(0), "range");
    EXPECT_EQ(Outer(0).Text(), "Speed|10|90");
}

TEST_P(OuterAxisRows, ShowTheEmptyDisabledRangeAgainWhenTheyAreEmptied) {
    Show(GetParam(), "Colour", "Tint");
    for (const int which : {0, 1}) {
        EXPECT_FALSE(Outer(which).low.IsVisible());
        EXPECT_TRUE(Outer(which).Pick(kNone));
        EXPECT_EQ(Shown(which), "range");
        EXPECT_EQ(Outer(which).Text(), kNone + "|| (off)");
    }
}

TEST_P(OuterAxisRows, LeaveTheOtherOuterAxisAlone) {
    Show(GetParam(), "Colour", "Tint");
    Settings(1).UserEdit(L"grey");
    Outer(0).Pick("Speed");
    EXPECT_EQ(Shown(1), "settings");
    EXPECT_EQ(SettingsText(1), "grey");
}

TEST_P(OuterAxisRows, KeepTheirSettingsWhenAnInnerAxisIsPutBackToItsDefault) {
    Show(GetParam(), "Colour", "Tint");
    for (int axis = 1; axis < first; ++axis) {
        EXPECT_TRUE(Row(axis).button.UserClick());
        EXPECT_EQ(Shown(0), "settings") << axis;
        EXPECT_EQ(Shown(1), "settings") << axis;
    }
}

TEST_P(OuterAxisRows, CanAlwaysBeLeftEmptyUnlikeTheInnerOnes) {
    Show(GetParam(), "Speed", "Mass");
    for (int axis = 1; axis < first; ++axis) {
        EXPECT_THAT(Row(axis).Entries(), testing::Not(testing::Contains(kNone))) << axis;
    }
    EXPECT_EQ(Outer(0).Entries().back(), kNone);
    EXPECT_EQ(Outer(1).Entries().back(), kNone);
}

TEST_P(OuterAxisRows, ShowTheNotUsedNameOnAnInnerAxisThatNoFactorIsLeftFor) {
    study.unavailable = {"A", "B", "C", "D", "Temp", "Time", "Speed", "Mass"};
    Show(GetParam());
    EXPECT_EQ(Row(1).Name(), kNone);
}

TEST_P(OuterAxisRows, OfferEachNameOnceWhenTheyOpenEmpty) {
    Show(GetParam());
    const Texts entries = Outer(0).Entries();
    EXPECT_EQ(std::count(entries.begin(), entries.end(), kNone), 1);
}

TEST_P(OuterAxisRows, ShowTheStoredSettingsOverTheFirstOnes) {
    Store("Colour", "Tint", "grey;red", "blue");
    Show(GetParam());
    EXPECT_EQ(SettingsText(0), "grey;red");
    EXPECT_EQ(SettingsText(1), "blue");
}

TEST_P(OuterAxisRows, ShowStoredSettingsAsTheyAreAnEmptyTextToo) {
    Store("Colour", "Tint", "", "no colour;red;green;blue;grey");
    Show(GetParam());
    EXPECT_EQ(SettingsText(0), "");
    EXPECT_EQ(SettingsText(1), "no colour;red;green;blue;grey");
}

TEST_P(OuterAxisRows, HoldTheStoredSettingsOfAFactorThatIsNoLongerOfferedBehindTheRow) {
    study.unavailable = {"Colour"};
    Store("Colour", "Speed", "grey;red");
    Show(GetParam());
    EXPECT_NE(Outer(0).Name(), "Colour");
    EXPECT_EQ(Shown(0), "range");
    EXPECT_EQ(SettingsText(0), "grey;red");
}

TEST_P(OuterAxisRows, ShowNoStoredSettingsOfANumber) {
    Store("Speed", kNone, "red", "green");
    Show(GetParam());
    EXPECT_EQ(SettingsText(0), "");
    EXPECT_EQ(SettingsText(1), "");
}

TEST_P(OuterAxisRows, MarkThePageWhenSettingsAreTyped) {
    for (const int which : {0, 1}) {
        Show(GetParam(), "Colour", "Tint");
        Settings(which).UserEdit(L"r");
        EXPECT_TRUE(page->IsChanged()) << which;
    }
}

TEST_P(OuterAxisRows, DoNothingWithoutAWindow) {
    Store("Colour", "Tint", "grey", "grey");
    Make(GetParam());
    page->SetDefault(first);
    page->TransferFromPage();
    EXPECT_EQ(Stored(0).GetSettings(), "grey");
    EXPECT_TRUE(page->CheckLegalAxes());
    EXPECT_TRUE(desktop.boxes.empty());
}

// What is written.

TEST_P(OuterAxisRows, WriteTheirSettings) {
    Show(GetParam(), "Colour", "Tint");
    Settings(0).UserEdit(L"grey;blue");
    Settings(1).UserEdit(L"red");
    page->TransferFromPage();
    EXPECT_EQ(Stored(0).GetName(), "Colour");
    EXPECT_EQ(Stored(0).GetSettings(), "grey;blue");
    EXPECT_EQ(Stored(1).GetSettings(), "red");
}

TEST_P(OuterAxisRows, WriteNoRangeUnitOrKindOfAQualitativeFactor) {
    Show(GetParam(), "Colour", kNone);
    page->TransferFromPage();
    EXPECT_EQ(Stored(0).GetMin(), 5.0F);
    EXPECT_EQ(Stored(0).GetMax(), 6.0F);
    EXPECT_EQ(Stored(0).GetUnit(), "");
    EXPECT_FALSE(Stored(0).IsQualitative());
}

TEST_P(OuterAxisRows, WriteARangeAndLeaveTheSettingsOfANumber) {
    Store("Speed", "Mass", "red", "green");
    Show(GetParam());
    Outer(0).low.UserEdit(L"7.5");
    Outer(0).high.UserEdit(L"8.5");
    page->TransferFromPage();
    EXPECT_EQ(Stored(0).GetMin(), 7.5F);
    EXPECT_EQ(Stored(0).GetMax(), 8.5F);
    EXPECT_EQ(Stored(0).GetSettings(), "red");
    EXPECT_EQ(Stored(1).GetSettings(), "green");
}

TEST_P(OuterAxisRows, LeaveTheSettingsOfAnAxisThatWasEmptied) {
    Store("Colour", "Tint", "grey", "grey");
    Show(GetParam());
    Outer(0).Pick(kNone);
    Outer(1).Pick(kNone);
    page->TransferFromPage();
    EXPECT_EQ(Stored(0).GetName(), kNone);
    EXPECT_EQ(Stored(0).GetSettings(), "grey");
    EXPECT_EQ(Stored(1).GetSettings(), "grey");
}

TEST_P(OuterAxisRows, WriteNoSettingsOfAnEmptyAxisWhateverAFactorIsCalled) {
    study.Names(kNone);
    Store(kNone, kNone, "grey", "grey");
    Show(GetParam());
    Settings(0).SetText(L"red");
    page->TransferFromPage();
    EXPECT_EQ(Stored(0).GetSettings(), "grey");
}

TEST_P(OuterAxisRows, PassOverAxesThatTheSetLacks) {
    Show(GetParam(), "Colour", "Tint");
    axes.resize(axes.size() - 1);
    axes[static_cast<std::size_t>(first)] = nullptr;
    page->TransferFromPage();
    EXPECT_EQ(axes[1]->GetName(), Row(1).Name());
}

TEST_P(OuterAxisRows, WriteAndShowTheirSettingsWhenThePageIsApplied) {
    Show(GetParam(), "Colour", kNone);
    Settings(0).UserEdit(L"blue;red");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored(0).GetSettings(), "blue;red");
    EXPECT_FALSE(page->IsChanged());
}

INSTANTIATE_TEST_SUITE_P(Pages, OuterAxisRows, testing::Values(Plot::Process, Plot::Mixture));

// The dialog.

class SettingsDialog : public BothAxes4D {
protected:
    /// Presses the button of an outer axis. `use` acts on the dialog.
    void Press(int which, std::function<void(CDialog&)> use) {
        desktop.dialogUser = std::move(use);
        SettingsButton(which).UserClick();
    }
    static CListBox& Available(CDialog& dialog) { return *dialog.Item<CListBox>(6075); }
    static CListBox& Selected(CDialog& dialog) { return *dialog.Item<CListBox>(6077); }
    static Texts Entries(const CListBox& list) {
        Texts entries;
        for (int i = 0; i < list.GetCount(); ++i) {
            entries.push_back(KvStdString::ToUtf8(list.GetItemText(i)));
        }
        return entries;
    }
    /// Moves one entry to the other list.
    static void Move(CListBox& list, const wchar_t* entry) {
        ASSERT_TRUE(list.UserDoubleClick(list.FindStringExact(-1, entry)));
    }
};

TEST_P(SettingsDialog, ShowsTheSettingsOfTheAxisAndTheOthersOfTheFactor) {
    Store("Colour", "Tint", "grey;green", "blue");
    Show(GetParam());
    Texts seen;
    const auto look = [&](CDialog& dialog) {
        seen = Entries(Available(dialog));
        seen.push_back("|");
        for (const std::string& name : Entries(Selected(dialog))) {
            seen.push_back(name);
        }
    };
    Press(0, look);
    EXPECT_EQ(seen, (Texts{"red", "blue", "|", "grey", "green"}));
    Press(1, look);
    EXPECT_EQ(seen, (Texts{"red", "green", "grey", "|", "blue"}));
}

TEST_P(SettingsDialog, OffersSettingsThatAreNotInUseToo) {
    study.GetVariables()->GetFactor("Colour")->factorValue.included = {1};
    Show(GetParam());
    Outer(0).Pick("Colour");
    Texts seen;
    Press(0, [&](CDialog& dialog) { seen = Entries(Available(dialog)); });
    EXPECT_EQ(seen, (Texts{"green", "blue", "grey"}));
}

TEST_P(SettingsDialog, SpeaksOfSettingsAndBelongsToTheSheet) {
    Show(GetParam(), "Colour", kNone);
    page->DestroyWindow();
    Run(true, [&](KvPropertySheet& sheet) {
        Settings(0).UserEdit(L"red");
        Texts labels;
        CWnd* parent = nullptr;
        Press(0, [&](CDialog& dialog) {
            parent = dialog.GetParent();
            EXPECT_EQ(dialog.TemplateNumber(), 6150);
            for (const int number : {6145, 6144, 6146}) {
                labels.push_back(Utf8(*dialog.GetDlgItem(number)));
            }
        });
        EXPECT_EQ(parent, &sheet);
        for (const std::string& label : labels) {
            EXPECT_NE(label.find("settings"), std::string::npos) << label;
        }
        EXPECT_EQ(labels.size(), 3U);
    });
}

TEST_P(SettingsDialog, WritesWhatWasChosenInItsOrder) {
    Store("Colour", kNone, "grey;green");
    Show(GetParam());
    Press(0, [](CDialog& dialog) {
        Move(Selected(dialog), L"grey");
        Move(Available(dialog), L"red");
        EXPECT_TRUE(dialog.UserOk());
    });
    EXPECT_EQ(SettingsText(0), "green;red");
    EXPECT_TRUE(page->IsChanged());
}

TEST_P(SettingsDialog, WritesToTheSecondAxisFromItsOwnButton) {
    Store("Colour", "Tint", "grey", "grey");
    Show(GetParam());
    Press(1, [](CDialog& dialog) {
        Move(Available(dialog), L"blue");
        EXPECT_TRUE(dialog.UserOk());
    });
    EXPECT_EQ(SettingsText(0), "grey");
    EXPECT_EQ(SettingsText(1), "grey;blue");
}

TEST_P(SettingsDialog, TakesThreeAndNoMore) {
    Store("Colour", kNone, "red;green");
    Show(GetParam());
    Press(0, [](CDialog& dialog) {
        Move(Available(dialog), L"blue");
        Move(Available(dialog), L"grey");
        EXPECT_EQ(Entries(Selected(dialog)), (Texts{"red", "green", "blue"}));
    });
}

TEST_P(SettingsDialog, DropsWhatIsNoSettingWithoutAWord) {
    Store("Colour", kNone, "red;pink;;blue");
    Show(GetParam());
    Press(0, [](CDialog& dialog) {
        EXPECT_EQ(Entries(Selected(dialog)), (Texts{"red", "blue"}));
        EXPECT_TRUE(dialog.UserOk());
    });
    EXPECT_EQ(SettingsText(0), "red;blue");
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_P(SettingsDialog, ChangesNothingUnlessItEndsWithOk) {
    Store("Colour", kNone, "red;pink");
    Show(GetParam());
    Press(0, [](CDialog& dialog) {
        Move(Available(dialog), L"blue");
        EXPECT_TRUE(dialog.UserCancel());
    });
    EXPECT_EQ(SettingsText(0), "red;pink");
    EXPECT_FALSE(page->IsChanged());
    EXPECT_EQ(changes, 0);
}

TEST_P(SettingsDialog, MarksThePageBeforeItWritesTheSettings) {
    /// Views are told of a text before the page that it marks.
    class View : public WindowListener {
    public:
        explicit View(const int& changes) : changes_(changes) {}
        void OnWindowChanged(CWnd&, WindowChange change) override {
            if (change == WindowChange::Text) {
                changesThen.push_back(changes_);
            }
        }
        void OnWindowGone(CWnd&) override {}
        std::vector<int> changesThen;

    private:
        const int& changes_;
    } view(changes);
    Store("Colour", kNone, "red");
    Show(GetParam());
    Settings(0).AddListener(&view);
    Press(0, [](CDialog& dialog) {
        Move(Available(dialog), L"blue");
        EXPECT_TRUE(dialog.UserOk());
    });
    Settings(0).RemoveListener(&view);
    EXPECT_EQ(view.changesThen, std::vector<int>{1});
    EXPECT_EQ(changes, 2) << "once for the OK and once for the text";
}

TEST_P(SettingsDialog, LeavesTheTextWhenNothingIsLeftOfTheChoice) {
    // A setting without a name is the one choice whose text is empty.
    study.FakeStudy::Names("Odd", {"", "red"});
    Store("Odd", kNone, "red");
    Show(GetParam());
    Press(0, [](CDialog& dialog) {
        Move(Selected(dialog), L"red");
        Available(dialog).UserDoubleClick(0);
        EXPECT_EQ(Entries(Selected(dialog)), Texts{""});
        EXPECT_TRUE(dialog.UserOk());
    });
    EXPECT_EQ(SettingsText(0), "red");
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(page->IsChanged());
}

INSTANTIATE_TEST_SUITE_P(Pages, SettingsDialog, testing::Values(Plot::Process, Plot::Mixture));

}  // namespace
}  // namespace kvopt::test
