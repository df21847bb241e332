// Combo boxes, list boxes and grids, without any window.

#include <gmock/gmock.h>

#include "platform/form.h"
#include "watcher.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vorbano;

namespace {

struct ListControls : testing::Test {
    std::vector<std::string> log;
    Form form{"frmX", "Prova"};
    ComboBox combo{form, "Combo1", {"Europee", " Comunali ", "Referendum"}};
    ListBox list{form, "List1"};
    Grid grid{form, "MSFlexGrid1", {"N.", "Nome"}};
};

TEST_F(ListControls, ChoosingShowsTheLineAsItStands) {
    note(combo.clicked, log, "clicked");
    combo.choose(1);
    EXPECT_EQ(combo.selection(), 1);
    EXPECT_EQ(combo.text(), " Comunali ");
    EXPECT_THAT(log, ElementsAre("clicked"));
}

TEST_F(ListControls, TheChosenLineCanBeChosenAgain) {
    note(combo.clicked, log, "clicked");
    combo.choose(0);
    combo.choose(0);
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(ListControls, ALineThatIsNotThereIsNotChosen) {
    note(combo.clicked, log, "combo");
    note(list.clicked, log, "list");
    combo.choose(3);
    combo.choose(-1);
    list.choose(0);
    EXPECT_EQ(combo.selection(), -1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListControls, LinesAreFoundByTheirTrimmedText) {
    EXPECT_EQ(combo.find("Comunali"), 1);
    EXPECT_EQ(combo.find("  Referendum"), 2);
    EXPECT_EQ(combo.find("referendum"), -1);
}

TEST_F(ListControls, ClearingIsSilentAndEmptiesTheText) {
    combo.choose(0);
    note(combo.clicked, log, "clicked");
    combo.clear();
    EXPECT_THAT(combo.items(), IsEmpty());
    EXPECT_EQ(combo.text(), "");
    EXPECT_EQ(combo.selection(), -1);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ListControls, AListShowsItsChosenLine) {
    EXPECT_EQ(list.shownText(), "");
    list.add("uno");
    list.add("due");
    list.choose(1);
    EXPECT_EQ(list.shownText(), "due");
    list.removeItem(0);
    EXPECT_THAT(list.items(), ElementsAre("due"));
    EXPECT_EQ(list.selection(), -1);
    list.removeItem(5);
    EXPECT_THAT(list.items(), ElementsAre("due"));
}

TEST_F(ListControls, RemovingALineBelowTheChosenOneKeepsTheChoice) {
    list.items = Lines{"uno", "due", "tre"};
    list.choose(0);
    list.removeItem(2);
    EXPECT_EQ(list.shownText(), "uno");
}

TEST_F(ListControls, RowZeroOfAGridIsTheHeading) {
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.cell(0, 1), "Nome");
    grid.setRows({{"1", "Rossi"}, {"2"}});
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.cell(1, 1), "Rossi");
    EXPECT_EQ(grid.cell(2, 1), "");
    EXPECT_EQ(grid.cell(3, 0), "");
    EXPECT_EQ(grid.cell(-1, 0), "");
    grid.clear();
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.cell(0, 0), "N.");
}

}  // namespace
