#include "platform/qt/installation.h"

#include <QSqlQuery>
#include <fstream>
#include <map>

#include "file_content.h"
#include "platform/qt/places.h"
#include "platform/qt/sqlite_database.h"
#include "platform/staging_tables.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

namespace fs = std::filesystem;

class Installation : public ::testing::Test {
  protected:
    /// Every file under the root with what it holds.
    [[nodiscard]] std::map<std::string, std::string> everything() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(root_)) {
            if (entry.is_regular_file()) files[fs::relative(entry.path(), root_).string()] = fileContent(entry.path());
        }
        return files;
    }
    Result<> lay() { return layInstallation(root_.string()); }

    TemporaryFolder folder_;
    fs::path root_ = folder_.path() / "ufficio" / "Vorbanet";
};

TEST_F(Installation, LaysEveryDeliveredFileUnderANewRoot) {
    ASSERT_THAT(lay(), Succeeds());
    for (const char* file : {"impstr.rpt", "impstrq.rpt", "impstrp.rpt", "tariffe.rpt", "tariffe2.rpt", "dbStampa.mdb",
                             "Comuni.mdb", "parti/intestazione.part", "parti/firma.part"}) {
        EXPECT_TRUE(fs::is_regular_file(root_ / "Stampe" / file)) << file;
    }
    EXPECT_TRUE(fs::is_regular_file(root_ / "Params" / "Comuni.dat"));
    EXPECT_FALSE(fs::exists(root_ / "Elezioni")) << "election folders are made by the screens";
}

TEST_F(Installation, LeavesNoCompanionBehind) {
    ASSERT_THAT(lay(), Succeeds());
    for (const auto& [name, bytes] : everything()) {
        EXPECT_FALSE(name.ends_with(".nuovo") || name.ends_with("-journal")) << name;
    }
}

TEST_F(Installation, ReplacesACompanionThatAPowerCutLeft) {
    fs::create_directories(root_ / "Stampe");
    std::ofstream(root_ / "Stampe" / "dbStampa.mdb.nuovo") << "a metà";
    ASSERT_THAT(lay(), Succeeds());
    EXPECT_FALSE(fs::exists(root_ / "Stampe" / "dbStampa.mdb.nuovo"));
    EXPECT_THAT(SqliteDatabase((root_ / "Stampe" / "dbStampa.mdb").string()).check(), Succeeds());
}

TEST_F(Installation, ChangesNothingTheSecondTime) {
    ASSERT_THAT(lay(), Succeeds());
    const auto before = everything();
    ASSERT_THAT(lay(), Succeeds());
    EXPECT_EQ(everything(), before);
}

TEST_F(Installation, LeavesWhatIsThereUntouchedWhateverTheCaseOfItsName) {
    const std::map<std::string, std::string> own = {{"STAMPE/IMPSTR.RPT", "[html]\nnostro\n"},
                                                    {"STAMPE/DBSTAMPA.MDB", "formato di prima"},
                                                    {"STAMPE/comuni.MDB", "elenco di prima"},
                                                    {"params/COMUNI.DAT", "sessanta"}};
    fs::create_directories(root_ / "STAMPE");
    fs::create_directories(root_ / "params");
    for (const auto& [name, bytes] : own) std::ofstream(root_ / name, std::ios::binary) << bytes;
    ASSERT_THAT(lay(), Succeeds());
    const auto files = everything();
    for (const auto& [name, bytes] : own) {
        ASSERT_TRUE(files.contains(name));
        EXPECT_EQ(files.at(name), bytes);
    }
    EXPECT_TRUE(files.contains("STAMPE/tariffe.rpt")) << "what is missing is added in the folder that is there";
    EXPECT_FALSE(fs::exists(root_ / "Stampe"));
    EXPECT_FALSE(fs::exists(root_ / "Params"));
}

TEST_F(Installation, AddsTheListOfNamesBesideAnExistingDatabaseOfPlaces) {
    fs::create_directories(root_ / "Stampe");
    std::ofstream(root_ / "Stampe" / "Comuni.mdb") << "elenco di prima";
    ASSERT_THAT(lay(), Succeeds());
    EXPECT_EQ(fs::file_size(root_ / "Params" / "Comuni.dat"), 7899U * 60);
}

TEST_F(Installation, MakesTheTwelveTablesWithAllTheirFields) {
    ASSERT_THAT(lay(), Succeeds());
    SqliteDatabase database((root_ / "Stampe" / "dbStampa.mdb").string());
    for (const TableInfo& table : stagingTables()) {
        EXPECT_THAT(database.count(table.name), Gives(0)) << table.name;
        Row row;
        for (const Column& column : table.columns) row.setWhole(column.name, 1);
        EXPECT_THAT(database.append(table.name, row), Succeeds()) << table.name;
    }
}

TEST_F(Installation, MakesTheReferenceDatabaseOfAllPlaces) {
    ASSERT_THAT(lay(), Succeeds());
    SqliteDatabase database((root_ / "Stampe" / "Comuni.mdb").string());
    EXPECT_THAT(database.count("Comuni"), Gives(13335));
    EXPECT_THAT(database.count("Stati"), Gives(335));

    const auto first = database.read("Comuni", 1);
    ASSERT_THAT(first, Succeeds());
    EXPECT_EQ(*first->find("COMU_DESCR"), Value(std::string("ABANO BAGNI")));
    EXPECT_EQ(*first->find("COMU_PROV"), Value(std::string("PD")));
    EXPECT_EQ(*first->find("COMU_COD"), Value(std::string("A001")));
    EXPECT_EQ(*first->find("ATTIVO"), Value(std::int64_t{0}));
    const auto state = database.read("Stati", 1);
    ASSERT_THAT(state, Succeeds());
    EXPECT_EQ(*state->find("STATI_DESCR"), Value(std::string("AFGHANISTAN")));
    EXPECT_EQ(*state->find("STATI_PROV"), Value(std::string("EE")));
    EXPECT_EQ(*state->find("STATI_COD"), Value(std::string("Z200")));
}

TEST_F(Installation, SeeksPlacesThroughAnIndex) {
    ASSERT_THAT(lay(), Succeeds());
    SqliteDatabase database((root_ / "Stampe" / "Comuni.mdb").string());
    for (const char* condition : {"Comuni WHERE COMU_DESCR = 'ROMA'", "Comuni WHERE COMU_COD = 'H501'",
                                  "Stati WHERE STATI_DESCR = 'FRANCIA'", "Stati WHERE STATI_COD = 'Z110'"}) {
        QSqlQuery query(*database.connection());
        ASSERT_TRUE(query.exec(QString("EXPLAIN QUERY PLAN SELECT * FROM ") + condition) && query.next()) << condition;
        EXPECT_TRUE(query.value(3).toString().contains("USING INDEX")) << condition;
    }
}

TEST_F(Installation, ListsTheNamesInForceInSixtyBytesEach) {
    ASSERT_THAT(lay(), Succeeds());
    const std::string list = fileContent(root_ / "Params" / "Comuni.dat");
    ASSERT_EQ(list.size(), 7899U * 60);
    EXPECT_EQ(list.substr(0, 60), "ABANO TERME" + std::string(49, ' ')) << "ABANO BAGNI, before it, is past";
    EXPECT_EQ(list.find_first_of("\n\t\0", 0, 3), std::string::npos);
}

TEST_F(Installation, FailsWithTheFileThatCannotBeWritten) {
    fs::create_directories(root_);
    std::ofstream(root_ / "Stampe") << "un file al posto della cartella";
    const auto laid = lay();
    ASSERT_THAT(laid, Fails(Failure::refused));
    EXPECT_EQ(laid.error().subject, "Stampe");
    EXPECT_THAT(layInstallation(""), Fails(Failure::badName));
}

TEST(Places, AreReadWithTheirFileAndLineWhenTheyAreNone) {
    const auto read = readPlaces("codice\tprovincia\tnome\tattivo\nH501\tRM\tROMA\t1\nH501\tRM\tROMA\n", "comuni.tsv");
    ASSERT_THAT(read, Fails(Failure::damaged));
    EXPECT_EQ(read.error().subject, "comuni.tsv:3");
    EXPECT_THAT(readPlaces("titolo\nA\tB\tC\tforse\n", "stati.tsv"), Fails(Failure::damaged));
}

TEST(Places, StandInTheListAsBlankPaddedRecords) {
    const std::vector<Place> places = {
        {"H501", "RM", "ROMA", true}, {"D712", "FO", "FORMIGNANO", false}, {"D704", "FC", "FORLI'", true}};
    EXPECT_EQ(namesInForce(places).toStdString(), "ROMA" + std::string(56, ' ') + "FORLI'" + std::string(54, ' '));
}

}  // namespace vorbano::test
