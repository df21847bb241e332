#include "reports/heading.h"

#include "reports_desk.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

using testing::Optional;

TEST(ElectionCaption, SingleTypeStandsAsItIs) { EXPECT_EQ(electionCaption("Europee"), "Europee"); }

TEST(ElectionCaption, CombinedTypeIsReadAsTwo) {
    EXPECT_EQ(electionCaption("Europee_Comunali"), "Europee e Comunali");
    EXPECT_EQ(electionCaption("Referendum_Comunali"), "Referendum e Comunali");
}

TEST(ElectionCaption, EveryUnderscoreCounts) { EXPECT_EQ(electionCaption("A_B_C"), "A e B e C"); }

TEST(ElectionCaption, BlanksAroundItAreDropped) { EXPECT_EQ(electionCaption("  Europee "), "Europee"); }

TEST(DateCaption, DayHasNoLeadingZero) {
    EXPECT_THAT(dateCaption("05-06-13"), Optional(std::string("del 5 Giugno 2013")));
    EXPECT_THAT(dateCaption("26-05-13"), Optional(std::string("del 26 Maggio 2013")));
}

TEST(DateCaption, EveryMonthButJanuaryHasItsWord) {
    const std::pair<const char*, const char*> months[] = {
        {"09-02-24", "del 9 Febbraio 2024"}, {"09-03-24", "del 9 Marzo 2024"},     {"09-04-24", "del 9 Aprile 2024"},
        {"09-05-24", "del 9 Maggio 2024"},   {"09-06-24", "del 9 Giugno 2024"},    {"09-07-24", "del 9 Luglio 2024"},
        {"09-08-24", "del 9 Agosto 2024"},   {"09-09-24", "del 9 Settembre 2024"}, {"09-10-24", "del 9 Ottobre 2024"},
        {"09-11-24", "del 9 Novembre 2024"}, {"09-12-24", "del 9 Dicembre 2024"},
    };
    for (const auto& [date, caption] : months) EXPECT_THAT(dateCaption(date), Optional(std::string(caption)));
}

TEST(DateCaption, JanuaryHasNone) { EXPECT_EQ(dateCaption("13-01-13"), std::nullopt); }

TEST(DateCaption, FolderThatIsNoDateHasNone) {
    EXPECT_EQ(dateCaption("copia di 2013"), std::nullopt);
    EXPECT_EQ(dateCaption("09-13-24"), std::nullopt);
    EXPECT_EQ(dateCaption("vecchio"), std::nullopt);
    EXPECT_EQ(dateCaption(""), std::nullopt);
}

TEST(EditionCaption, IsTheEditionWithItsBraces) { EXPECT_EQ(editionCaption, "{Vorbano 3.9 edizione 2014}"); }

class HeadingRow : public ReportsDesk {};

TEST_F(HeadingRow, CarriesMunicipalityAndCaptions) {
    ASSERT_TRUE(lay(files, "Params/Ente.dat", padded("Pratofiorito", 60)));
    EXPECT_THAT(appendHeading(files, staging, {"Europee", "del 9 Giugno 2024", "{edizione}"}), Succeeds());
    const Snapshot now = tables();
    EXPECT_EQ(now.rows("Tabella5"), 1);
    EXPECT_EQ(now.cell("Tabella5", 1, "Comune"), "Pratofiorito");
    EXPECT_EQ(now.cell("Tabella5", 1, "Elezione"), "Europee");
    EXPECT_EQ(now.cell("Tabella5", 1, "Data"), "del 9 Giugno 2024");
    EXPECT_EQ(now.cell("Tabella5", 1, "Databall"), "{edizione}");
}

TEST_F(HeadingRow, HasNoMunicipalityBeforeOneWasEntered) {
    ASSERT_THAT(files.makeFolder("Params"), Succeeds());
    EXPECT_THAT(appendHeading(files, staging, {"Europee", "", ""}), Succeeds());
    EXPECT_EQ(tables().cell("Tabella5", 1, "Comune"), "");
}

}  // namespace
}  // namespace vorbano::test
