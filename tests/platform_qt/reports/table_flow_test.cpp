#include "platform/qt/table_flow.h"

#include <gmock/gmock.h>

#include "platform/qt/table_layout.h"

namespace vorbano {

/// Found by the test framework.
static void PrintTo(const TableBox& box, std::ostream* out) {
    *out << "kind " << static_cast<int>(box.kind) << " row " << box.row << " block " << box.block
         << (box.withNext ? " with next" : "") << (box.breakBefore ? " on a new page" : "");
}

}  // namespace vorbano

namespace vorbano::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Kind = TableBox::Kind;

namespace {

constexpr bool withNext = true;
constexpr bool newPage = true;

/// The boxes as the pages see them: 10 high, below the heading of their block.
std::vector<FlowBox> asFlow(const std::vector<TableBox>& boxes) {
    std::vector<FlowBox> flow;
    for (const TableBox& box : boxes) {
        flow.push_back({10, box.withNext, box.breakBefore, box.kind == Kind::heading ? -1 : box.block});
    }
    return flow;
}

}  // namespace

TEST(BlockStarts, AreTheRowsThatDoNotGoOn) {
    const std::vector<int> numbers = {4, 4, 1, 1, 1, 4};
    const auto begins = [&](int row) {
        return numbers[static_cast<std::size_t>(row)] != numbers[static_cast<std::size_t>(row) - 1];
    };
    EXPECT_THAT(blockStarts(6, begins), ElementsAre(0, 2, 5)) << "a number that comes again begins a block again";
    EXPECT_THAT(blockStarts(1, begins), ElementsAre(0));
    EXPECT_THAT(blockStarts(0, begins), IsEmpty());
}

TEST(TableBoxes, OfOneBlockHoldTogetherAtBothEnds) {
    EXPECT_THAT(tableBoxes({.rows = 4, .totals = true}),
                ElementsAre(TableBox{Kind::heading, 0, 0, withNext}, TableBox{Kind::row, 0, 0, withNext},
                            TableBox{Kind::row, 1, 0}, TableBox{Kind::row, 2, 0, withNext},
                            TableBox{Kind::row, 3, 0, withNext}, TableBox{Kind::totals, 0, 0}));
}

TEST(TableBoxes, OfATableWithoutRowsAreHeadingAndTotals) {
    EXPECT_THAT(tableBoxes({}), ElementsAre(TableBox{Kind::heading, 0, 0, withNext}));
    EXPECT_THAT(tableBoxes({.totals = true}),
                ElementsAre(TableBox{Kind::heading, 0, 0, withNext}, TableBox{Kind::totals, 0, 0}));
    EXPECT_THAT(tableBoxes({.rows = 0, .blocks = {}, .blockTotals = true, .below = true}), IsEmpty());
}

TEST(TableBoxes, OfBlocksEachHaveHeadingTotalsAndTextBelow) {
    EXPECT_THAT(tableBoxes({.rows = 3, .blocks = {0, 1}, .blockTotals = true, .below = true, .apart = true}),
                ElementsAre(TableBox{Kind::heading, 0, 0, withNext}, TableBox{Kind::row, 0, 0, withNext},
                            TableBox{Kind::blockTotal, 0, 0, withNext}, TableBox{Kind::below, 0, 0},
                            TableBox{Kind::heading, 0, 1, withNext, newPage}, TableBox{Kind::row, 1, 1, withNext},
                            TableBox{Kind::row, 2, 1, withNext}, TableBox{Kind::blockTotal, 0, 1, withNext},
                            TableBox{Kind::below, 0, 1}));
}

TEST(TableBoxes, TotalsOfTheTableStayWithTheLastBlock) {
    const auto boxes = tableBoxes({.rows = 2, .blocks = {0, 1}, .blockTotals = true, .totals = true});
    ASSERT_EQ(boxes.size(), 7U);
    EXPECT_FALSE(boxes[2].withNext) << "the totals of the first block";
    EXPECT_TRUE(boxes[5].withNext);
    EXPECT_EQ(boxes[6], (TableBox{Kind::totals, 0, 1}));
}

TEST(TableBoxes, BlocksApartBeginPagesOfTheirOwn) {
    // Two blocks of three and one rows, each with heading and totals.
    const auto flow = asFlow(tableBoxes({.rows = 4, .blocks = {0, 3}, .blockTotals = true, .apart = true}));
    const std::vector<double> headings = {10, 10};
    EXPECT_THAT(breakIntoPages(flow, headings, 100), ElementsAre(PageRange{0, 5, -1}, PageRange{5, 8, -1}));
}

TEST(TableBoxes, ALongBlockGoesOnBelowItsOwnHeading) {
    // The second block has twelve rows, of which seven go below its heading; the others go on below it repeated.
    const auto flow = asFlow(tableBoxes({.rows = 13, .blocks = {0, 1}, .apart = true}));
    const std::vector<double> headings = {10, 20};
    const auto pages = breakIntoPages(flow, headings, 80);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0], (PageRange{0, 2, -1}));
    EXPECT_EQ(pages[1], (PageRange{2, 10, -1})) << "heading and seven rows";
    EXPECT_EQ(pages[2], (PageRange{10, 15, 1}));
}

TEST(TableBoxes, NoRowIsLostWhateverTheBlocks) {
    for (int rows = 0; rows < 60; ++rows) {
        std::vector<int> blocks;
        for (int first = 0; first < rows; first += 1 + first % 7) blocks.push_back(first);
        int next = 0;
        std::size_t headings = 0;
        for (const TableBox& box : tableBoxes({.rows = rows, .blocks = blocks, .below = true})) {
            if (box.kind == Kind::row) {
                EXPECT_EQ(box.row, next++);
            }
            if (box.kind == Kind::heading) ++headings;
        }
        EXPECT_EQ(next, rows);
        EXPECT_EQ(headings, blocks.size());
    }
}

}  // namespace vorbano::test
