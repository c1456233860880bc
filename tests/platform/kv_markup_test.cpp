#include "kvopt/platform/kv_markup.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using Headers = ControlsTest;

TEST_F(Headers, GetNumberAndTextOfTheirTitle) {
    CXTPMarkupStatic* header = nullptr;
    EXPECT_TRUE(KvMarkup::CreateDialogHeader(dialog, header, kMarkup, 8571, L"Options"));
    ASSERT_EQ(header, dialog.GetDlgItem(kMarkup));
    EXPECT_EQ(header->GetText(), L"Options");
    EXPECT_EQ(header->AccessibleName(), L"Options");
    EXPECT_EQ(header->TitleNumber(), 8571U);
}

TEST_F(Headers, AreNotMadeWhereThereIsNoPlaceForThem) {
    CXTPMarkupStatic* header = &Get<CXTPMarkupStatic>(kMarkup);
    EXPECT_FALSE(KvMarkup::CreateDialogHeader(dialog, header, kLabel, 1, L"Options"));
    EXPECT_EQ(header, nullptr);
    header = &Get<CXTPMarkupStatic>(kMarkup);
    EXPECT_FALSE(KvMarkup::CreateDialogHeader(dialog, header, 999, 1, L"Options"));
    EXPECT_EQ(header, nullptr);
}

}  // namespace
}  // namespace kvopt
