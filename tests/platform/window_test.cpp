#include "kvopt/platform/window.h"

#include <memory>

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Window, TellsItsViewsOfDifferencesOnly) {
    CWnd window;
    CountingView view;
    window.AddListener(&view);
    window.AddListener(&view);
    window.SetText(L"a");
    window.SetText(L"a");
    window.EnableWindow(true);
    window.EnableWindow(false);
    window.ShowWindow(true);
    window.ShowWindow(false);
    EXPECT_THAT(view.Take(),
                ElementsAre(WindowChange::Text, WindowChange::Enabled, WindowChange::Visible));
    window.RemoveListener(&view);
    window.SetText(L"b");
    EXPECT_THAT(view.Take(), IsEmpty());
}

TEST(Window, TellsItsViewsWhenItDies) {
    CountingView view;
    {
        CWnd window;
        window.AddListener(&view);
    }
    EXPECT_EQ(view.gone, 1);
}

TEST(Window, LetsViewsLeaveWhileTheyAreTold) {
    class Leaver : public CountingView {
    public:
        Leaver(CWnd& window, WindowListener* other) : window_(window), other_(other) {}
        void OnWindowChanged(CWnd& window, WindowChange change) override {
            CountingView::OnWindowChanged(window, change);
            window_.RemoveListener(this);
            window_.RemoveListener(other_);
        }

    private:
        CWnd& window_;
        WindowListener* other_;
    };
    CWnd window;
    CountingView second;
    Leaver first(window, &second);
    window.AddListener(&first);
    window.AddListener(&second);
    window.SetText(L"a");
    window.SetText(L"b");
    EXPECT_EQ(first.changes.size(), 1U);
    EXPECT_THAT(second.changes, IsEmpty());
}

TEST(Window, FindsItsOutermostParent) {
    CWnd host;
    CWnd frame(&host);
    CWnd inner(&frame);
    EXPECT_EQ(inner.GetTopLevelParent(), &host);
    EXPECT_EQ(host.GetTopLevelParent(), &host);
    inner.SetParent(nullptr);
    EXPECT_EQ(inner.GetTopLevelParent(), &inner);
    EXPECT_FALSE(inner.OnCommand(1));
}

TEST(Window, ExpiresItsTokenWhenItDies) {
    std::weak_ptr<const void> token;
    {
        const CWnd window;
        token = window.LifeToken();
        EXPECT_FALSE(token.expired());
    }
    EXPECT_TRUE(token.expired());
}

TEST(Mnemonic, IsTakenOutOfALabel) {
    EXPECT_EQ(WithoutMnemonic(L"Plot &options..."), L"Plot options...");
    EXPECT_EQ(WithoutMnemonic(L"Fish && chips"), L"Fish & chips");
    EXPECT_EQ(WithoutMnemonic(L"At the end &"), L"At the end &");
    EXPECT_EQ(MnemonicOf(L"Plot &options..."), L'o');
    EXPECT_EQ(MnemonicOf(L"Fish && &chips"), L'c');
    EXPECT_EQ(MnemonicOf(L"Fish && chips"), L'\0');
    EXPECT_EQ(MnemonicOf(L"At the end &"), L'\0');
}

TEST(Transcript, KeepsALineALine) {
    Transcript transcript;
    transcript.Add("one\ntwo");
    transcript.Add("three");
    EXPECT_THAT(transcript.Lines(), ElementsAre("one\\ntwo", "three"));
    EXPECT_EQ(transcript.Text(), "one\\ntwo\nthree\n");
    transcript.Clear();
    EXPECT_THAT(transcript.Lines(), IsEmpty());
}

TEST(Transcript, QuotesTexts) {
    EXPECT_EQ(Transcript::Quote(L"a \"b\"\nc\\d \u00d6"), "\"a \\\"b\\\"\\nc\\\\d \u00d6\"");
}

}  // namespace
}  // namespace kvopt
