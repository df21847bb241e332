#include "storage/election.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "storage/failing_file_system.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::contentOf;
using test::Fails;
using test::Gives;
using test::lay;
using test::noFile;
using test::Succeeds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ElectionTypes, AreElevenInTheOrderOfMostScreens) {
    std::vector<std::string_view> names;
    names.reserve(electionTypes.size());
    for (const ElectionType& type : electionTypes) names.push_back(type.name);
    EXPECT_THAT(names, ElementsAre("Europee", "Europee_Comunali", "Provinciali", "Comunali", "Referendum", "Politiche",
                                   "Regionali", "Provinciali_Comunali", "Politiche_Comunali", "Politiche_Regionali",
                                   "Referendum_Comunali"));
}

TEST(ElectionTypes, OfTheAuthorisationHavePoliticheComunaliSixthAndPoliticheNinth) {
    EXPECT_THAT(
        electionTypesForAuthorisation,
        ElementsAre("Europee", "Europee_Comunali", "Provinciali", "Comunali", "Referendum", "Politiche_Comunali",
                    "Regionali", "Provinciali_Comunali", "Politiche", "Politiche_Regionali", "Referendum_Comunali"));
}

TEST(ElectionTypes, WithAnUnderscoreAreTwoElectionsTogether) {
    for (const ElectionType& type : electionTypes) {
        EXPECT_EQ(type.combined, type.name.find('_') != std::string_view::npos) << type.name;
    }
}

TEST(ElectionTypes, AreFoundByTheirTrimmedName) {
    ASSERT_NE(findElectionType(" Politiche_Regionali  "), nullptr);
    EXPECT_EQ(findElectionType(" Politiche_Regionali  ")->name, "Politiche_Regionali");
    EXPECT_EQ(findElectionType("Circoscrizionali"), nullptr);
    EXPECT_EQ(findElectionType("Politiche_Comu"), nullptr) << "the name as it is cut in the station records";
    EXPECT_EQ(findElectionType(""), nullptr);
}

TEST(ElectionFolder, IsMadeOfTheTypeAndTheDate) {
    const Election election{"Europee", "09-06-24"};
    EXPECT_THAT(election.folder(), Gives(std::string("Elezioni/Europee/09-06-24")));
    EXPECT_THAT(election.file("Meirin.vbn"), Gives(std::string("Elezioni/Europee/09-06-24/Meirin.vbn")));
    EXPECT_THAT(election.employeeFile(), Gives(std::string("Elezioni/Europee/09-06-24/09-06-24.vbn")));
}

TEST(ElectionFolder, DropsTheBlanksOfARecordField) {
    const Election election{"Europee             ", "09-06-24 "};
    EXPECT_THAT(election.employeeFile(), Gives(std::string("Elezioni/Europee/09-06-24/09-06-24.vbn")));
}

TEST(ElectionFolder, OfACombinedTypeIsAnotherThanThatOfTheSingleOne) {
    EXPECT_THAT((Election{"Europee_Comunali", "09-06-24"}.folder()),
                Gives(std::string("Elezioni/Europee_Comunali/09-06-24")));
}

TEST(ElectionFolder, OfANameThatIsNoDateIsAFolderLikeAnyOther) {
    EXPECT_THAT((Election{"Europee", "prove"}.folder()), Gives(std::string("Elezioni/Europee/prove")));
}

TEST(ElectionFolder, IsRefusedWhereTypeOrDateAreEmpty) {
    for (const Election& election :
         {Election{"", "09-06-24"}, Election{"Europee", ""}, Election{"  ", "09-06-24"}, Election{"Europee", "   "}}) {
        EXPECT_THAT(election.folder(), Fails(Failure::badName));
        EXPECT_THAT(election.file("Meirin.vbn"), Fails(Failure::badName));
        EXPECT_THAT(election.employeeFile(), Fails(Failure::badName));
    }
}

TEST(ElectionFolder, IsRefusedWhereItWouldClimbOrHoldASeparator) {
    for (const char* text :
         {"..", ".", "../..", "9/6/24", "//", "a/b", "a\\b", "..\\..", "C:", "/etc", "09-06-24*", "a\nb"}) {
        EXPECT_THAT((Election{"Europee", text}.folder()), Fails(Failure::badName)) << text;
        EXPECT_THAT((Election{"Europee", text}.employeeFile()), Fails(Failure::badName)) << text;
        EXPECT_THAT((Election{text, "09-06-24"}.folder()), Fails(Failure::badName)) << text;
    }
    for (const char* name : {"", "..", "../Meirin.vbn", "a/b", "a\\b"}) {
        EXPECT_THAT((Election{"Europee", "09-06-24"}.file(name)), Fails(Failure::badName)) << name;
    }
}

TEST(ElectionYear, IsThePlainScanOfTheSeventhAndEighthCharacter) {
    const std::vector<std::pair<std::string, int>> years = {
        {"09-06-24", 24}, {"25-05-13", 13}, {"31-12-99", 99}, {"01-01-00", 0}, {"09-06-2024", 20},
        {"9-6-24", 0},    {"", 0},          {"09-06-", 0},    {"09-06-4", 4},  {"abcdefgh", 0},
    };
    for (const auto& [date, year] : years) EXPECT_EQ((Election{"Europee", date}.yearOfCentury()), year) << date;
}

constexpr PeriodRule rules[] = {PeriodRule::elimina, PeriodRule::modDate, PeriodRule::stampe};

TEST(Periods, OneToThreeAlwaysExist) {
    for (const ElectionType& type : electionTypes) {
        for (const char* date : {"25-05-13", "09-06-24"}) {
            for (const PeriodRule rule : rules) {
                for (int period = 1; period <= 3; ++period) {
                    EXPECT_TRUE((Election{std::string(type.name), date}.hasPeriod(period, rule)));
                }
            }
        }
    }
}

TEST(Periods, FromTwoThousandAndFourteenOnAreThree) {
    for (const ElectionType& type : electionTypes) {
        for (const char* date : {"25-05-14", "09-06-24", "31-12-99"}) {
            for (const PeriodRule rule : rules) {
                for (const int period : {4, 5, 0, 6, -1}) {
                    EXPECT_FALSE((Election{std::string(type.name), date}.hasPeriod(period, rule)))
                        << type.name << date << period;
                }
            }
        }
    }
}

/// Who had a fourth and a fifth period before 2014, on each of the three kinds of screen.
struct Before2014 {
    std::string type;
    bool fourth[3];
    bool fifth;
};
const std::vector<Before2014> before2014 = {
    {"Europee", {true, true, true}, false},
    {"Europee_Comunali", {true, true, true}, true},
    {"Provinciali", {true, true, true}, false},
    {"Comunali", {true, true, false}, false},
    {"Referendum", {false, true, true}, false},
    {"Politiche", {false, false, false}, false},
    {"Regionali", {true, true, true}, false},
    {"Provinciali_Comunali", {true, true, true}, false},
    {"Politiche_Comunali", {true, true, true}, false},
    {"Politiche_Regionali", {true, true, true}, true},
    {"Referendum_Comunali", {true, true, true}, false},
};

TEST(Periods, BeforeTwoThousandAndFourteenFollowTheTypeAndTheScreen) {
    ASSERT_EQ(before2014.size(), electionTypes.size());
    for (const Before2014& row : before2014) {
        for (const char* date : {"25-05-13", "01-01-00"}) {
            const Election election{row.type, date};
            for (std::size_t at = 0; at < std::size(rules); ++at) {
                EXPECT_EQ(election.hasPeriod(4, rules[at]), row.fourth[at]) << row.type << " rule " << at;
                EXPECT_EQ(election.hasPeriod(5, rules[at]), row.fifth) << row.type << " rule " << at;
                EXPECT_FALSE(election.hasPeriod(6, rules[at]));
                EXPECT_FALSE(election.hasPeriod(0, rules[at]));
            }
        }
    }
}

TEST(Periods, OfATypeWithTrailingBlanksAreTheSame) {
    EXPECT_TRUE((Election{"Europee     ", "25-05-13"}.hasPeriod(4, PeriodRule::elimina)));
}

TEST(NewElection, HasItsThreeFolders) {
    MemoryFileSystem files;
    const Election election{"Europee", "09-06-24"};
    EXPECT_THAT(makeElectionFolder(files, election), Succeeds());
    EXPECT_THAT(makeElectionFolder(files, election), Succeeds()) << "existing levels do no harm";
    EXPECT_THAT(makeElectionFolder(files, {"Europee", "25-05-14"}), Succeeds());
    EXPECT_THAT(TipoElezioni(files), ElementsAre("Europee"));
    EXPECT_THAT(DataEle(files, "Europee"), ElementsAre("09-06-24", "25-05-14"));
}

TEST(NewElection, WithNamesThatClimbIsNotMade) {
    MemoryFileSystem files;
    EXPECT_THAT(makeElectionFolder(files, {"..", "09-06-24"}), Fails(Failure::badName));
    EXPECT_THAT(makeElectionFolder(files, {"Europee", "9/6/24"}), Fails(Failure::badName));
    EXPECT_THAT(files.list("Elezioni"), Fails(Failure::missingFolder));
}

TEST(NewElection, TellsWhichFolderCouldNotBeMade) {
    MemoryFileSystem memory;
    FailingFileSystem files(memory);
    const std::vector<std::string> subjects = {"Elezioni", "Elezioni/Europee", "Elezioni/Europee/09-06-24"};
    for (std::size_t at = 0; at < subjects.size(); ++at) {
        files.failOnce(static_cast<int>(at) + 1);
        const auto made = makeElectionFolder(files, {"Europee", "09-06-24"});
        ASSERT_THAT(made, Fails(Failure::device));
        EXPECT_EQ(made.error().subject, subjects[at]);
    }
}

TEST(ElectionLists, AreEmptyWhereNothingWasEverStored) {
    MemoryFileSystem files;
    EXPECT_THAT(TipoElezioni(files), IsEmpty());
    EXPECT_THAT(DataEle(files, "Europee"), IsEmpty());
}

TEST(ElectionLists, ShowTheFoldersOnDiskAndNoFiles) {
    MemoryFileSystem files;
    ASSERT_TRUE(lay(files, "Elezioni/Europee/09-06-24/09-06-24.vbn", ""));
    ASSERT_TRUE(lay(files, "Elezioni/Europee/prove/x", ""));
    ASSERT_TRUE(lay(files, "Elezioni/Europee/note.txt", ""));
    ASSERT_TRUE(lay(files, "Elezioni/Regionali/x", ""));
    ASSERT_TRUE(lay(files, "Elezioni/leggimi.txt", ""));
    EXPECT_THAT(TipoElezioni(files), ElementsAre("Europee", "Regionali"));
    EXPECT_THAT(DataEle(files, "Europee  "), ElementsAre("09-06-24", "prove"))
        << "a folder that is no date appears too";
    EXPECT_THAT(DataEle(files, "Regionali"), IsEmpty());
}

TEST(ElectionLists, OfATypeThatWouldLeaveItsFolderAreEmpty) {
    MemoryFileSystem files;
    ASSERT_TRUE(lay(files, "Elezioni/Europee/09-06-24/09-06-24.vbn", ""));
    for (const char* type : {"", "..", ".", "Europee/09-06-24", "/", "Europee\\"}) {
        EXPECT_THAT(DataEle(files, type), IsEmpty()) << type;
    }
}

TEST(Installation, KeepsElectionsOfOneDateApart) {
    MemoryFileSystem files;
    const auto single = Election{"Europee", "09-06-24"}.file("Rendi.vbn");
    const auto combined = Election{"Europee_Comunali", "09-06-24"}.file("Rendi.vbn");
    ASSERT_TRUE(single && combined);
    ASSERT_TRUE(lay(files, *single, "single"));
    EXPECT_EQ(contentOf(files, *combined), noFile);
}

}  // namespace
}  // namespace vorbano
