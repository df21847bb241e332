#include "fiscalcode/place_list.h"

#include <gmock/gmock.h>

#include "support/places.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

class Places : public ::testing::Test {
  protected:
    Places() { fillPlaces(database); }

    static std::string shown(const Result<std::optional<Birthplace>>& place) {
        if (!place) return "(failure)";
        return *place ? (*place)->name + " " + (*place)->province + " " + (*place)->code : "(none)";
    }
    std::string atOrAfter(std::string_view text, BornIn where = BornIn::Comuni) {
        return shown(list.atOrAfter(where, text));
    }
    std::string named(std::string_view name, BornIn where = BornIn::Comuni) { return shown(list.named(where, name)); }

    MemoryDatabase database{placeTables()};
    PlaceList list{database};
};

TEST_F(Places, AreFoundByTheBeginningOfTheirName) {
    EXPECT_EQ(atOrAfter("ROM"), "ROMA RM H501");
    EXPECT_EQ(atOrAfter("ROMAG"), "ROMAGNANO SESIA NO H502");
    EXPECT_EQ(atOrAfter("roman"), "ROMANA SS H507");
    EXPECT_EQ(atOrAfter("A"), "ABBADIA CO A002");
}

TEST_F(Places, GiveTheNextNameForATextThatNoneBeginsWith) {
    EXPECT_EQ(atOrAfter("MILANX"), "ROMA RM H501");
    EXPECT_EQ(atOrAfter("Z"), "(none)");
}

TEST_F(Places, OfOneNameGiveTheOneInForce) {
    EXPECT_EQ(atOrAfter("CAST"), "CASTRO LE M261");
    EXPECT_EQ(named("CASTRO"), "CASTRO LE M261");
}

TEST_F(Places, OfOneNameGivenUpGiveTheFirst) { EXPECT_EQ(named("ABBADIA"), "ABBADIA CO A002"); }

TEST_F(Places, AreNamedInFullInEitherCaseAndWithAccents) {
    EXPECT_EQ(named(" roma "), "ROMA RM H501");
    EXPECT_EQ(named("Cantù"), "CANTU' CO B639");
    EXPECT_EQ(named("CANTU'"), "CANTU' CO B639");
    EXPECT_EQ(named("ROM"), "(none)");
    EXPECT_EQ(named(""), "(none)");
    EXPECT_EQ(named("ZZZ"), "(none)");
}

TEST_F(Places, OfTheStatesStandApart) {
    EXPECT_EQ(atOrAfter("F", BornIn::Stati), "FRANCIA EE Z110");
    EXPECT_EQ(named("Perù", BornIn::Stati), "PERU' EE Z611");
    EXPECT_EQ(named("FRANCIA"), "(none)");
    EXPECT_EQ(named("ROMA", BornIn::Stati), "(none)");
}

TEST(PlacesOfAnotherDatabase, AreAFailure) {
    MemoryDatabase staging({{"Tabella1", {{"Categoria", ColumnType::text}}}});
    EXPECT_THAT(PlaceList(staging).named(BornIn::Comuni, "ROMA"), Fails(Failure::notFound));
    EXPECT_THAT(PlaceList(staging).atOrAfter(BornIn::Stati, "F"), Fails(Failure::notFound));
}

}  // namespace
}  // namespace vorbano::test
