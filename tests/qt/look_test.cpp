#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QStyle>
#include <QTabBar>
#include <QTableView>
#include <QTreeView>

#include "tests/qt/every_kind_page.h"
#include "tests/qt/grid_page.h"
#include "tests/qt/picture_contrast.h"
#include "tests/qt/qt_fixture.h"

namespace kvopt::test {

namespace {

/// What the guidelines ask of texts.
constexpr double kReadable = 4.5;
/// Of marks that are no text.
constexpr double kSeen = 3.0;

/// A worksheet of one cell, whose text is written in blue, as a mark beside a slider's range is.
class BlueGrid : public BaseWorksheetInterface, private VWSRenderer {
public:
    BlueGrid() : BaseWorksheetInterface("Blue") {
        SetSize(1, 1);
        SetColumnWidth(1, 150);
        SetCellValue(1, 1, "below the range");
    }
    const VWSRenderer* GetCellRenderer(int /*column*/, int /*row*/) const override { return this; }
    bool UserChangedData(int /*column*/, int /*row*/, const char* /*text*/) override {
        return false;
    }

private:
    void DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet, int column, int row,
                  const CRect& rect) const override {
        canvas.SetTextColour(0xFF0000);
        canvas.SetBackgroundColour(0xFFFFFF);
        canvas.PrintText(rect, worksheet.GetCellText(column, row), TextAlign::Left);
    }
};

struct LookCase {
    const char* name;
    bool dark;
};

/// A sheet in a look, with the grounds that lists give their cells.
class Looks : public QtTest, public ::testing::WithParamInterface<LookCase> {
protected:
    Looks() : before_(QApplication::palette()), sheet_(L"Looks", nullptr) {
        const QtLook look{1.0, GetParam().dark};
        look.ApplyColours();
        sheet_.AddPage(&page_);
        sheet_.AddPage(&second_);
    }
    ~Looks() override { QApplication::setPalette(before_); }

    void Run(std::vector<Step> steps) {
        Play([this] { sheet_.DoModal(); }, std::move(steps));
    }
    /// What is seen of a worksheet's cell, without the lines around it.
    static QImage Cell(int column, int row) {
        auto* table = Find<QTableView>(kCells);
        const QRect place = table->visualRect(table->model()->index(row - 1, column - 1));
        return PictureOf(*table->viewport(), place.adjusted(2, 2, -3, -3));
    }

    QPalette before_;
    EveryKindPage page_;
    EveryKindPage second_{kPlainPage};
    CPropertySheet sheet_;
};

TEST_P(Looks, LabelsAndButtonsCanBeRead) {
    Run({[] {
        int seen = 0;
        for (QWidget* widget : Front()->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<QAbstractButton*>(widget);
            const auto* label = qobject_cast<QLabel*>(widget);
            const QString text = button != nullptr  ? button->text()
                                 : label != nullptr ? label->text()
                                                    : QString();
            if (!text.isEmpty() && widget->isVisible() && widget->isEnabled()) {
                ++seen;
                // Without the frame of a button, which stands out by itself.
                const QRect inside = widget->rect().adjusted(button != nullptr ? 20 : 0, 4, -4, -4);
                EXPECT_GE(StrongestContrast(PictureOf(*widget, inside)), kReadable)
                    << text.toStdString();
            }
        }
        EXPECT_GT(seen, 10);
    }});
}

TEST_P(Looks, TabsCanBeRead) {
    Run({[] {
        auto* tabs = Front()->findChild<QTabBar*>();
        for (int index = 0; index < 2; ++index) {
            EXPECT_GE(
                StrongestContrast(PictureOf(*tabs, tabs->tabRect(index).adjusted(6, 6, -6, -6))),
                kReadable)
                << index;
        }
    }});
}

TEST_P(Looks, CellsCanBeReadOnEveryGround) {
    Run({[&] {
             for (const Colour ground : {0xF0F0F0U, 0xE6E6E6U, 0xD9EBF2U, 0x00FFFFU}) {
                 page_.grid.SetFieldColor(2, 3, ground);
                 page_.grid.SetFieldColor(1, 3, ground);
                 Find<QTableView>(kCells)->viewport()->repaint();
                 EXPECT_GE(StrongestContrast(Cell(2, 3)), kReadable) << std::hex << ground;
                 EXPECT_GE(StrongestContrast(Cell(1, 3)), kReadable) << std::hex << ground;
             }
             EXPECT_GE(StrongestContrast(Cell(1, 1)), kReadable) << "a cell without a ground";
             EXPECT_GE(StrongestContrast(Cell(3, 1)), kSeen) << "a slider";
             page_.The<VirtualWorksheet>(kCells).SetSelection({1, 1, 3, 4});
         },
         [] {
             for (const CPoint cell : {CPoint{1, 1}, CPoint{2, 1}, CPoint{1, 3}, CPoint{2, 3}}) {
                 EXPECT_GE(StrongestContrast(Cell(cell.x, cell.y)), kReadable)
                     << "marked, row " << cell.y;
             }
         }});
}

TEST_P(Looks, ColouredTextsCanBeReadWhateverGroundTheyWereMeantFor) {
    BlueGrid blue;
    Run({[&] { VirtualWorksheet::CreateFromStatic(page_, kCells, blue); },
         [] { EXPECT_GE(StrongestContrast(Cell(1, 1)), kReadable); }});
}

TEST_P(Looks, GroundsOfCellsKeepToThePalette) {
    page_.grid.SetFieldColor(2, 4, 0xE6E6E6);
    Run({[] {
        const QImage plain = Cell(2, 1);
        const QImage coloured = Cell(2, 4);
        const QRgb ground = coloured.pixel(coloured.width() - 1, 1);
        EXPECT_NE(ground, plain.pixel(plain.width() - 1, 1)) << "it is told apart";
        EXPECT_EQ(qGray(ground) < 128, GetParam().dark);
    }});
}

TEST_P(Looks, RowsOfAPropertyGridCanBeRead) {
    GridPage page;
    CPropertySheet sheet(L"Looks", nullptr);
    sheet.AddPage(&page);
    Play([&] { sheet.DoModal(); }, {[&] {
             auto* tree = Front()->findChild<QTreeView*>();
             const auto strength = [tree](const QModelIndex& index, int column) {
                 const QRect place = tree->visualRect(index.siblingAtColumn(column));
                 return StrongestContrast(
                     PictureOf(*tree->viewport(), place.adjusted(2, 2, -4, -4)));
             };
             const QModelIndex heading = tree->model()->index(0, 0);
             EXPECT_GE(strength(heading, 0), kReadable);
             for (int row = 0; row < tree->model()->rowCount(heading); ++row) {
                 const QModelIndex index = tree->model()->index(row, 0, heading);
                 EXPECT_GE(strength(index, 0), kReadable) << row;
                 EXPECT_GE(strength(index, 1), kReadable) << row;
             }
             page.Grid().SetSelectedItem(&page.Row(L"Fixed"));
             EXPECT_GE(strength(tree->currentIndex(), 1), kReadable) << "selected";
         }});
}

TEST_P(Looks, APageStandsInAFrameWithItsTab) {
    Run({[] {
        // Down the middle of each margin of the page a line is crossed.
        const QWidget* tabs = Front()->findChild<QTabBar*>();
        QWidget* pane = tabs->parentWidget();
        const QImage picture = PictureOf(*pane, pane->rect());
        const int middle = pane->height() / 2;
        const auto differs = [&picture](QPoint one, QPoint other) {
            return picture.pixel(one) != picture.pixel(other);
        };
        const int right = pane->width() - 1;
        const int bottom = pane->height() - 1;
        const int last = QApplication::style()->pixelMetric(QStyle::PM_LayoutBottomMargin) - 3;
        bool left = false;
        bool below = false;
        bool onRight = false;
        for (int step = 0; step < last; ++step) {
            left = left || differs({step, middle}, {step + 1, middle});
            onRight = onRight || differs({right - step, middle}, {right - step - 1, middle});
            below = below || differs({right / 2, bottom - step}, {right / 2, bottom - step - 1});
        }
        EXPECT_TRUE(left);
        EXPECT_TRUE(onRight);
        EXPECT_TRUE(below);
        const QRect front = Front()->findChild<QTabBar*>()->tabRect(0);
        const QPoint inTab(front.left() + 6, front.bottom() - 2);
        const QPoint inPage = inTab + QPoint(0, 8);
        EXPECT_LT(ContrastOf(picture.pixel(inTab), picture.pixel(inPage)), 1.03)
            << "the tab in front is of one piece with its page";
    }});
}

INSTANTIATE_TEST_SUITE_P(Palettes, Looks,
                         ::testing::Values(LookCase{"Light", false}, LookCase{"Dark", true}),
                         [](const auto& look) { return std::string(look.param.name); });

TEST(QtLook, TellsQtTheScaleOnlyWhenThereIsOne) {
    const QByteArray before = qgetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_SCALE_FACTOR");
    QtLook{}.ApplyScale();
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
    QtLook{2.0, false}.ApplyScale();
    EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), QByteArray("2"));
    before.isNull() ? qunsetenv("QT_SCALE_FACTOR") : qputenv("QT_SCALE_FACTOR", before);
}

TEST(QtLook, DarkPaletteHasReadableTextsInEveryState) {
    const QPalette palette = QtLook::DarkPalette();
    for (const auto& [text, ground] : {std::pair(QPalette::WindowText, QPalette::Window),
                                       std::pair(QPalette::Text, QPalette::Base),
                                       std::pair(QPalette::Text, QPalette::AlternateBase),
                                       std::pair(QPalette::ButtonText, QPalette::Button),
                                       std::pair(QPalette::ToolTipText, QPalette::ToolTipBase),
                                       std::pair(QPalette::Link, QPalette::Window),
                                       std::pair(QPalette::PlaceholderText, QPalette::Base),
                                       std::pair(QPalette::HighlightedText, QPalette::Highlight)}) {
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            EXPECT_GE(
                ContrastOf(palette.color(group, text).rgb(), palette.color(group, ground).rgb()),
                kReadable)
                << text;
        }
    }
}

// The style frames an empty box darker than the window, so nothing but its ground shows it.
TEST(QtLook, DarkPaletteShowsWhereAnEmptyBoxIs) {
    const QPalette palette = QtLook::DarkPalette();
    EXPECT_GE(
        ContrastOf(palette.color(QPalette::Base).rgb(), palette.color(QPalette::Window).rgb()),
        1.7);
}

}  // namespace

}  // namespace kvopt::test
