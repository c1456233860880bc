#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <stdexcept>

#include "kvopt/text.h"
#include "tests/qt/grid_page.h"
#include "tests/qt/picture_contrast.h"
#include "tests/qt/qt_fixture.h"

namespace kvopt::test {

namespace {

using Texts = std::vector<std::string>;

class PropertyGrids : public QtTest {
protected:
    PropertyGrids() : sheet_(L"Grids", nullptr) { sheet_.AddPage(&page_); }

    void Run(std::vector<Step> steps) {
        steps.insert(steps.begin(), [this] {
            tree_ = Front()->findChild<QTreeView*>();
            ASSERT_NE(tree_, nullptr);
        });
        Play([this] { result_ = sheet_.DoModal(); }, std::move(steps));
    }
    CXTPPropertyGrid& Grid() const { return page_.Grid(); }

    /// The row of a caption in a column of the tree.
    QModelIndex Index(const char* caption, int column = 0) const {
        const QAbstractItemModel& model = *tree_->model();
        const QModelIndexList found =
            model.match(model.index(0, 0), Qt::DisplayRole, QString::fromUtf8(caption), 1,
                        Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.front().siblingAtColumn(column);
    }
    QString Value(const char* caption) const { return Index(caption, 1).data().toString(); }
    void Click(const char* caption, int column = 0) const {
        QTest::mouseClick(tree_->viewport(), Qt::LeftButton, {},
                          tree_->visualRect(Index(caption, column)).center());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(tree_, key, modifiers);
    }
    /// What stands open in the value column.
    template <class Widget>
    Widget* Open() const {
        for (auto* widget : tree_->viewport()->findChildren<Widget*>()) {
            if (widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }
    QLineEdit* Editor() const { return Open<QLineEdit>(); }
    QComboBox* List() const { return Open<QComboBox>(); }
    /// The texts of the pane.
    static Texts Described() {
        Texts texts;
        for (const auto* label : Find<QWidget>(kOptions)->findChildren<QLabel*>()) {
            if (label->isVisible()) {
                texts.push_back(label->text().toStdString());
            }
        }
        return texts;
    }

    GridPage page_;
    CPropertySheet sheet_;
    QTreeView* tree_ = nullptr;
    int result_ = 0;
};

TEST_F(PropertyGrids, ShowCaptionsValuesAndChildrenButNoHiddenRows) {
    Run({[&] {
        EXPECT_EQ(Value("Red"), QStringLiteral("No"));
        EXPECT_EQ(Value("Blue"), QStringLiteral("Some"));
        EXPECT_EQ(Value("Weight"), QStringLiteral("1.5"));
        EXPECT_EQ(Index("Shade").parent(), Index("Blue"));
        EXPECT_FALSE(Index("Secret").isValid());
        page_.Row(L"Secret").SetHidden(false);
        EXPECT_TRUE(Index("Secret").isValid());
        page_.Row(L"Red").SetHidden(true);
        EXPECT_FALSE(Index("Red").isValid());
        static_cast<CXTPPropertyGridItemNumber&>(page_.Row(L"Count")).SetNumber(8);
        EXPECT_EQ(Value("Count"), QStringLiteral("8"));
        EXPECT_EQ(page_.heard, Texts{});
    }});
}

TEST_F(PropertyGrids, ShowHeadingsBoldOverTheWholeWidth) {
    Run({[&] {
        EXPECT_TRUE(tree_->isFirstColumnSpanned(0, {}));
        EXPECT_TRUE(Index("Numbers").data(Qt::FontRole).value<QFont>().bold());
        EXPECT_FALSE(tree_->isFirstColumnSpanned(0, Index("Colours")));
        EXPECT_FALSE(Index("Red").data(Qt::FontRole).value<QFont>().bold());
        page_.Fill();
        EXPECT_TRUE(tree_->isFirstColumnSpanned(1, {})) << "filled anew";
    }});
}

TEST_F(PropertyGrids, MarkAValueThatIsNotItsDefault) {
    Run({[&] {
        EXPECT_FALSE(Index("Weight", 1).data(Qt::FontRole).value<QFont>().bold());
        page_.Row(L"Weight").SetValue(L"2");
        EXPECT_TRUE(Index("Weight", 1).data(Qt::FontRole).value<QFont>().bold());
        EXPECT_FALSE(Index("Weight", 0).data(Qt::FontRole).value<QFont>().bold());
    }});
}

TEST_F(PropertyGrids, KeepTheDividerWhereTheModelHasIt) {
    Run({[&] {
             EXPECT_NEAR(tree_->columnWidth(0), 0.4 * tree_->viewport()->width(), 1.0);
             Front()->resize(Front()->width() + 211, Front()->height() + 50);
         },
         [&] {
             EXPECT_NEAR(tree_->columnWidth(0), 0.4 * tree_->viewport()->width(), 1.0);
             Grid().SetViewDivider(0.7);
             EXPECT_NEAR(tree_->columnWidth(0), 0.7 * tree_->viewport()->width(), 1.0);
         }});
}

TEST_F(PropertyGrids, DescribeTheSelectedRowInThePane) {
    Run({[&] {
        EXPECT_EQ(Described(), (Texts{"", ""}));
        Click("Red");
        EXPECT_EQ(Described(), (Texts{"Red", "Is it <b>red</b>?"}));
        EXPECT_EQ(Grid().GetSelectedItem(), &page_.Row(L"Red"));
        Grid().SetSelectedItem(&page_.Row(L"Blue"));
        EXPECT_EQ(Described(), (Texts{"Blue", "How much?"}));
        EXPECT_TRUE(tree_->selectionModel()->isSelected(Index("Blue")));
        Grid().ShowHelp(false);
        EXPECT_EQ(Described(), Texts{});
        Grid().ShowHelp(true);
        EXPECT_EQ(Described().size(), 2U);
    }});
}

TEST_F(PropertyGrids, ALongDescriptionLeavesTheRowsWhereTheyAre) {
    int before = 0;
    Run({[&] {
             Click("Count");
             // Room that the pane could take.
             Front()->resize(Front()->width(), Front()->height() + 300);
             std::wstring description;
             for (int i = 0; i < 300; ++i) {
                 description += L"word ";
             }
             page_.Row(L"Red").SetDescription(description);
         },
         [&] {
             before = tree_->height();
             Click("Red");
         },
         [&] { EXPECT_EQ(tree_->height(), before); }});
}

TEST_F(PropertyGrids, PickABoolOfItsTwoTextsByMouse) {
    Run({[&] {
             EXPECT_EQ(List(), nullptr);
             Click("Red", 1);
             ASSERT_NE(List(), nullptr);
             EXPECT_EQ(List()->accessibleName(), QStringLiteral("Red"));
             ASSERT_EQ(List()->count(), 2);
             EXPECT_EQ(List()->itemText(0), QStringLiteral("Yes"));
             EXPECT_EQ(List()->currentText(), QStringLiteral("No"));
             ASSERT_TRUE(List()->view()->isVisible()) << "one click drops it down";
             QTest::keyClick(List()->view(), Qt::Key_Home);
             QTest::keyClick(List()->view(), Qt::Key_Return);
         },
         [&] {
             EXPECT_EQ(page_.heard, Texts{"Red=Yes"});
             EXPECT_EQ(Front()->focusWidget(), tree_);
             EXPECT_EQ(List()->geometry(),
                       tree_->visualRect(Index("Red", 1)).adjusted(0, 0, 0, -1));
             Click("Count");
             EXPECT_EQ(List(), nullptr) << "only the selected row has a list";
         }});
}

TEST_F(PropertyGrids, PickAChoiceByKeyboardAndOfferNoneThatIsOff) {
    Run({[&] {
        Click("Blue");
        Key(Qt::Key_F2);
        ASSERT_TRUE(List()->view()->isVisible());
        const auto* entries = qobject_cast<QStandardItemModel*>(List()->model());
        EXPECT_TRUE(entries->item(0)->isEnabled());
        EXPECT_FALSE(entries->item(2)->isEnabled());
        QTest::keyClick(List()->view(), Qt::Key_Up);
        QTest::keyClick(List()->view(), Qt::Key_Return);
        EXPECT_EQ(page_.heard, Texts{"Blue=None"});
        EXPECT_EQ(Value("Blue"), QStringLiteral("None"));
        EXPECT_FALSE(sheet_.HasEnded());
    }});
}

TEST_F(PropertyGrids, LeaveAChoiceAloneWhenTheWheelPassesOverIt) {
    Run({[&] {
        Click("Blue");
        const QPoint middle = List()->rect().center();
        QWheelEvent wheel(middle, List()->mapToGlobal(middle), {0, 120}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(List(), &wheel);
        EXPECT_EQ(page_.heard, Texts{});
        EXPECT_EQ(List()->currentText(), QStringLiteral("Some"));
    }});
}

TEST_F(PropertyGrids, CommitATextOnReturnAndPressNoButton) {
    Run({[&] {
        Click("Count");
        EXPECT_EQ(Editor(), nullptr) << "a click on a caption selects alone";
        Key(Qt::Key_Return);
        ASSERT_NE(Editor(), nullptr);
        EXPECT_EQ(Editor()->text(), QStringLiteral("3"));
        EXPECT_EQ(Editor()->accessibleName(), QStringLiteral("Count"));
        EXPECT_EQ(Editor()->selectedText(), QStringLiteral("3"));
        QTest::keyClicks(Editor(), QStringLiteral("12"));
        EXPECT_EQ(Grid().EditorText(), L"12");
        EXPECT_EQ(page_.count, 3) << "not before it is committed";
        QTest::keyClick(Editor(), Qt::Key_Return);
        EXPECT_EQ(Editor(), nullptr);
        EXPECT_EQ(page_.count, 12);
        EXPECT_EQ(page_.heard, Texts{"Count=12"});
        EXPECT_EQ(Front()->focusWidget(), tree_);
        EXPECT_FALSE(sheet_.HasEnded());
        Key(Qt::Key_Return);
        EXPECT_NE(Editor(), nullptr);
        EXPECT_FALSE(sheet_.HasEnded());
    }});
}

TEST_F(PropertyGrids, EscapeLeavesTheEditorAlone) {
    Run({[&] {
        Click("Count", 1);
        ASSERT_NE(Editor(), nullptr) << "a click on a value opens it";
        QTest::keyClicks(Editor(), QStringLiteral("12"));
        QTest::keyClick(Editor(), Qt::Key_Escape);
        EXPECT_EQ(Editor(), nullptr);
        EXPECT_EQ(page_.count, 3);
        EXPECT_FALSE(sheet_.HasEnded());
        Key(Qt::Key_Escape);
        EXPECT_TRUE(sheet_.HasEnded()) << "without an editor it cancels as elsewhere";
    }});
}

TEST_F(PropertyGrids, OpenTheEditorByTyping) {
    Run({[&] {
        Click("Name");
        QTest::keyClicks(tree_, QStringLiteral("K"));
        ASSERT_NE(Editor(), nullptr);
        EXPECT_EQ(Editor()->text(), QStringLiteral("K"));
        QTest::keyClicks(Editor(), QStringLiteral("im"));
        QTest::keyClick(Editor(), Qt::Key_Return);
        EXPECT_EQ(page_.heard, Texts{"Name=Kim"});
    }});
}

TEST_F(PropertyGrids, CommitWhenTheFocusLeaves) {
    Run({[&] {
        Click("Count", 1);
        QTest::keyClicks(Editor(), QStringLiteral("4"));
        QTest::mouseClick(Find<QPushButton>(kBeside), Qt::LeftButton);
        EXPECT_EQ(page_.count, 4);
        EXPECT_EQ(Editor(), nullptr);
        Click("Count", 1);
        QTest::keyClicks(Editor(), QStringLiteral("5"));
        Click("Red");
        EXPECT_EQ(page_.count, 5) << "a click on another row";
        Click("Count", 1);
        QTest::keyClicks(Editor(), QStringLiteral("6"));
        ClickFrame("OK");
        EXPECT_EQ(page_.count, 6) << "a click on a button of the frame";
    }});
}

TEST_F(PropertyGrids, LeaveTheGridByTabFromARowOrItsEditor) {
    Run({[&] {
             Click("Count", 1);
             QTest::keyClicks(Editor(), QStringLiteral("4"));
             QTest::keyClick(Editor(), Qt::Key_Tab);
         },
         [&] {
             EXPECT_EQ(page_.count, 4);
             EXPECT_EQ(Front()->focusWidget(), Find<QPushButton>(kBeside));
             QTest::keyClick(Front()->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
             EXPECT_EQ(Front()->focusWidget(), tree_);
             EXPECT_EQ(page_.GetFocusControl(), &Grid());
             Key(Qt::Key_Tab);
             EXPECT_EQ(Front()->focusWidget(), Find<QPushButton>(kBeside));
         }});
}

TEST_F(PropertyGrids, OpenNothingInARowThatIsReadOnly) {
    Run({[&] {
        Click("Fixed", 1);
        EXPECT_EQ(Editor(), nullptr);
        Key(Qt::Key_F2);
        Key(Qt::Key_Return);
        QTest::keyClicks(tree_, QStringLiteral("4"));
        EXPECT_EQ(Editor(), nullptr);
        EXPECT_EQ(Value("Fixed"), QStringLiteral("11"));
        Click("Red");
        ASSERT_NE(List(), nullptr);
        page_.Row(L"Red").SetReadOnly(true);
        EXPECT_EQ(List(), nullptr);
        EXPECT_FALSE(sheet_.HasEnded());
    }});
}

TEST_F(PropertyGrids, DrawARowThatIsReadOnlyGreyButReadable) {
    Run({[&] {
        const auto strength = [this](const char* caption) {
            return StrongestContrast(PictureOf(
                *tree_->viewport(), tree_->visualRect(Index(caption)).adjusted(2, 2, -4, -4)));
        };
        EXPECT_GT(strength("Count"), 9.0);
        EXPECT_LT(strength("Fixed"), 9.0);
        EXPECT_GE(strength("Fixed"), 4.5);
    }});
}

TEST_F(PropertyGrids, OpenAndCloseWhatIsBelowARowByKeyboardAndProgram) {
    Run({[&] {
        EXPECT_TRUE(tree_->isExpanded(Index("Colours")));
        EXPECT_FALSE(tree_->isExpanded(Index("Blue")));
        Click("Blue");
        Key(Qt::Key_Right);
        EXPECT_TRUE(page_.Row(L"Blue").IsExpanded());
        Key(Qt::Key_Left);
        EXPECT_FALSE(page_.Row(L"Blue").IsExpanded());
        page_.Row(L"Blue").Expand();
        EXPECT_TRUE(tree_->isExpanded(Index("Blue")));
        Click("Numbers");
        Key(Qt::Key_Return);
        EXPECT_FALSE(page_.Row(L"Numbers").IsExpanded());
        EXPECT_FALSE(tree_->isExpanded(Index("Numbers")));
        Key(Qt::Key_Return);
        EXPECT_TRUE(tree_->isExpanded(Index("Numbers")));
        page_.Fill();
        EXPECT_TRUE(tree_->isExpanded(Index("Colours")));
        EXPECT_FALSE(tree_->isExpanded(Index("Blue")));
    }});
}

TEST_F(PropertyGrids, KeepARowClosedThatTheModelKeepsClosed) {
    Run({[&] {
        page_.EnableWindow(false);
        tree_->expand(Index("Blue"));
        EXPECT_FALSE(page_.Row(L"Blue").IsExpanded());
        EXPECT_FALSE(tree_->isExpanded(Index("Blue")));
        page_.EnableWindow(true);
    }});
}

TEST_F(PropertyGrids, WalkFromRowToRowByKeyboard) {
    Run({[&] {
        Click("Red");
        Key(Qt::Key_Down);
        EXPECT_EQ(Grid().GetSelectedItem(), &page_.Row(L"Blue"));
        Key(Qt::Key_Down);
        EXPECT_EQ(Grid().GetSelectedItem(), &page_.Row(L"Fixed")) << "past the closed child";
        Key(Qt::Key_Home);
        EXPECT_EQ(Grid().GetSelectedItem(), &page_.Row(L"Colours"));
    }});
}

TEST_F(PropertyGrids, ShowTheTopRowOfTheModelAndTellItWhereTheUserScrolls) {
    Run({[&] {
             for (int i = 0; i < 60; ++i) {
                 page_.Row(L"Numbers")
                     .AddChildItem(
                         std::make_unique<CXTPPropertyGridItem>(L"row " + std::to_wstring(i)));
             }
             Grid().SetTopIndex(12);
             EXPECT_EQ(tree_->indexAt({5, 5}).data(), Index("row 4").data());
         },
         [&] {
             EXPECT_EQ(tree_->indexAt({5, 5}).data(), Index("row 4").data());
             tree_->scrollTo(Index("row 30"), QAbstractItemView::PositionAtTop);
             EXPECT_EQ(Grid().ShownRows().at(static_cast<std::size_t>(Grid().GetTopIndex())),
                       &page_.Row(L"row 30"));
             Grid().SetSelectedItem(&page_.Row(L"Red"));
             EXPECT_EQ(tree_->indexAt({5, 5}).data(), Index("row 30").data())
                 << "the rows stay when the program selects";
         }});
}

TEST_F(PropertyGrids, TakeThePageFillingTheRowsAnewWhenItHearsOfAChange) {
    page_.also = [&](CXTPPropertyGridItem& /*item*/) { page_.Fill(); };
    Run({[&] {
             Click("Count", 1);
             QTest::keyClicks(Editor(), QStringLiteral("4"));
             QTest::keyClick(Editor(), Qt::Key_Return);
             EXPECT_EQ(Value("Count"), QStringLiteral("4"));
             Click("Red", 1);
             QTest::keyClick(List()->view(), Qt::Key_Home);
             QTest::keyClick(List()->view(), Qt::Key_Return);
         },
         [&] {
             EXPECT_EQ(page_.heard, (Texts{"Count=4", "Red=Yes"}));
             EXPECT_EQ(List(), nullptr);
             EXPECT_EQ(Value("Red"), QStringLiteral("No"));
         }});
}

TEST_F(PropertyGrids, WhatTheHandlerThrowsLeavesTheFunctionThatOpenedTheSheet) {
    page_.also = [](CXTPPropertyGridItem& /*item*/) { throw std::runtime_error("torn"); };
    EXPECT_THROW(Run({[&] {
                     Click("Count", 1);
                     QTest::keyClicks(Editor(), QStringLiteral("4"));
                     QTest::keyClick(Editor(), Qt::Key_Return);
                 }}),
                 std::runtime_error);
}

TEST_F(PropertyGrids, TellAScreenReaderWhatARowIs) {
    Run({[&] {
        EXPECT_EQ(tree_->accessibleName(), QStringLiteral("Options"));
        EXPECT_EQ(Find<QWidget>(kOptions)->accessibleName(), QStringLiteral("Options"));
        EXPECT_EQ(Index("Red", 1).data(Qt::AccessibleTextRole), QStringLiteral("No"));
        EXPECT_EQ(Index("Blue").data(Qt::AccessibleDescriptionRole), QStringLiteral("How much?"));
    }});
}

TEST_F(PropertyGrids, TheHeaderShowsItsTitleAsItStands) {
    Run({[&] {
        auto* header = Find<QLabel>(kHeader);
        EXPECT_EQ(header->textFormat(), Qt::RichText);
        EXPECT_TRUE(header->text().contains(QStringLiteral("Options for a &lt; b")));
        EXPECT_EQ(header->accessibleName(), QStringLiteral("Options for a < b"));
        EXPECT_GE(header->height(), header->heightForWidth(header->width()));
    }});
}

}  // namespace

}  // namespace kvopt::test
