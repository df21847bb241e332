#include "platform/qt/table_layout.h"

#include <gmock/gmock.h>

namespace vorbano {

/// Found by the test framework.
static void PrintTo(const PageRange& page, std::ostream* out) {
    *out << "[" << page.first << ", " << page.end << ") below " << page.heading;
}

}  // namespace vorbano

namespace vorbano::test {

using ::testing::ElementsAre;

namespace {

/// A table as it falls into boxes: a heading of 10, rows of 10, and totals of 10 if wished for.
std::vector<FlowBox> tableOf(int rows, bool totals) {
    std::vector<FlowBox> boxes = {{10, true}};
    for (int row = 0; row < rows; ++row) boxes.push_back({10, totals && row == rows - 1, false, 0});
    if (totals) boxes.push_back({10, false, false, 0});
    return boxes;
}

const std::vector<double> oneHeading = {10};

double oneEach(std::string_view text) { return static_cast<double>(text.size()); }

}  // namespace

TEST(PageBreaks, AnEmptyDocumentHasOnePage) {
    EXPECT_THAT(breakIntoPages({}, {}, 100), ElementsAre(PageRange{0, 0, -1}));
}

TEST(PageBreaks, ATableWithoutRowsStaysWithItsTotals) {
    EXPECT_THAT(breakIntoPages(tableOf(0, true), oneHeading, 100), ElementsAre(PageRange{0, 2, -1}));
}

TEST(PageBreaks, RowsThatJustFitStayOnOnePage) {
    EXPECT_THAT(breakIntoPages(tableOf(9, false), oneHeading, 100), ElementsAre(PageRange{0, 10, -1}));
}

TEST(PageBreaks, HeadingsAreRepeatedAndTakeTheirRoom) {
    // The first page holds the heading and nine rows, each further one the repeated heading and nine rows.
    EXPECT_THAT(breakIntoPages(tableOf(20, false), oneHeading, 100),
                ElementsAre(PageRange{0, 10, -1}, PageRange{10, 19, 0}, PageRange{19, 21, 0}));
}

TEST(PageBreaks, NoRowIsSplitOrLost) {
    for (int rows = 0; rows < 200; ++rows) {
        const auto boxes = tableOf(rows, true);
        const auto pages = breakIntoPages(boxes, oneHeading, 100);
        int next = 0;
        for (const PageRange& page : pages) {
            EXPECT_EQ(page.first, next);
            double height = page.heading < 0 ? 0 : 10;
            for (int at = page.first; at < page.end; ++at) height += boxes[static_cast<std::size_t>(at)].height;
            EXPECT_LE(height, 100) << rows << " rows";
            next = page.end;
        }
        EXPECT_EQ(next, static_cast<int>(boxes.size())) << rows << " rows";
    }
}

TEST(PageBreaks, TotalsTakeTheLastRowAlong) {
    // Heading and nine rows fill the page; the totals would stand alone on the next.
    EXPECT_THAT(breakIntoPages(tableOf(9, true), oneHeading, 100),
                ElementsAre(PageRange{0, 9, -1}, PageRange{9, 11, 0}));
}

TEST(PageBreaks, TheSignatureIsNeverTornFromTheTotals) {
    auto boxes = tableOf(7, true);
    boxes.back().withNext = true;
    boxes.push_back({30});  // 10 + 70 + 10 + 30
    EXPECT_THAT(breakIntoPages(boxes, oneHeading, 100), ElementsAre(PageRange{0, 7, -1}, PageRange{7, 10, 0}));
}

TEST(PageBreaks, TheSecondOfTwoTablesRepeatsItsOwnHeading) {
    const std::vector<FlowBox> boxes = {
        {10, true},           {10, false, false, 0}, {20, true}, {30, false, false, 1}, {30, false, false, 1},
        {30, false, false, 1}};
    const std::vector<double> headings = {10, 20};
    EXPECT_THAT(breakIntoPages(boxes, headings, 100), ElementsAre(PageRange{0, 5, -1}, PageRange{5, 6, 1}));
}

TEST(PageBreaks, ANewPageIsBegunWhereItIsAskedFor) {
    const std::vector<FlowBox> boxes = {{10, true}, {10, false, true}, {10}};
    EXPECT_THAT(breakIntoPages(boxes, {}, 100), ElementsAre(PageRange{0, 1, -1}, PageRange{1, 3, -1}));
    const std::vector<FlowBox> atOnce = {{10, false, true}};
    EXPECT_THAT(breakIntoPages(atOnce, {}, 100), ElementsAre(PageRange{0, 1, -1})) << "no empty page before it";
}

TEST(PageBreaks, WhatHoldsTogetherForLongerThanAPageIsBroken) {
    const std::vector<FlowBox> boxes = {{10}, {40, true}, {40, true}, {40}};
    EXPECT_THAT(breakIntoPages(boxes, {}, 100),
                ElementsAre(PageRange{0, 1, -1}, PageRange{1, 3, -1}, PageRange{3, 4, -1}));
}

TEST(PageBreaks, ABoxHigherThanAPageHasAPageOfItsOwn) {
    const std::vector<FlowBox> boxes = {{10}, {300}, {10}};
    EXPECT_THAT(breakIntoPages(boxes, {}, 100),
                ElementsAre(PageRange{0, 1, -1}, PageRange{1, 2, -1}, PageRange{2, 3, -1}));
}

TEST(ColumnWidths, AreThoseWishedFor) {
    EXPECT_THAT(columnWidths(std::vector<double>{10, 20, 30}, 100, 5), ElementsAre(10, 20, 30));
}

TEST(ColumnWidths, ShareWhatIsLeft) {
    EXPECT_THAT(columnWidths(std::vector<double>{10, 0, 30, 0}, 100, 5), ElementsAre(10, 30, 30, 30));
}

TEST(ColumnWidths, AreNarrowedAlikeWhenTheyAreTooWide) {
    EXPECT_THAT(columnWidths(std::vector<double>{100, 50, 50}, 100, 5), ElementsAre(50, 25, 25));
    EXPECT_THAT(columnWidths(std::vector<double>{150, 0}, 100, 50), ElementsAre(75, 25));
}

TEST(LineBreaks, FallAtBlanks) {
    EXPECT_THAT(breakIntoLines("CASTELLANO PIGNATELLI LUCA", 15, oneEach),
                ElementsAre("CASTELLANO", "PIGNATELLI LUCA"));
    EXPECT_THAT(breakIntoLines("ROSSI  MARIA ", 15, oneEach), ElementsAre("ROSSI MARIA"));
}

TEST(LineBreaks, FallWhereTheyAreWritten) {
    EXPECT_THAT(breakIntoLines("1° periodo\ndal 15/04/24", 50, oneEach), ElementsAre("1° periodo", "dal 15/04/24"));
    EXPECT_THAT(breakIntoLines("", 50, oneEach), ElementsAre(""));
    EXPECT_THAT(breakIntoLines("uno\n", 50, oneEach), ElementsAre("uno", ""));
}

TEST(LineBreaks, FallInsideAWordThatIsWiderThanALine) {
    EXPECT_THAT(breakIntoLines("PRECIPITEVOLISSIMEVOLMENTE", 10, oneEach),
                ElementsAre("PRECIPITEV", "OLISSIMEVO", "LMENTE"));
    EXPECT_THAT(breakIntoLines("AB", 0.5, oneEach), ElementsAre("A", "B")) << "at least one character a line";
}

TEST(LineBreaks, KeepTheBytesOfACharacterTogether) {
    EXPECT_THAT(breakIntoLines("èèè", 3, oneEach), ElementsAre("è", "è", "è"));
}

}  // namespace vorbano::test
