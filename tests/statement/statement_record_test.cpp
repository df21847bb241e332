// The record of a statement by type of election, against bytes laid out by hand, and the small files.

#include "statement/statement_record.h"

#include "statement_desk.h"
#include "support/cent.h"

namespace vorbano::test {
namespace {

/// 1,01 to 1,22 in the order of the lines on the screen.
StatementAmounts onScreen() {
    return {.onorari = cent(101),
            .straordinario = cent(102),
            .speciali = cent(103),
            .carico = cent(104),
            .carico2 = cent(105),
            .indennita = cent(106),
            .magMis = cent(107),
            .stampanti = cent(108),
            .totStato = cent(109),
            .totComune = cent(110),
            .totProv = cent(111),
            .trasporti = cent(112),
            .disciplina = cent(113),
            .tempoDeterminato = cent(114),
            .postali = cent(115),
            .cartRegione = cent(116),
            .cartStato = cent(117),
            .cabine = cent(118),
            .missioni = cent(119),
            .totale = cent(120),
            .acconti = cent(121),
            .differenza = cent(122)};
}
/// 9,00 to 9,18 in the order of the file.
std::string recordBefore() {
    return laidRendi({900, 901, 902, 903, 904, 905, 906, 907, 908, 909, 910, 911, 912, 913, 914, 915, 916, 917, 918});
}

struct Case {
    const char* type;
    TypedParts typed;
    std::string first;  ///< bytes of a first save
    std::string again;  ///< bytes over `recordBefore`
};
void PrintTo(const Case& one, std::ostream* out) { *out << one.type << one.typed.printed << one.typed.postal; }

std::vector<Case> cases() {
    const auto plain = [](int comune, int left, int right) {
        return laidRendi(
            {101, 102, 103, 104, 106, 0, 108, 112, 113, 114, 115, 119, 120, 121, 122, 118, comune, left, right});
    };
    const auto rotated = [](int comune, int left, int right) {
        return laidRendi(
            {101, 102, 103, 104, 106, 0, 108, 112, 113, 115, 118, 119, 120, 121, 122, 114, comune, left, right});
    };
    const auto divided = [](int stato, int comune, int left, int right) {
        return laidRendi(
            {101, 102, 103, 104, 106, stato, 108, 112, 113, 114, 115, 119, 120, 121, 122, 118, comune, left, right});
    };
    const std::string europee =
        laidRendi({101, 102, 103, 0, 106, 0, 108, 112, 113, 114, 115, 119, 120, 121, 122, 118, 0, 0, 0});
    const std::string byBody =
        laidRendi({101, 102, 103, 104, 106, 0, 108, 112, 113, 114, 115, 119, 120, 121, 122, 118, 105, 116, 117});
    std::vector<Case> all;
    for (const char* type : {"Politiche_Comunali", "Referendum", "Politiche", "Regionali", "Comunali"})
        all.push_back({type, {}, plain(0, 0, 0), plain(916, 917, 918)});
    for (const char* type : {"Provinciali", "Provinciali_Comunali"})
        all.push_back({type, {}, rotated(0, 0, 0), rotated(916, 917, 918)});
    for (const char* type : {"Europee_Comunali", "Referendum_Comunali"}) {
        all.push_back({type, {}, divided(0, 0, 0, 0), divided(0, 0, 0, 0)});
        all.push_back({type, {true, false}, divided(109, 110, 0, 0), divided(109, 110, 0, 0)});
        all.push_back({type, {false, true}, divided(0, 0, 116, 117), divided(0, 0, 116, 117)});
        all.push_back({type, {true, true}, divided(109, 110, 116, 117), divided(109, 110, 116, 117)});
    }
    all.push_back({"Europee", {}, europee, europee});
    for (const TypedParts typed : {TypedParts{}, TypedParts{true, true}})
        all.push_back({"Politiche_Regionali", typed, byBody, byBody});
    return all;
}

class StatementRecord : public ::testing::TestWithParam<Case> {
  protected:
    const StatementTerms& terms() { return *findStatementTerms(GetParam().type); }
};

TEST_P(StatementRecord, OfAFirstSaveHoldsZerosWhereTheTypeHasNothing) {
    EXPECT_EQ(toHex(bytesOf(recordOf(terms(), onScreen(), GetParam().typed, RendiRecord{}))), toHex(GetParam().first));
}

TEST_P(StatementRecord, KeepsWhatTheTypeDoesNotUse) {
    const auto before = recordFrom<RendiRecord>(recordBefore());
    EXPECT_EQ(toHex(bytesOf(recordOf(terms(), onScreen(), GetParam().typed, before))), toHex(GetParam().again));
}

TEST_P(StatementRecord, IsReadAsItWasWritten) {
    const auto written = recordFrom<RendiRecord>(GetParam().first);
    const auto read = amountsOf(terms(), written);
    EXPECT_EQ(toHex(bytesOf(recordOf(terms(), read, {true, true}, RendiRecord{}))), toHex(GetParam().first));
    EXPECT_EQ(read.tempoDeterminato, cent(114));
    EXPECT_EQ(read.postali, cent(115));
    EXPECT_EQ(read.cabine, cent(118));
}

INSTANTIATE_TEST_SUITE_P(OfEveryType, StatementRecord, ::testing::ValuesIn(cases()));

TEST(StatementRecordRead, OfTheSecondBodyIsItsOvertime) {
    const auto record = recordFrom<RendiRecord>(recordBefore());
    const auto bodies = amountsOf(*findStatementTerms("Politiche_Regionali"), record);
    EXPECT_EQ(bodies.carico2, cent(916));
    EXPECT_EQ(bodies.totComune, cent(0));
    EXPECT_EQ(bodies.cartRegione, cent(917));
    EXPECT_EQ(bodies.cartStato, cent(918));
    const auto divided = amountsOf(*findStatementTerms("Europee_Comunali"), record);
    EXPECT_EQ(divided.carico2, cent(0));
    EXPECT_EQ(divided.totStato, cent(905));
    EXPECT_EQ(divided.totComune, cent(916));
    const auto plain = amountsOf(*findStatementTerms("Comunali"), record);
    EXPECT_EQ(plain.totStato, cent(0));
    EXPECT_EQ(plain.totComune, cent(0));
    EXPECT_EQ(plain.cartRegione, cent(0));
    EXPECT_EQ(plain.cartStato, cent(0));
}

TEST(StatementRecordRead, OfTheProvinciaHasTheRotatedPlaces) {
    const auto record = recordFrom<RendiRecord>(recordBefore());
    for (const char* type : {"Provinciali", "Provinciali_Comunali"}) {
        const auto read = amountsOf(*findStatementTerms(type), record);
        EXPECT_EQ(read.postali, cent(909)) << type << ", offset 72";
        EXPECT_EQ(read.cabine, cent(910)) << type << ", offset 80";
        EXPECT_EQ(read.tempoDeterminato, cent(915)) << type << ", offset 120";
    }
}

class SmallFiles : public ::testing::Test {
  protected:
    /// Stores a statement of the type and gives Tprov.vbn and DivSt.vbn.
    std::array<std::string, 2> after(const char* type, const TypedParts& typed) {
        const Election election{type, someDay};
        EXPECT_TRUE(makeElectionFolder(files, election).ok());
        EXPECT_THAT(storeStatement(files, election, *findStatementTerms(type), onScreen(), typed), Succeeds());
        EXPECT_EQ(contentOf(files, statementPath(type, someDay, "Rendi.vbn")).size(), 152U) << type;
        return {contentOf(files, statementPath(type, someDay, "Tprov.vbn")),
                contentOf(files, statementPath(type, someDay, "DivSt.vbn"))};
    }
    MemoryFileSystem files;
};

TEST_F(SmallFiles, HoldTheMaggiorazioneOfFiveTypes) {
    for (const char* type : {"Provinciali", "Regionali", "Comunali", "Politiche_Comunali", "Politiche"}) {
        const auto [tprov, divSt] = after(type, {});
        EXPECT_EQ(toHex(tprov), toHex(amount(0) + amount(1, 7))) << type;
        EXPECT_EQ(divSt, noFile) << type;
    }
}

TEST_F(SmallFiles, HoldThePartsOfProvinciaAndComune) {
    const auto [tprov, divSt] = after("Provinciali_Comunali", {});
    EXPECT_EQ(toHex(tprov), toHex(amount(1, 11) + amount(1, 7)));
    EXPECT_EQ(toHex(divSt), toHex(amount(1, 9) + amount(1, 10)));
}

TEST_F(SmallFiles, AreNotWrittenForTheOtherTypesUnlessThePartsAreTyped) {
    for (const char* type :
         {"Europee", "Referendum", "Europee_Comunali", "Referendum_Comunali", "Politiche_Regionali"}) {
        const auto [tprov, divSt] = after(type, {});
        EXPECT_EQ(tprov, noFile) << type;
        EXPECT_EQ(divSt, noFile) << type;
    }
    for (const char* type : {"Europee_Comunali", "Referendum_Comunali", "Politiche_Regionali"}) {
        const auto [tprov, divSt] = after(type, {true, false});
        EXPECT_EQ(tprov, noFile) << type;
        EXPECT_EQ(toHex(divSt), toHex(amount(1, 9) + amount(1, 10))) << type;
    }
}

TEST_F(SmallFiles, KeepThePartOfTheProvinciaUnderAMaggiorazione) {
    ASSERT_TRUE(lay(files, statementPath("Comunali", someDay, "Tprov.vbn"), amount(5) + amount(6)));
    EXPECT_EQ(toHex(after("Comunali", {})[0]), toHex(amount(5) + amount(1, 7)));
}

}  // namespace
}  // namespace vorbano::test
