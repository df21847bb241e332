#include "screens/date_entry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen_with_fields.h"

using namespace vorbano;
using namespace vorbano::test;
using testing::IsEmpty;

namespace {

struct ADateField : testing::Test, ScreenWithFields {
    ADateField() { makeDateField(txtDataEle, desktop); }
    void TearDown() override { EXPECT_THAT(desktop.finish(), IsEmpty()); }

    std::string left(const std::string& typed) {
        EXPECT_EQ(clerk.type(txtDataEle, typed), Refusal::none);
        clerk.leave();
        return txtDataEle.text();
    }
};

}  // namespace

TEST_F(ADateField, IsReformattedOnLeaving) {
    EXPECT_EQ(left("9/6/24"), "09-06-24");
    EXPECT_EQ(left("09-06-24"), "09-06-24");
    EXPECT_EQ(left("9-6/2024"), "09-06-24");
    EXPECT_EQ(left("//"), "//");
}

TEST_F(ADateField, KeepsATextThatIsNoDate) {
    EXPECT_EQ(left("31/02/24"), "31/02/24");
    EXPECT_EQ(left(""), "");
}

TEST_F(ADateField, RefusesEachOddSeparatorWhileItIsTyped) {
    const std::string refused = "()[]#.,*:;'_\\";
    for (const char odd : refused) {
        desktop.box("formato data", std::string("Il formato ( ") + odd +
                                        " ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
        EXPECT_EQ(clerk.type(txtDataEle, std::string("9") + odd + "6"), Refusal::none);
        EXPECT_EQ(txtDataEle.text(), "96") << odd;
    }
}

TEST_F(ADateField, ShowsWhatTheProgramPutsIntoItWithoutAWord) {
    form.focus(txtAltro);
    txtDataEle.text = std::string("vecchio_archivio");
    EXPECT_EQ(txtDataEle.text(), "vecchio_archivio");
}
