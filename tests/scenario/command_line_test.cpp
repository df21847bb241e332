#include "scenario/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vorbano {
namespace {

using testing::ElementsAre;
using Words = std::vector<std::string>;

TEST(Orders, FilesOnTheBareForms) {
    const auto orders = readOrders(Words{"a.scenario", "b.scenario"});
    ASSERT_TRUE(orders);
    EXPECT_THAT(orders->files, ElementsAre("a.scenario", "b.scenario"));
    EXPECT_FALSE(orders->window);
    EXPECT_FALSE(orders->watch);
    EXPECT_EQ(orders->root, "");
    EXPECT_EQ(orders->out, "");
}

TEST(Orders, EveryOptionInAnyPlace) {
    const auto orders = readOrders(Words{"--root", "r", "a.scenario", "--out", "o", "--window"});
    ASSERT_TRUE(orders);
    EXPECT_TRUE(orders->window);
    EXPECT_FALSE(orders->watch);
    EXPECT_EQ(orders->root, "r");
    EXPECT_EQ(orders->out, "o");
    EXPECT_THAT(orders->files, ElementsAre("a.scenario"));
}

TEST(Orders, WatchingNeedsWindows) {
    const auto orders = readOrders(Words{"--watch", "a.scenario"});
    ASSERT_TRUE(orders);
    EXPECT_TRUE(orders->window);
    EXPECT_TRUE(orders->watch);
}

TEST(Orders, AFileCanBeginWithADash) {
    const auto orders = readOrders(Words{"--", "-a.scenario"});
    ASSERT_TRUE(orders);
    EXPECT_THAT(orders->files, ElementsAre("-a.scenario"));
}

TEST(Orders, HelpNeedsNoFile) {
    const auto orders = readOrders(Words{"--help"});
    ASSERT_TRUE(orders);
    EXPECT_TRUE(orders->help);
}

TEST(Orders, WordsThatAreNoOrders) {
    const Words mistakes[] = {
        {},   {"--window"},       {"--slow", "a"}, {"-w", "a"}, {"a", "--root"}, {"--out"}, {"a", "--root", ""},
        {""}, {"a", "--window=1"}};
    for (const Words& words : mistakes) EXPECT_FALSE(readOrders(words)) << testing::PrintToString(words);
}

}  // namespace
}  // namespace vorbano
