#include <QProgressBar>

#include "window_fixture.h"

namespace {

class Bars : public WindowTest {
  protected:
    QProgressBar& bar() { return *window->findChild<QProgressBar*>("barOre"); }
};

TEST_F(Bars, AHourPoolIsABarBesideItsNumbers) {
    screen.txtMonte.text = "280";
    screen.txtOre.text = "70";
    EXPECT_EQ(bar().maximum(), 280);
    EXPECT_EQ(bar().value(), 70);
    EXPECT_EQ(bar().text(), "70 di 280 ore");
    EXPECT_EQ(bar().property("tone"), "plain");
}

TEST_F(Bars, APoolThatIsExceededIsMarked) {
    screen.txtMonte.text = "280";
    screen.txtOre.text = "281";
    EXPECT_EQ(bar().text(), "281 di 280 ore");
    EXPECT_EQ(bar().value(), 280);
    EXPECT_EQ(bar().property("tone"), "over");
    screen.txtOre.text = "280";
    EXPECT_EQ(bar().property("tone"), "plain");
}

TEST_F(Bars, NumbersAreReadInItalianForm) {
    screen.txtMonte.text = "1.200";
    screen.txtOre.text = " 600,00 ";
    EXPECT_EQ(bar().text(), "600 di 1200 ore");
    // A point before the comma counts for nothing, wherever it stands.
    screen.txtOre.text = "1.2";
    EXPECT_EQ(bar().text(), "12 di 1200 ore");
}

TEST_F(Bars, APoolThatIsNotYetKnownIsAnEmptyBarWithoutWords) {
    EXPECT_EQ(bar().text(), "");
    EXPECT_EQ(bar().value(), 0);
    screen.txtOre.text = "//";
    EXPECT_EQ(bar().text(), "");
    screen.txtMonte.text = "60";
    EXPECT_EQ(bar().text(), "0 di 60 ore");
}

TEST_F(Bars, HoursWithoutAPoolAreTooMany) {
    screen.txtOre.text = "5";
    EXPECT_EQ(bar().text(), "5 di 0 ore");
    EXPECT_EQ(bar().property("tone"), "over");
}

TEST_F(Bars, GrowsWithItsWordsAndStaysAsWide) {
    const auto wordsWidth = [this] { return bar().fontMetrics().horizontalAdvance(bar().text()); };
    screen.txtMonte.text = "15000";
    screen.txtOre.text = "15001";
    ASSERT_EQ(bar().text(), "15001 di 15000 ore");
    const int widest = bar().minimumWidth();
    EXPECT_GT(widest, wordsWidth()) << "in the heavier letters of a pool that is exceeded";
    screen.txtOre.text = "1";
    EXPECT_EQ(bar().minimumWidth(), widest);
}

TEST_F(Bars, ABarShowsWithItsNumber) {
    screen.txtOre.visible = false;
    EXPECT_FALSE(bar().isVisible());
    screen.txtOre.visible = true;
    EXPECT_TRUE(bar().isVisible());
    screen.Frame1.visible = false;
    EXPECT_FALSE(bar().isVisible());
    screen.Frame1.visible = true;
    EXPECT_TRUE(bar().isVisible());
}

TEST_F(Bars, TheBarFollowsWhatIsTyped) {
    screen.txtMonte.text = "60";
    click(screen.txtOre);
    type("45");
    EXPECT_EQ(bar().value(), 45);
}

}  // namespace
