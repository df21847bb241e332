// The files of the polling stations byte by byte, both ways.

#include "records/station_files.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "election_files.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/results.h"

namespace vorbano::test {
namespace {

const Election europee{"Europee", "09-06-24"};
constexpr std::string_view acted = "21-06-24";

/// What stands behind the place of a person, from `at`: the fee is 119,41.
void layPerson(Sheet& sheet, std::size_t at) {
    sheet.at(at, padded("DE LUC\xC0", 30))
        .at(at + 30, padded("MARIA", 30))
        .at(at + 60, padded("Via Roma, 12", 60))
        .at(at + 120, "Segretario")
        .at(at + 130, "SI")
        .at(at + 132, "DLCMRA70A41F205X")
        .at(at + 148, amount(119, 41));
}

/// The second of five members of station 3 of 14, with `dateWidth` for the date of the run-off.
std::string memberBytes(std::size_t dateWidth = 0) {
    const std::size_t behind = 28 + dateWidth;
    Sheet sheet(216 + dateWidth);
    sheet.at(0, padded("Europee", 14)).at(14, "09-06-24").integersAt(22, {14, 3, 5});
    if (dateWidth != 0) sheet.at(28, padded(acted, dateWidth));
    sheet.at(behind, padded("Europee_Comunali", 30)).integersAt(behind + 30, {2});
    layPerson(sheet, behind + 32);
    return sheet.bytes();
}

/// The substitute of that member, shown behind the five members.
std::string substituteBytes(std::size_t dateWidth = 0) {
    const std::size_t behind = 30 + dateWidth;
    Sheet sheet(218 + dateWidth);
    sheet.at(0, padded("Europee", 14)).at(14, "09-06-24").integersAt(22, {14, 3, 2, 5});
    if (dateWidth != 0) sheet.at(30, padded(acted, dateWidth));
    sheet.at(behind, padded("Europee_Comunali", 30)).integersAt(behind + 30, {6});
    layPerson(sheet, behind + 32);
    return sheet.bytes();
}

StationHead head() {
    StationHead station;
    station.Tipo = "Europee";
    station.DataEle = "09-06-24";
    station.Seggi = 14;
    station.SonoSeggio = 3;
    return station;
}
StationPerson person() {
    StationPerson one;
    one.Cognome = "DE LUCÀ";
    one.Nome = "MARIA";
    one.Indirizzo = "Via Roma, 12";
    one.Qualifica = "Segretario";
    one.SiNo = "SI";
    one.CodFisc = "DLCMRA70A41F205X";
    one.Onorario = Currency::fromCents(11'941);
    return one;
}
MemberRecord member() { return {head(), 5, Text<30>("Europee_Comunali"), 2, person()}; }
SubstituteRecord substitute() { return {head(), 2, 5, Text<30>("Europee_Comunali"), 6, person()}; }

class StationFiles : public ::testing::Test {
  protected:
    StationFiles() { EXPECT_THAT(makeElectionFolder(files, europee), Succeeds()); }
    MemoryFileSystem files;
};

class MemberFile : public StationFiles, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(MemberFile, IsWrittenAtItsOffsets) {
    auto file = RecordFile<MemberRecord>::open(files, pathOf(GetParam()));
    ASSERT_TRUE(file.ok());
    ASSERT_THAT(file->append(MemberRecord{}), Succeeds());
    ASSERT_THAT(file->append(member()), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, pathOf(GetParam()))), toHex(nuls(216) + memberBytes()));
}

TEST_P(MemberFile, IsReadFromItsOffsets) {
    ASSERT_TRUE(lay(files, pathOf(GetParam()), nuls(216) + memberBytes()));
    const auto file = RecordFile<MemberRecord>::open(files, pathOf(GetParam()));
    ASSERT_TRUE(file.ok());
    EXPECT_THAT(file->count(), Gives(2));
    const auto read = file->read(2);
    ASSERT_TRUE(read.ok());
    EXPECT_EQ(read->station.Tipo.trimmed(), "Europee");
    EXPECT_EQ(read->station.DataEle.whole(), "09-06-24");
    EXPECT_EQ(read->station.Seggi, 14);
    EXPECT_EQ(read->station.SonoSeggio, 3);
    EXPECT_EQ(read->Composto, 5);
    EXPECT_EQ(read->Tariffa.trimmed(), "Europee_Comunali");
    EXPECT_EQ(read->Ordine, 2);
    EXPECT_EQ(read->person.Cognome.trimmed(), "DE LUCÀ");
    EXPECT_EQ(read->person.Nome.trimmed(), "MARIA");
    EXPECT_EQ(read->person.Indirizzo.trimmed(), "Via Roma, 12");
    EXPECT_EQ(read->person.Qualifica.trimmed(), "Segretario");
    EXPECT_EQ(read->person.SiNo.whole(), "SI");
    EXPECT_EQ(read->person.CodFisc.whole(), "DLCMRA70A41F205X");
    EXPECT_EQ(read->person.Onorario.units(), 1'194'100);
}

INSTANTIATE_TEST_SUITE_P(All, MemberFile, ::testing::Values(seggiFile, specialeFile, seggiRevFile));

class SubstituteFile : public StationFiles, public ::testing::WithParamInterface<std::string_view> {};

TEST_P(SubstituteFile, IsWrittenAtItsOffsets) {
    auto file = RecordFile<SubstituteRecord>::open(files, pathOf(GetParam()));
    ASSERT_TRUE(file.ok());
    ASSERT_THAT(file->append(SubstituteRecord{}), Succeeds());
    ASSERT_THAT(file->append(substitute()), Succeeds());
    EXPECT_EQ(toHex(contentOf(files, pathOf(GetParam()))), toHex(nuls(218) + substituteBytes()));
}

TEST_P(SubstituteFile, IsReadFromItsOffsets) {
    ASSERT_TRUE(lay(files, pathOf(GetParam()), nuls(218) + substituteBytes()));
    const auto file = RecordFile<SubstituteRecord>::open(files, pathOf(GetParam()));
    ASSERT_TRUE(file.ok());
    const auto read = file->read(2);
    ASSERT_TRUE(read.ok());
    EXPECT_EQ(read->station.SonoSeggio, 3);
    EXPECT_EQ(read->Sostituito, 2);
    EXPECT_EQ(read->Composto, 5);
    EXPECT_EQ(read->Tariffa.trimmed(), "Europee_Comunali");
    EXPECT_EQ(read->Ordine, 6);
    EXPECT_EQ(read->person.Cognome.trimmed(), "DE LUCÀ");
    EXPECT_EQ(read->person.Onorario.units(), 1'194'100);
}

INSTANTIATE_TEST_SUITE_P(All, SubstituteFile,
                         ::testing::Values(sosSeggiFile, sosSpecFile, revSosSeggiFile, revSosSpecFile));

/// A kind of station in a round, and how wide its records are.
struct FilesOfRound {
    StationKind kind;
    Round round;
    std::string_view members;
    std::string_view substitutes;
    std::size_t dateWidth;
};
void PrintTo(const FilesOfRound& each, std::ostream* out) { *out << each.members; }

class EachRound : public StationFiles, public ::testing::WithParamInterface<FilesOfRound> {};

TEST_P(EachRound, HasItsFiles) {
    EXPECT_EQ(membersFile(GetParam().kind, GetParam().round), GetParam().members);
    EXPECT_EQ(substitutesFile(GetParam().kind, GetParam().round), GetParam().substitutes);
}

TEST_P(EachRound, GivesTheMembersInTheFormOfTheFirstRound) {
    const std::size_t dateWidth = GetParam().dateWidth;
    ASSERT_TRUE(lay(files, pathOf(GetParam().members), nuls(216 + dateWidth) + memberBytes(dateWidth)));
    const auto members = readMembers(files, europee, GetParam().kind, GetParam().round);
    ASSERT_TRUE(members.ok());
    ASSERT_EQ(members->size(), 2U);
    EXPECT_EQ(toHex(bytesOf((*members)[0])), toHex(nuls(216)));
    EXPECT_EQ(toHex(bytesOf((*members)[1])), toHex(memberBytes()));
}

TEST_P(EachRound, GivesTheSubstitutesInTheFormOfTheFirstRound) {
    const std::size_t dateWidth = GetParam().dateWidth;
    ASSERT_TRUE(lay(files, pathOf(GetParam().substitutes), nuls(218 + dateWidth) + substituteBytes(dateWidth)));
    const auto substitutes = readSubstitutes(files, europee, GetParam().kind, GetParam().round);
    ASSERT_TRUE(substitutes.ok());
    ASSERT_EQ(substitutes->size(), 2U);
    EXPECT_EQ(toHex(bytesOf((*substitutes)[0])), toHex(nuls(218)));
    EXPECT_EQ(toHex(bytesOf((*substitutes)[1])), toHex(substituteBytes()));
}

TEST_P(EachRound, IsEmptyWithoutFilesAndLeavesThemBehind) {
    const auto members = readMembers(files, europee, GetParam().kind, GetParam().round);
    const auto substitutes = readSubstitutes(files, europee, GetParam().kind, GetParam().round);
    ASSERT_TRUE(members.ok() && substitutes.ok());
    EXPECT_TRUE(members->empty());
    EXPECT_TRUE(substitutes->empty());
    EXPECT_EQ(contentOf(files, pathOf(GetParam().members)), "");
    EXPECT_EQ(contentOf(files, pathOf(GetParam().substitutes)), "");
}

TEST_P(EachRound, OfAnElectionWithoutAFolderIsAFailure) {
    const Election other{"Europee", "01-01-24"};
    EXPECT_THAT(readMembers(files, other, GetParam().kind, GetParam().round), Fails(Failure::missingFolder));
    EXPECT_THAT(readSubstitutes(files, other, GetParam().kind, GetParam().round), Fails(Failure::missingFolder));
    const Election climbing{"..", "01-01-24"};
    EXPECT_THAT(readMembers(files, climbing, GetParam().kind, GetParam().round), Fails(Failure::badName));
}

INSTANTIATE_TEST_SUITE_P(
    All, EachRound,
    ::testing::Values(FilesOfRound{StationKind::normal, Round::first, "Seggi.vbn", "SosSeggi.vbn", 0},
                      FilesOfRound{StationKind::normal, Round::runOff, "SegSuf.vbn", "SosSegSuf.vbn", 30},
                      FilesOfRound{StationKind::special, Round::first, "Speciale.vbn", "SosSpec.vbn", 0},
                      FilesOfRound{StationKind::special, Round::runOff, "SpecSufr.vbn", "SspecSufr.vbn", 8}));

TEST_F(StationFiles, AreFoundInAnySpelling) {
    ASSERT_TRUE(lay(files, pathOf("Segsuf.vbn"), memberBytes(30)));
    ASSERT_TRUE(lay(files, pathOf("Sspecsufr.VBN"), substituteBytes(8)));
    const auto members = readMembers(files, europee, StationKind::normal, Round::runOff);
    const auto substitutes = readSubstitutes(files, europee, StationKind::special, Round::runOff);
    ASSERT_TRUE(members.ok() && substitutes.ok());
    EXPECT_EQ(members->size(), 1U);
    EXPECT_EQ(substitutes->size(), 1U);
}

TEST_F(StationFiles, TheDateOfTheRunOffIsWiderInTheNormalFiles) {
    SegSufRecord normal{};
    normal.Databall = "21-06-24";
    SpecSufrRecord special{};
    special.Databall = "21-06-24";
    EXPECT_EQ(bytesOf(normal).substr(28, 30), padded("21-06-24", 30));
    EXPECT_EQ(bytesOf(special).substr(28, 8), "21-06-24");
}

TEST_F(StationFiles, AnElectionTypeIsCutToTheWidthOfItsFieldAndTheTariffIsNot) {
    MemberRecord record{};
    record.station.Tipo = "Politiche_Comunali";
    record.Tariffa = "Politiche_Comunali";
    EXPECT_EQ(record.station.Tipo.whole(), "Politiche_Comu");
    EXPECT_EQ(record.Tariffa.trimmed(), "Politiche_Comunali");
    EXPECT_EQ(bytesOf(record).substr(0, 14), "Politiche_Comu");
}

TEST_F(StationFiles, ATextLongerThanItsFieldIsCutOnTheRight) {
    MemberRecord record{};
    record.person.Cognome = "ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJ";
    record.person.SiNo = "SIMO";
    EXPECT_EQ(bytesOf(record).substr(60, 30), "ABCDEFGHIJKLMNOPQRSTUVWXYZABCD");
    EXPECT_EQ(bytesOf(record).substr(190, 2), "SI");
}

}  // namespace
}  // namespace vorbano::test
