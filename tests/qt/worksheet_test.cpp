#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <memory>

#include "kvopt/text.h"
#include "tests/qt/every_kind_page.h"
#include "tests/qt/qt_fixture.h"

namespace kvopt::test {

namespace {

using Calls = std::vector<std::string>;

class Worksheets : public QtTest {
protected:
    Worksheets() : sheet_(L"Worksheets", nullptr) { sheet_.AddPage(&page_); }

    void Run(std::vector<Step> steps) {
        steps.insert(steps.begin(), [this] { table_ = Find<QTableView>(kCells); });
        Play([this] { sheet_.DoModal(); }, std::move(steps));
    }
    VirtualWorksheet& Sheet() const { return page_.The<VirtualWorksheet>(kCells); }
    QModelIndex Index(int column, int row) const {
        return table_->model()->index(row - 1, column - 1);
    }
    QPoint Corner(int column, int row) const {
        return {table_->columnViewportPosition(column - 1), table_->rowViewportPosition(row - 1)};
    }
    void Click(int column, int row) const {
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, {},
                          Corner(column, row) + QPoint(9, 9));
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(table_, key, modifiers);
    }
    QLineEdit* Editor() const {
        for (auto* edit : table_->viewport()->findChildren<QLineEdit*>()) {
            if (edit->isVisible()) {
                return edit;
            }
        }
        return nullptr;
    }
    void Mouse(QEvent::Type type, QPoint place, Qt::MouseButton button,
               Qt::MouseButtons held) const {
        QMouseEvent event(type, place, table_->viewport()->mapToGlobal(place), button, held,
                          Qt::NoModifier);
        QApplication::sendEvent(table_->viewport(), &event);
    }
    std::string Value(int row) const { return page_.grid.GetCellText(2, row); }

    EveryKindPage page_;
    CPropertySheet sheet_;
    QTableView* table_ = nullptr;
};

TEST_F(Worksheets, ShowHeadingsTextsAndWidthsOfTheContent) {
    Run({[&] {
        const QAbstractItemModel& model = *table_->model();
        EXPECT_EQ(model.rowCount(), 4);
        EXPECT_EQ(model.headerData(2, Qt::Horizontal), QStringLiteral("Setting"));
        EXPECT_EQ(Index(1, 4).data().toString(), QStringLiteral("Depth"));
        EXPECT_EQ(table_->columnWidth(2), 102) << "a slider is just as wide as the content says";
        EXPECT_GE(table_->columnWidth(0), 102);
        EXPECT_FALSE(table_->verticalHeader()->isVisible());
        page_.grid.SetCellValue(2, 4, "5");
        EXPECT_EQ(Index(2, 4).data().toString(), QStringLiteral("5"));
        page_.grid.AddRow(5, 2);
        EXPECT_EQ(model.rowCount(), 6);
    }});
}

TEST_F(Worksheets, HideEmptyRowsBelowTheLastOneThatHoldsSomething) {
    Run({[&] {
        page_.grid.AddRow(5, 3);
        EXPECT_EQ(page_.grid.RowCount(), 7) << "the content keeps them";
        for (int row = 5; row <= 7; ++row) {
            EXPECT_TRUE(table_->isRowHidden(row - 1)) << row;
        }
        page_.grid.SetCellValue(2, 6, "0");
        EXPECT_FALSE(table_->isRowHidden(4)) << "an empty row between others is seen";
        EXPECT_FALSE(table_->isRowHidden(5));
        EXPECT_TRUE(table_->isRowHidden(6));
        page_.grid.SetCellValue(2, 6, "");
        EXPECT_TRUE(table_->isRowHidden(4));
        for (int row = 1; row <= 4; ++row) {
            EXPECT_FALSE(table_->isRowHidden(row - 1)) << row;
        }
    }});
}

TEST_F(Worksheets, CommitACellOnReturnAndPressNoButton) {
    Run({[&] {
        Click(2, 1);
        Key(Qt::Key_F2);
        ASSERT_NE(Editor(), nullptr);
        EXPECT_EQ(Editor()->text(), QStringLiteral("2.5"));
        EXPECT_EQ(Editor()->accessibleName(), QStringLiteral("Width Value"));
        QTest::keyClicks(Editor(), QStringLiteral("3.5"));
        EXPECT_EQ(Value(1), "2.5") << "not before it is committed";
        QTest::keyClick(Editor(), Qt::Key_Return);
        EXPECT_EQ(Value(1), "3.5");
        EXPECT_EQ(page_.heard, Calls{"changed 214 "});
        EXPECT_EQ(Editor(), nullptr);
        Key(Qt::Key_Return);
        EXPECT_FALSE(sheet_.HasEnded()) << "nor does Return on a cell without an editor";
        EXPECT_EQ(Front()->focusWidget(), table_);
    }});
}

TEST_F(Worksheets, AbandonAnEditOnEscape) {
    Run({[&] {
        Click(2, 4);
        QTest::keyClicks(table_, QStringLiteral("9"));
        ASSERT_NE(Editor(), nullptr) << "typing opens the editor";
        EXPECT_EQ(Editor()->text(), QStringLiteral("9")) << "and replaces what was there";
        EXPECT_EQ(Sheet().EditorText(), "9");
        QTest::keyClick(Editor(), Qt::Key_Escape);
        EXPECT_EQ(Editor(), nullptr);
        EXPECT_EQ(Value(4), "4");
        EXPECT_FALSE(sheet_.HasEnded());
    }});
}

TEST_F(Worksheets, CommitWhenTheFocusLeaves) {
    Run({[&] {
        Click(2, 1);
        Key(Qt::Key_F2);
        QTest::keyClicks(Editor(), QStringLiteral("8"));
        QTest::mouseClick(Find<QLineEdit>(kName), Qt::LeftButton);
        EXPECT_EQ(Value(1), "8");
        EXPECT_EQ(Editor(), nullptr);

        Click(2, 4);
        Key(Qt::Key_F2);
        QTest::keyClicks(Editor(), QStringLiteral("6"));
        Click(1, 1);
        EXPECT_EQ(Value(4), "6") << "a click on another cell";

        Click(2, 4);
        Key(Qt::Key_F2);
        QTest::keyClicks(Editor(), QStringLiteral("7"));
        ClickFrame("OK");
        EXPECT_EQ(Value(4), "7") << "a click on a button of the frame";
    }});
}

TEST_F(Worksheets, KeepAnEditOpenWhileAnotherWindowIsInFront) {
    Run({[&] {
        Click(2, 1);
        Key(Qt::Key_F2);
        QTest::keyClicks(Editor(), QStringLiteral("8"));
        QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(Editor(), &away);
        EXPECT_NE(Editor(), nullptr);
        EXPECT_EQ(Value(1), "2.5");
    }});
}

TEST_F(Worksheets, LeaveTheTableByTabFromACellOrItsEditor) {
    Run({[&] {
             Click(2, 1);
             Key(Qt::Key_F2);
             QTest::keyClicks(Editor(), QStringLiteral("8"));
             QTest::keyClick(Editor(), Qt::Key_Tab);
         },
         [&] {
             EXPECT_EQ(Value(1), "8");
             EXPECT_NE(Front()->focusWidget(), table_);
             EXPECT_FALSE(table_->isAncestorOf(Front()->focusWidget()));
         }});
}

TEST_F(Worksheets, OpenNoEditorInLockedAndPlainCells) {
    Run({[&] {
        for (const int column : {1, 2}) {
            Click(column, 3);
            Key(Qt::Key_F2);
            QTest::keyClicks(table_, QStringLiteral("1"));
            EXPECT_EQ(Editor(), nullptr) << column;
        }
        EXPECT_EQ(Value(3), "7");
    }});
}

TEST_F(Worksheets, EditTheValueOfASliderByKeyboard) {
    Run({[&] {
        Click(3, 1);
        Key(Qt::Key_F2);
        ASSERT_NE(Editor(), nullptr);
        EXPECT_EQ(Sheet().EditedCell(), (CPoint{2, 1}));
        QTest::keyClick(Editor(), Qt::Key_Escape);
        EXPECT_EQ(Index(3, 1).data(Qt::AccessibleTextRole).toString(),
                  QStringLiteral("Slider at 2.5, from 0 to 10. Type the value in the cell to the "
                                 "left."));
    }});
}

TEST_F(Worksheets, PickFromTheListOfACell) {
    Run({[&] {
        auto* combo = qobject_cast<QComboBox*>(table_->indexWidget(Index(2, 2)));
        ASSERT_NE(combo, nullptr);
        EXPECT_EQ(combo->currentText(), QStringLiteral("A"));
        EXPECT_EQ(combo->accessibleName(), QStringLiteral("Grade Value"));
        Click(1, 2);
        Key(Qt::Key_Right);
        Key(Qt::Key_F2);
        ASSERT_TRUE(combo->view()->isVisible()) << "the keyboard's way to the list";
        QTest::keyClick(combo->view(), Qt::Key_Down);
        QTest::keyClick(combo->view(), Qt::Key_Return);
        EXPECT_EQ(Value(2), "B");
        EXPECT_EQ(page_.grid.calls.back(), "changed 2,2 B");
    }});
}

TEST_F(Worksheets, WalkFromCellToCellByKeyboard) {
    Run({[&] {
        Click(1, 1);
        Key(Qt::Key_Down);
        Key(Qt::Key_Right);
        EXPECT_EQ(Sheet().Selection(), (CellRange{2, 2, 2, 2}));
        Key(Qt::Key_Down, Qt::ShiftModifier);
        Key(Qt::Key_Down, Qt::ShiftModifier);
        EXPECT_EQ(Sheet().Selection(), (CellRange{2, 2, 2, 4}));
        Sheet().SetSelection({1, 1, 2, 1});
        EXPECT_EQ(table_->selectionModel()->selectedIndexes().size(), 2);
    }});
}

TEST_F(Worksheets, MarkCellsWithTheMouse) {
    Run({[&] {
        const QPoint from = Corner(1, 1) + QPoint(5, 5);
        const QPoint to = Corner(2, 3) + QPoint(5, 5);
        Mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        Mouse(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        Mouse(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        EXPECT_EQ(Sheet().Selection(), (CellRange{1, 1, 2, 3}));
        Click(1, 1);
        QTest::mouseClick(table_->viewport(), Qt::LeftButton, Qt::ShiftModifier,
                          Corner(2, 2) + QPoint(3, 3));
        EXPECT_EQ(Sheet().Selection(), (CellRange{1, 1, 2, 2}));
    }});
}

TEST_F(Worksheets, CopyPasteAndSelectAllByTheirKeys) {
    Run({[&] {
        Click(1, 1);
        Key(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(Sheet().Selection(), (CellRange{1, 1, 3, 4}));
        Click(2, 1);
        Key(Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(desktop_.ClipboardText(), L"2.5");
        Click(2, 4);
        Key(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(Value(4), "2.5");
    }});
}

TEST_F(Worksheets, TellTheMouseInPixelsOfTheCell) {
    Run({[&] {
        page_.grid.calls.clear();
        const QPoint start = Corner(3, 1) + QPoint(30, 11);
        Mouse(QEvent::MouseMove, start, Qt::NoButton, Qt::NoButton);
        EXPECT_EQ(table_->viewport()->cursor().shape(), Qt::SizeHorCursor);
        Mouse(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
        Mouse(QEvent::MouseMove, start + QPoint(40, 0), Qt::NoButton, Qt::LeftButton);
        Mouse(QEvent::MouseButtonRelease, start + QPoint(40, 0), Qt::LeftButton, Qt::NoButton);
        const std::string rect = " in 0,0 102x" + std::to_string(table_->rowHeight(0));
        EXPECT_EQ(page_.grid.calls, (Calls{"move 3,1 at 30,11" + rect, "press 3,1 at 30,11",
                                           "move 3,1 at 70,11" + rect, "release 3,1 at 70,11"}));
        EXPECT_EQ(Sheet().Selection(), (CellRange{3, 1, 3, 1})) << "a drag marks no other cells";
        Mouse(QEvent::MouseMove, Corner(1, 3) + QPoint(5, 5), Qt::NoButton, Qt::NoButton);
        EXPECT_NE(table_->viewport()->cursor().shape(), Qt::SizeHorCursor);
    }});
}

TEST_F(Worksheets, LetATimerRunBesideADrag) {
    int calls = 0;
    Run({[&] {
        page_.grid.onMove = [&] {
            desktop_.StartTimer(&page_.grid, 10, [&] {
                desktop_.StopTimer(&page_.grid);
                ++calls;
            });
        };
        const QPoint start = Corner(3, 1) + QPoint(30, 11);
        Mouse(QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
        Mouse(QEvent::MouseMove, start + QPoint(10, 0), Qt::NoButton, Qt::LeftButton);
        Mouse(QEvent::MouseMove, start + QPoint(20, 0), Qt::NoButton, Qt::LeftButton);
        EXPECT_EQ(calls, 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return calls == 1; }));
        QTest::qWait(40);
        EXPECT_EQ(calls, 1) << "each move starts it anew, and it fires once";
        page_.grid.onMove = nullptr;
        Mouse(QEvent::MouseButtonRelease, start + QPoint(20, 0), Qt::LeftButton, Qt::NoButton);
    }});
}

TEST_F(Worksheets, TellTheContentThatThePointerIsGone) {
    Run({[&] {
        page_.grid.calls.clear();
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(table_->viewport(), &leave);
        ASSERT_EQ(page_.grid.calls.size(), 1U);
        EXPECT_EQ(page_.grid.calls.front().substr(0, 8), "move 0,0");
    }});
}

TEST_F(Worksheets, OpenTheMenuOfACellAndRunWhatIsChosen) {
    Run({[&] {
        const QPoint place = Corner(2, 4) + QPoint(5, 5);
        QTimer::singleShot(0, table_, [] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            ASSERT_EQ(menu->actions().size(), 3);
            EXPECT_TRUE(menu->actions().at(1)->isSeparator());
            menu->setActiveAction(menu->actions().at(2));
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                table_->viewport()->mapToGlobal(place));
        QApplication::sendEvent(table_->viewport(), &event);
        EXPECT_EQ(Sheet().Selection(), (CellRange{2, 4, 2, 4}));
        EXPECT_EQ(desktop_.ClipboardText(), L"4");
    }});
}

TEST_F(Worksheets, KeepTheEditorOnItsCellWhenTheColumnsMove) {
    int before = 0;
    Run({[&] {
             Click(2, 1);
             Key(Qt::Key_F2);
             before = Editor()->x();
             Front()->resize(Front()->width() + 120, Front()->height());
         },
         [&] {
             EXPECT_EQ(Editor()->x(), before + 120);
             EXPECT_EQ(Editor()->geometry(), table_->visualRect(Index(2, 1)));
         }});
}

TEST_F(Worksheets, LetGoOfAContentThatDies) {
    auto content = std::make_unique<MouseGrid>();
    Run({[&] {
        VirtualWorksheet::CreateFromStatic(page_, kCells, *content);
        content.reset();
        Click(1, 1);
        Key(Qt::Key_F2);
        table_->viewport()->repaint();
        EXPECT_EQ(Sheet().Content(), nullptr);
    }});
}

}  // namespace

}  // namespace kvopt::test
