#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <stdexcept>

#include "kvopt/text.h"
#include "tests/qt/every_kind_page.h"
#include "tests/qt/qt_fixture.h"

namespace kvopt::test {

namespace {

/// A sheet or wizard of two pages.
class Frames : public QtTest {
protected:
    Frames() : first_(kEveryKind, 77), second_(kPlainPage), sheet_(L"A frame", nullptr) {
        sheet_.AddPage(&first_);
        sheet_.AddPage(&second_);
    }

    void Run(std::vector<Step> steps) {
        Play([this] { result_ = sheet_.DoModal(); }, std::move(steps));
    }
    static bool IsOn(const char* label) { return FrameButtonOf(label)->isEnabled(); }
    static QTabBar* Tabs() { return Front()->findChild<QTabBar*>(); }
    static void ClickTab(int index) {
        QTest::mouseClick(Tabs(), Qt::LeftButton, {}, Tabs()->tabRect(index).center());
    }

    EveryKindPage first_;
    EveryKindPage second_;
    CPropertySheet sheet_;
    int result_ = 0;
};

TEST_F(Frames, AWizardSwitchesItsThreeButtonsApart) {
    sheet_.SetWizardMode();
    Run({[&] {
             EXPECT_EQ(Front()->windowTitle(), QStringLiteral("A frame"));
             EXPECT_FALSE(IsOn("< Back"));
             EXPECT_TRUE(IsOn("Next >"));
             EXPECT_FALSE(IsOn("Finish"));
             sheet_.SetWizardButtons(kWizardNext | kWizardFinish);
         },
         [&] {
             EXPECT_TRUE(IsOn("Next >"));
             EXPECT_TRUE(IsOn("Finish"));
             ClickFrame("Next >");
             EXPECT_EQ(sheet_.GetActivePage(), &second_);
             EXPECT_EQ(Find<QLineEdit>(kName)->window(), Front());
             sheet_.SetWizardButtons(kWizardBack | kWizardFinish);
         },
         [] { ClickFrame("< Back"); },
         [&] {
             EXPECT_EQ(sheet_.GetActivePage(), &first_);
             sheet_.SetWizardButtons(kWizardFinish);
         },
         [] { ClickFrame("Finish"); }});
    EXPECT_EQ(result_, kResultFinish);
}

TEST_F(Frames, AWizardGoesToThePageThatThePageNames) {
    sheet_.SetWizardMode();
    EveryKindPage third(kQuestion);
    sheet_.AddPage(&third);
    first_.next = kQuestion;
    third.back = kPlainPage;
    Run({[] { ClickFrame("Next >"); },
         [&] {
             EXPECT_EQ(sheet_.GetActivePage(), &third);
             ClickFrame("< Back");
         },
         [&] { EXPECT_EQ(sheet_.GetActivePage(), &second_); }});
}

TEST_F(Frames, ReturnGoesOnInAWizardAndConfirmsInASheet) {
    sheet_.SetWizardMode();
    Run({[] { QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_Return); },
         [&] {
             EXPECT_EQ(sheet_.GetActivePage(), &second_);
             sheet_.SetWizardButtons(kWizardBack | kWizardFinish);
         },
         [] { QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_Return); }});
    EXPECT_EQ(result_, kResultFinish);

    EveryKindPage page(kPlainPage);
    CPropertySheet sheet(L"Sheet", nullptr);
    sheet.AddPage(&page);
    int result = 0;
    Play([&] { result = sheet.DoModal(); },
         {[] { QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_Return); }});
    EXPECT_EQ(result, kResultOk);
}

TEST_F(Frames, ReturnOnAPushButtonPressesThatButton) {
    int pressed = 0;
    first_.onPush = [&] { ++pressed; };
    Run({[&] {
        auto* push = Find<QPushButton>(kPush);
        push->setFocus(Qt::TabFocusReason);
        QTest::keyClick(push, Qt::Key_Return);
        EXPECT_EQ(pressed, 1);
        EXPECT_FALSE(sheet_.HasEnded());
    }});
}

TEST_F(Frames, EscapeAndTheCloseButtonCancel) {
    Run({[] { QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_Escape); }});
    EXPECT_EQ(result_, kResultCancel);
    result_ = 0;
    Run({[] { Front()->close(); }});
    EXPECT_EQ(result_, kResultCancel);
}

TEST_F(Frames, TabsFollowTheModelWhichMayKeepThePage) {
    first_.onKill = [] { return false; };
    Run({[&] {
        ASSERT_EQ(Tabs()->count(), 2);
        EXPECT_EQ(Tabs()->tabText(1), QStringLiteral("Plain page"));
        ClickTab(1);
        EXPECT_EQ(Tabs()->currentIndex(), 0);
        EXPECT_EQ(sheet_.GetActivePage(), &first_);
        first_.onKill = nullptr;
        ClickTab(1);
        EXPECT_EQ(Tabs()->currentIndex(), 1);
        EXPECT_EQ(sheet_.GetActivePage(), &second_);
        sheet_.SetActivePage(&first_);
        EXPECT_EQ(Tabs()->currentIndex(), 0);
    }});
}

TEST_F(Frames, ThePageThatRefusesIsStillSeenWhileItsBoxIsUp) {
    first_.onKill = [&] {
        ShowMessage(&first_, L"No.", BoxStyle::Error);
        return false;
    };
    QWidget* name = nullptr;
    Run({[&] {
             name = Find<QLineEdit>(kName);
             ClickTab(1);
         },
         [&] {
             EXPECT_TRUE(name->isVisible());
             EXPECT_EQ(name->window()->findChild<QTabBar*>()->currentIndex(), 0);
             ClickFrame("OK");
         }});
}

TEST_F(Frames, ApplyIsThereWithAHelperAndOnWhileAPageIsModified) {
    sheet_.SetHasApply(true);
    Run({[&] {
             EXPECT_FALSE(IsOn("Apply"));
             QTest::keyClicks(Find<QLineEdit>(kName), QStringLiteral("x"));
             EXPECT_TRUE(IsOn("Apply"));
             ClickFrame("Apply");
             EXPECT_FALSE(IsOn("Apply"));
             EXPECT_FALSE(sheet_.HasEnded());
         },
         [] { ClickFrame("OK"); }});
    EXPECT_EQ(result_, kResultOk);
}

TEST_F(Frames, ASheetWithoutHelperHasNoApply) {
    Run({[] {
        for (const auto* button : Front()->findChildren<QAbstractButton*>()) {
            EXPECT_NE(button->text(), QStringLiteral("&Apply"));
        }
    }});
}

TEST_F(Frames, TheFocusOfAPageBehindIsThereWhenItComesUp) {
    Run({[] { ClickTab(1); }, [] { ClickTab(0); },
         [&] {
             second_.GetDlgItem(kPush)->SetFocus();
             ClickTab(1);
             EXPECT_EQ(Front()->focusWidget(), Find<QPushButton>(kPush));
         }});
}

TEST_F(Frames, HelpIsOfferedWhereThereIsSome) {
    std::vector<unsigned> topics;
    desktop_.SetHelpViewer([&](unsigned topic) { topics.push_back(topic); });
    Run({[&] {
        EXPECT_TRUE(FrameButtonOf("Help")->isVisible());
        ClickFrame("Help");
        QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_F1);
        EXPECT_EQ(topics, (std::vector<unsigned>{77, 77}));
        ClickTab(1);
        EXPECT_FALSE(FrameButtonOf("Help")->isVisible());
        QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_F1);
        EXPECT_EQ(topics.size(), 2U);
    }});
}

TEST_F(Frames, AskThePageOnceAboutEachKey) {
    Run({[&] {
        QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_K, Qt::ControlModifier);
        EXPECT_EQ(first_.keys, (std::vector<KeyStroke>{{'K', true}}));
        first_.takesKeys = true;
        QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_Escape);
        EXPECT_FALSE(sheet_.HasEnded()) << "the page used the key up";
        first_.takesKeys = false;
    }});
}

TEST_F(Frames, PostedStepsRunWithoutWaitingForTheUser) {
    bool ran = false;
    Run({[&] { first_.PostStep("", [&] { ran = true; }); }, [&] { EXPECT_TRUE(ran); }});
}

TEST_F(Frames, TimersRunUntilTheyAreStopped) {
    int calls = 0;
    Run({[&] {
        desktop_.StartTimer(this, 1, [&] {
            if (++calls == 3) {
                desktop_.StopTimer(this);
            } else if (calls == 1) {
                desktop_.StartTimer(this, 2, [&] {
                    if (++calls == 3) {
                        desktop_.StopTimer(this);
                    }
                });
            }
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return calls == 3; }));
        QTest::qWait(20);
        EXPECT_EQ(calls, 3);
    }});
}

TEST_F(Frames, WhatAHandlerThrowsLeavesTheFunctionThatOpenedTheSheet) {
    first_.onPush = [] { throw std::runtime_error("torn"); };
    EXPECT_THROW(Run({[] { QTest::mouseClick(Find<QPushButton>(kPush), Qt::LeftButton); }}),
                 std::runtime_error);
    EXPECT_EQ(Front(), nullptr);
    first_.onPush = nullptr;
    Run({[] { ClickFrame("OK"); }});
    EXPECT_EQ(result_, kResultOk) << "the desktop goes on";
}

TEST_F(Frames, ACancelledPlotEndsEveryWindowUpToWhoCatchesIt) {
    EveryKindPage inner(kPlainPage);
    inner.onPush = [] { throw CancelException(); };
    first_.onPush = [&] {
        CPropertySheet sheet(L"Inner", &first_);
        sheet.AddPage(&inner);
        sheet.DoModal();
    };
    EXPECT_THROW(Run({[] { QTest::mouseClick(Find<QPushButton>(kPush), Qt::LeftButton); },
                      [] { QTest::mouseClick(Find<QPushButton>(kPush), Qt::LeftButton); }}),
                 CancelException);
}

TEST_F(Frames, ATimerThatThrowsBehindABoxEndsTheBoxToo) {
    first_.onPush = [&] {
        desktop_.StartTimer(this, 1, [] { throw std::runtime_error("late"); });
        ShowMessage(&first_, L"Wait.", BoxStyle::Information);
    };
    EXPECT_THROW(Run({[] { QTest::mouseClick(Find<QPushButton>(kPush), Qt::LeftButton); },
                      [] { QTest::qWait(50); }}),
                 std::runtime_error);
    desktop_.StopTimer(this);
    EXPECT_EQ(Front(), nullptr);
}

TEST_F(Frames, AFaultOutsideAllWindowsDoesNotPassThroughQt) {
    class Listening : public QtDesktop {
    public:
        int faults = 0;

    protected:
        void OnFault(std::exception_ptr /*fault*/) override { ++faults; }
    } desktop;
    desktop.Guard([] { throw std::runtime_error("lost"); });
    EXPECT_EQ(desktop.faults, 1);
}

TEST_F(QtTest, AFreeStandingDialogHasOkAndCancel) {
    EveryKindPage probe(kQuestion);  // brings its templates along
    CDialog dialog(kQuestion, nullptr);
    int result = 0;
    Play([&] { result = dialog.DoModal(); }, {[] {
             EXPECT_EQ(Front()->windowTitle(), QStringLiteral("A question"));
             QTest::keyClick(Find<QLineEdit>(kName), Qt::Key_Return);
         }});
    EXPECT_EQ(result, kResultOk);
    Play([&] { result = dialog.DoModal(); }, {[] { ClickFrame("Cancel"); }});
    EXPECT_EQ(result, kResultCancel);
}

TEST_F(QtTest, WindowsStandInFrontOfTheHostsOwn) {
    QWidget host;
    host.setWindowTitle(QStringLiteral("Host"));
    QtWindow parent(host);
    EXPECT_EQ(parent.GetText(), L"Host");
    EveryKindPage page(kPlainPage);
    CPropertySheet sheet(L"Sheet", &parent);
    sheet.AddPage(&page);
    Play([&] { sheet.DoModal(); }, {[&] { EXPECT_EQ(Front()->parentWidget(), &host); }});
}

struct BoxCase {
    const char* name;
    BoxStyle style;
    QMessageBox::Icon icon;
    bool isQuestion;
};

class Boxes : public QtTest, public ::testing::WithParamInterface<BoxCase> {};

TEST_P(Boxes, ShowTextIconAndButtonsAndGiveTheAnswer) {
    const BoxCase& box = GetParam();
    BoxAnswer answer = BoxAnswer::Cancel;
    const auto show = [&] {
        answer = desktop_.ShowBox({L"50 % of <b>it</b>", L"Caption", box.style, nullptr});
    };
    const auto check = [&] {
        const auto* shown = qobject_cast<QMessageBox*>(Front());
        ASSERT_NE(shown, nullptr);
        EXPECT_EQ(shown->text(), QStringLiteral("50 % of <b>it</b>"));
        EXPECT_EQ(shown->textFormat(), Qt::PlainText);
        EXPECT_EQ(shown->icon(), box.icon);
        EXPECT_EQ(shown->buttons().size(), box.isQuestion ? 2 : 1);
    };
    Play(show, {[&] {
             check();
             ClickFrame(box.isQuestion ? "Yes" : "OK");
         }});
    EXPECT_EQ(answer, box.isQuestion ? BoxAnswer::Yes : BoxAnswer::Ok);
    Play(show, {[] { QTest::keyClick(Front(), Qt::Key_Escape); }});
    EXPECT_EQ(answer, box.isQuestion ? BoxAnswer::No : BoxAnswer::Ok);
    Play(show, {[] { Front()->close(); }});
    EXPECT_EQ(answer, box.isQuestion ? BoxAnswer::No : BoxAnswer::Ok);
}

TEST_F(QtTest, ABoxThatOffersSilenceHasACheckThatGivesIt) {
    BoxAnswer answer = BoxAnswer::Cancel;
    const auto show = [&] {
        answer = desktop_.ShowBox(
            {L"Mind it", L"Caption", BoxStyle::Information, nullptr, L"&Never again"});
    };
    const auto check = [] {
        const auto* shown = qobject_cast<QMessageBox*>(Front());
        return shown != nullptr ? shown->checkBox() : nullptr;
    };
    Play(show, {[&] {
             ASSERT_NE(check(), nullptr);
             EXPECT_EQ(check()->text(), QStringLiteral("&Never again"));
             EXPECT_FALSE(check()->isChecked());
             ClickFrame("OK");
         }});
    EXPECT_EQ(answer, BoxAnswer::Ok);
    Play(show, {[&] {
             QTest::keyClick(check(), Qt::Key_Space);
             ClickFrame("OK");
         }});
    EXPECT_EQ(answer, BoxAnswer::Silence);
}

TEST_F(QtTest, ARecordedUserMarksTheCheckOfABoxWhenToldTo) {
    QtPlayer player(desktop_, UserScript::FromText("expect box information \"Mind it\"\n"
                                                   "expect box information \"Mind it\" "
                                                   "answer silence\n"));
    const MessageBoxRequest offering{L"Mind it", L"Caption", BoxStyle::Information, nullptr,
                                     L"&Never again"};
    EXPECT_EQ(desktop_.ShowBox(offering), BoxAnswer::Ok);
    EXPECT_EQ(desktop_.ShowBox(offering), BoxAnswer::Silence);
    EXPECT_TRUE(player.Verify().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Styles, Boxes,
    ::testing::Values(
        BoxCase{"Plain", BoxStyle::Plain, QMessageBox::NoIcon, false},
        BoxCase{"Error", BoxStyle::Error, QMessageBox::Critical, false},
        BoxCase{"Information", BoxStyle::Information, QMessageBox::Information, false},
        BoxCase{"Warning", BoxStyle::YesNoWarning, QMessageBox::Warning, true},
        BoxCase{"Question", BoxStyle::YesNoInformation, QMessageBox::Information, true}),
    [](const auto& shown) { return std::string(shown.param.name); });

}  // namespace

}  // namespace kvopt::test
