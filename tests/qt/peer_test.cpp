#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QTest>
#include <QToolButton>

#include "kvopt/text.h"
#include "tests/qt/every_kind_page.h"
#include "tests/qt/qt_fixture.h"

namespace kvopt::test {

namespace {

using Heard = std::vector<std::string>;

/// A sheet with the page of every kind.
class Peers : public QtTest {
protected:
    Peers() : sheet_(L"Peers", nullptr) { sheet_.AddPage(&page_); }

    void Run(std::vector<Step> steps) {
        Play([this] { sheet_.DoModal(); }, std::move(steps));
    }

    EveryKindPage page_;
    CPropertySheet sheet_;
};

TEST_F(Peers, ShowTextsAsTheProgramWritesThem) {
    Run({[&] {
        page_.The<CEdit>(kName).SetText(L"größe");
        page_.GetDlgItem(kNameLabel)->SetText(L"&Size:");
        page_.The<CButton>(kPush).SetText(L"&Pull");
        EXPECT_EQ(Find<QLineEdit>(kName)->text(), QStringLiteral("größe"));
        EXPECT_EQ(Find<QLabel>(kNameLabel)->text(), QStringLiteral("&Size:"));
        EXPECT_EQ(Find<QAbstractButton>(kPush)->text(), QStringLiteral("&Pull"));
        EXPECT_EQ(Find<QLineEdit>(kName)->accessibleName(), QStringLiteral("Size:"))
            << "an edit without a name of its own is called by its label";
    }});
}

TEST_F(Peers, FollowEnablingAndHiding) {
    Run({[&] {
        page_.GetDlgItem(kName)->EnableWindow(false);
        page_.GetDlgItem(kAxis)->ShowWindow(false);
        EXPECT_FALSE(Find<QLineEdit>(kName)->isEnabled());
        EXPECT_FALSE(Find<QComboBox>(kAxis)->isVisible());
        EXPECT_FALSE(Find<QWidget>(kNever)->isVisible());
        page_.GetDlgItem(kName)->EnableWindow(true);
        page_.GetDlgItem(kAxis)->ShowWindow(true);
        EXPECT_TRUE(Find<QLineEdit>(kName)->isEnabled());
        EXPECT_TRUE(Find<QComboBox>(kAxis)->isVisible());
    }});
}

TEST_F(Peers, TellThePageOfEachCharacterTyped) {
    Run({[&] {
        QTest::keyClicks(Find<QLineEdit>(kName), QStringLiteral("ab"));
        EXPECT_EQ(page_.heard, (Heard{"changed 202 a", "changed 202 ab"}));
        EXPECT_EQ(page_.The<CEdit>(kName).GetText(), L"ab");
    }});
}

TEST_F(Peers, KeepTheCursorWhereTheUserTypes) {
    Run({[&] {
        auto* edit = Find<QLineEdit>(kName);
        QTest::keyClicks(edit, QStringLiteral("ad"));
        edit->setCursorPosition(1);
        QTest::keyClicks(edit, QStringLiteral("bc"));
        EXPECT_EQ(edit->text(), QStringLiteral("abcd"));
        EXPECT_EQ(edit->cursorPosition(), 3);
    }});
}

TEST_F(Peers, DropWhatIsNoDigitWhileTypingButTakeItPasted) {
    Run({[&] {
        auto* edit = Find<QLineEdit>(kDigits);
        edit->setCursorPosition(1);
        QTest::keyClicks(edit, QStringLiteral("1x7"));
        EXPECT_EQ(edit->text(), QStringLiteral("217"));
        EXPECT_EQ(edit->cursorPosition(), 3);
        desktop_.SetClipboardText(L"-x");
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(page_.The<CEdit>(kDigits).GetText(), L"217-x");
        EXPECT_EQ(edit->text(), QStringLiteral("217-x"));
    }});
}

TEST_F(Peers, TakeAPasteFromTheMenuOfAnEditAsAPaste) {
    Run({[&] {
        desktop_.SetClipboardText(L"a1");
        Find<QLineEdit>(kDigits)->end(false);
        Find<QLineEdit>(kDigits)->paste();
        EXPECT_EQ(page_.The<CEdit>(kDigits).GetText(), L"2a1");
    }});
}

TEST_F(Peers, StepTheNumberBesideTheArrowsByMouseAndKeyboard) {
    Run({[&] {
        auto* arrows = Find<QWidget>(kArrows);
        for (auto* arrow : arrows->findChildren<QToolButton*>()) {
            if (arrow->arrowType() == Qt::UpArrow) {
                QTest::mouseClick(arrow, Qt::LeftButton);
            }
        }
        EXPECT_EQ(Find<QLineEdit>(kDigits)->text(), QStringLiteral("3"));
        QTest::keyClick(Find<QLineEdit>(kDigits), Qt::Key_Down);
        QTest::keyClick(Find<QLineEdit>(kDigits), Qt::Key_Down);
        EXPECT_EQ(page_.heard, (Heard{"changed 212 3", "changed 212 2", "changed 212 1"}));
    }});
}

TEST_F(Peers, PickFromADropDownListByKeyboard) {
    Run({[&] {
        auto* combo = Find<QComboBox>(kAxis);
        EXPECT_EQ(combo->currentIndex(), -1);
        page_.The<CComboBox>(kAxis).SetCurSel(0);
        EXPECT_EQ(combo->currentText(), QStringLiteral("Time"));
        EXPECT_EQ(page_.heard, Heard{});
        QTest::keyClick(combo, Qt::Key_End);
        EXPECT_EQ(page_.heard, Heard{"selection 203 Temp2"});
        EXPECT_EQ(page_.The<CComboBox>(kAxis).GetCurSel(), 2);
    }});
}

TEST_F(Peers, ShowTheEntriesThatTheProgramAddsAndTakesAway) {
    Run({[&] {
        auto& axis = page_.The<CComboBox>(kAxis);
        axis.SetCurSel(1);
        axis.InsertString(0, L"Dose");
        EXPECT_EQ(Find<QComboBox>(kAxis)->count(), 4);
        EXPECT_EQ(Find<QComboBox>(kAxis)->currentText(), QStringLiteral("Temp"));
        axis.ResetContent();
        EXPECT_EQ(Find<QComboBox>(kAxis)->count(), 0);
        EXPECT_EQ(page_.heard, Heard{});
    }});
}

TEST_F(Peers, MakeADropDownListWideEnoughForEntriesThatComeLater) {
    Run({[&] {
        const auto* combo = Find<QComboBox>(kAxis);
        const int before = combo->sizeHint().width();
        page_.The<CComboBox>(kAxis).AddString(L"A temperature that is written out in full");
        EXPECT_GT(combo->sizeHint().width(), before);
    }});
}

TEST_F(Peers, TakeFreeTextInAnEditableDropDownList) {
    Run({[&] {
        auto* combo = Find<QComboBox>(kScale);
        QTest::keyClicks(combo->lineEdit(), QStringLiteral("Te"));
        EXPECT_EQ(page_.heard, (Heard{"changed 204 T", "changed 204 Te"}));
        EXPECT_EQ(combo->currentText(), QStringLiteral("Te")) << "nothing is completed";
        EXPECT_EQ(combo->count(), 3) << "what is typed becomes no entry";
        page_.The<CComboBox>(kScale).SetText(L"Temp");
        EXPECT_EQ(combo->currentText(), QStringLiteral("Temp"));
        EXPECT_EQ(combo->currentIndex(), 1);
    }});
}

TEST_F(Peers, LeaveAChoiceAloneWhenTheWheelPassesOverIt) {
    Run({[&] {
        page_.The<CComboBox>(kAxis).SetCurSel(1);
        auto* combo = Find<QComboBox>(kAxis);
        Find<QLineEdit>(kName)->setFocus();
        QWheelEvent wheel(combo->rect().center(), combo->mapToGlobal(combo->rect().center()),
                          {0, -120}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(combo, &wheel);
        EXPECT_EQ(page_.The<CComboBox>(kAxis).GetCurSel(), 1);
    }});
}

QPoint EntryPlace(const QListView& list, int row) {
    return list.visualRect(list.model()->index(row, 0)).center();
}

TEST_F(Peers, MarkEntriesOfAListByClicks) {
    Run({[&] {
        auto* list = Find<QListView>(kMany);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, EntryPlace(*list, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          EntryPlace(*list, 2));
        EXPECT_EQ(page_.The<CListBox>(kMany).GetSelItems(), (std::vector<int>{0, 2}));
        EXPECT_EQ(page_.heard.size(), 2U);
        QTest::keyClick(list, Qt::Key_Home);
        EXPECT_EQ(page_.The<CListBox>(kMany).GetSelItems(), (std::vector<int>{0}));
    }});
}

TEST_F(Peers, KeepToOneMarkInASingleList) {
    Run({[&] {
        auto* list = Find<QListView>(kOne);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, EntryPlace(*list, 1));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, EntryPlace(*list, 2));
        EXPECT_EQ(page_.The<CListBox>(kOne).GetCurSel(), 2);
        page_.The<CListBox>(kOne).SetCurSel(0);
        EXPECT_EQ(list->selectionModel()->selectedIndexes().size(), 1);
        EXPECT_TRUE(list->selectionModel()->isSelected(list->model()->index(0, 0)));
    }});
}

TEST_F(Peers, RunTheHandlerOfADoubleClick) {
    Run({[&] {
        auto* list = Find<QListView>(kMany);
        const QPoint place = EntryPlace(*list, 1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        EXPECT_EQ(page_.heard, (Heard{"selection 205 ", "double-click 205 "}));
    }});
}

TEST_F(Peers, KeepTheScrollPositionOfAListWhenEntriesMove) {
    int row = -1;
    Run({[&] {
             for (int i = 0; i < 60; ++i) {
                 page_.The<CListBox>(kMany).AddString(L"entry " + std::to_wstring(i));
             }
         },
         [&] {
             auto* list = Find<QListView>(kMany);
             list->scrollTo(list->model()->index(40, 0), QAbstractItemView::PositionAtTop);
             row = list->indexAt({5, 5}).row();
             ASSERT_GT(row, 20);
             page_.The<CListBox>(kMany).DeleteString(50);
         },
         [&] {
             EXPECT_EQ(Find<QListView>(kMany)->indexAt({5, 5}).row(), row);
         }});
}

TEST_F(Peers, FlipACheckBoxOnceForAClick) {
    Run({[&] {
        QTest::keyClick(Find<QCheckBox>(kCheck), Qt::Key_Space);
        EXPECT_TRUE(page_.The<CButton>(kCheck).GetCheck());
        EXPECT_EQ(page_.heard, Heard{"click 208 &Check me"});
        page_.The<CButton>(kCheck).SetCheck(false);
        EXPECT_FALSE(Find<QCheckBox>(kCheck)->isChecked());
        EXPECT_EQ(page_.heard.size(), 1U);
    }});
}

TEST_F(Peers, TakeTheMarkOffTheOthersOfARadioGroup) {
    Run({[&] {
        const auto click = [](int number) {
            auto* radio = Find<QRadioButton>(number);
            QTest::mouseClick(radio, Qt::LeftButton, {}, {8, radio->height() / 2});
        };
        EXPECT_FALSE(Find<QRadioButton>(kFirst)->isChecked()) << "a group may be without a mark";
        click(kSecond);
        click(kThird);
        EXPECT_FALSE(page_.The<CButton>(kSecond).GetCheck());
        EXPECT_FALSE(Find<QRadioButton>(kSecond)->isChecked());
        EXPECT_TRUE(Find<QRadioButton>(kThird)->isChecked());
        click(kThird);
        EXPECT_EQ(page_.heard.size(), 3U) << "a click on the checked one is one, too";
        page_.The<CButton>(kThird).SetCheck(false);
        EXPECT_FALSE(Find<QRadioButton>(kThird)->isChecked());
    }});
}

TEST_F(Peers, WalkThroughARadioGroupWithTheArrowKeys) {
    Run({[&] {
        auto* first = Find<QRadioButton>(kFirst);
        QTest::keyClick(first, Qt::Key_Space);
        first->setFocus();
        QTest::keyClick(first, Qt::Key_Down);
        EXPECT_TRUE(page_.The<CButton>(kSecond).GetCheck());
        EXPECT_FALSE(page_.The<CButton>(kFirst).GetCheck());
    }});
}

TEST_F(Peers, LeaveAWidgetAsTheModelHasItWhenAGestureIsRefused) {
    page_.onPush = [&] { page_.EnableWindow(false); };
    Run({[&] {
        QTest::mouseClick(Find<QWidget>(kPush), Qt::LeftButton);
        Find<QCheckBox>(kCheck)->click();
        EXPECT_FALSE(page_.The<CButton>(kCheck).GetCheck());
        EXPECT_FALSE(Find<QCheckBox>(kCheck)->isChecked());
        page_.EnableWindow(true);
    }});
}

TEST_F(Peers, TellTheModelWhereTheUserMovesTheFocus) {
    Run({[&] {
        auto* name = Find<QLineEdit>(kName);
        EXPECT_EQ(Front()->focusWidget(), name) << "the first control has it at first";
        QTest::keyClick(name, Qt::Key_Tab);
        EXPECT_EQ(page_.GetFocusControl(), page_.GetDlgItem(kAxis));
        QTest::mouseClick(name, Qt::LeftButton);
        EXPECT_EQ(page_.GetFocusControl(), page_.GetDlgItem(kName));
    }});
}

TEST_F(Peers, MoveTheKeyboardWhereTheProgramMovesTheFocus) {
    Run({[&] {
        page_.The<CEdit>(kName).ExchangeText(L"wrong");
        page_.GotoDlgCtrl(page_.GetDlgItem(kName));
        EXPECT_EQ(Front()->focusWidget(), Find<QWidget>(kName));
        EXPECT_EQ(Find<QLineEdit>(kName)->selectedText(), QStringLiteral("wrong"))
            << "what was refused is replaced by typing";
        page_.GetDlgItem(kMany)->SetFocus();
        EXPECT_EQ(Front()->focusWidget(), Find<QWidget>(kMany));
    }});
}

/// Two edits whose handlers write each other.
class EchoPage : public EveryKindPage {
public:
    int handled = 0;

protected:
    void GetMessageMap(MessageMap& map) override {
        EveryKindPage::GetMessageMap(map);
        map.OnChanged(kName, [this] {
            ++handled;
            The<CEdit>(kDigits).ExchangeText(The<CEdit>(kName).GetText());
        });
        map.OnChanged(kDigits, [this] {
            ++handled;
            The<CEdit>(kName).ExchangeText(The<CEdit>(kDigits).GetText());
        });
    }
};

TEST_F(QtTest, NoUpdateGoesInACircle) {
    EchoPage page;
    CPropertySheet sheet(L"Echo", nullptr);
    sheet.AddPage(&page);
    Play([&] { sheet.DoModal(); }, {[&] {
             page.handled = 0;
             auto* edit = Find<QLineEdit>(kName);
             edit->selectAll();
             QTest::keyClicks(edit, QStringLiteral("4"));
             EXPECT_EQ(page.handled, 2);
             EXPECT_EQ(Find<QLineEdit>(kDigits)->text(), QStringLiteral("4"));
         }});
}

}  // namespace

}  // namespace kvopt::test
