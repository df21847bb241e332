#include "platform/qt/older_places.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <fstream>
#include <memory>

#include "file_content.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// An older list as the system's driver would show it, here behind the toolkit's own driver.
class AnOlderList : public ::testing::Test {
  protected:
    AnOlderList() {
        execute("CREATE TABLE Comuni (COMU_DESCR TEXT, COMU_PROV TEXT, COMU_COD TEXT)");
        execute("CREATE TABLE Stati (STATI_DESCR TEXT, STATI_PROV TEXT, STATI_COD TEXT, ATTIVO BOOLEAN)");
        execute("CREATE TABLE [Vecchi Nomi] (Nome TEXT, Anno INTEGER, Quota DOUBLE)");
    }
    ~AnOlderList() override {
        list_.reset();
        QSqlDatabase::database(connection).close();
        QSqlDatabase::removeDatabase(connection);
    }

    void execute(const QString& statement) {
        if (!QSqlDatabase::contains(connection)) {
            QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connection);
            database.setDatabaseName(file());
            ASSERT_TRUE(database.open());
        }
        QSqlQuery query(QSqlDatabase::database(connection));
        ASSERT_TRUE(query.exec(statement)) << statement.toStdString();
    }
    void addComune(const QString& name, const QString& province, const QString& code) {
        execute("INSERT INTO Comuni VALUES ('" + QString(name).replace('\'', "''") + "','" + province + "','" + code +
                "')");
    }
    [[nodiscard]] QString file() const { return QString::fromStdString(path_.string()); }
    OlderPlaces& list() {
        if (!list_) list_ = std::make_unique<OlderPlaces>(path_.string(), OlderDoors{"QSQLITE", {file()}});
        return *list_;
    }
    /// The codes that a search finds, in order.
    std::vector<std::string> codes(std::string_view text, int rows) {
        const auto sought = list().seek("Comuni", "COMU_DESCR", text, rows);
        if (!sought) return {"(failure)"};
        std::vector<std::string> found;
        for (const Row& row : *sought) found.push_back(shownValue(*row.find("COMU_COD")));
        return found;
    }

    const QString connection = "older-list";
    TemporaryFolder folder_;
    std::filesystem::path path_ = folder_.path() / "Comuni.mdb";
    std::unique_ptr<OlderPlaces> list_;
};

TEST_F(AnOlderList, IsCountedAndReadInTheOrderOfItsRows) {
    addComune("ROMA", "RM", "H501");
    addComune("CANTU'", "CO", "B639");
    EXPECT_THAT(list().check(), Succeeds());
    EXPECT_THAT(list().count("Comuni"), Gives(2));
    EXPECT_THAT(list().count("Stati"), Gives(0));
    const auto second = list().read("Comuni", 2);
    ASSERT_THAT(second, Succeeds());
    EXPECT_EQ(*second->find("COMU_DESCR"), Value(std::string("CANTU'")));
    EXPECT_EQ(*second->find("COMU_PROV"), Value(std::string("CO")));
    EXPECT_EQ(*second->find("COMU_COD"), Value(std::string("B639")));
    EXPECT_EQ(second->find("ATTIVO"), nullptr) << "an older list does not say which place is in force";
    EXPECT_THAT(list().read("Comuni", 0), Fails(Failure::notFound));
    EXPECT_THAT(list().read("Comuni", 3), Fails(Failure::notFound));
}

TEST_F(AnOlderList, IsSoughtAtANameOrBehindItInTheOrderOfNames) {
    addComune("ROMANA", "SS", "H507");
    addComune("L'AQUILA", "AQ", "A345");
    addComune("ROMA", "RM", "H501");
    addComune("LABICO", "RM", "E392");
    EXPECT_THAT(codes("ROMA", 9), ElementsAre("H501", "H507"));
    EXPECT_THAT(codes("ROMA", 1), ElementsAre("H501"));
    EXPECT_THAT(codes("ROMAN", 9), ElementsAre("H507"));
    EXPECT_THAT(codes("L'A", 2), ElementsAre("A345", "E392")) << "an apostrophe comes before every letter";
    EXPECT_THAT(codes("", 9), ElementsAre("A345", "E392", "H501", "H507"));
    EXPECT_THAT(codes("ROMB", 9), IsEmpty());
    EXPECT_THAT(codes("ROMA", 0), IsEmpty());
}

TEST_F(AnOlderList, GivesNamesakesInTheOrderOfItsRows) {
    addComune("CASTRO", "LE", "M261");
    addComune("ABBADIA", "CO", "A002");
    addComune("CASTRO", "BG", "C336");
    EXPECT_THAT(codes("CASTRO", 9), ElementsAre("M261", "C336"));
}

TEST_F(AnOlderList, IsSoughtByOneFieldAndThenByAnother) {
    addComune("ROMA", "RM", "H501");
    addComune("MILANO", "MI", "F205");
    EXPECT_THAT(codes("M", 1), ElementsAre("F205"));
    const auto byCode = list().seek("comuni", "comu_cod", "G", 1);
    ASSERT_THAT(byCode, Succeeds());
    ASSERT_EQ(byCode->size(), 1U);
    EXPECT_EQ(*byCode->front().find("COMU_DESCR"), Value(std::string("ROMA")));
    EXPECT_THAT(codes("M", 1), ElementsAre("F205"));
}

TEST_F(AnOlderList, KeepsTextsWholeNumbersAndFractionsAndLeavesTheRestUnset) {
    execute("INSERT INTO [Vecchi Nomi] VALUES ('FORLÌ', 1861, 0.5), (NULL, 12, NULL)");
    const auto first = list().read("vecchi nomi", 1);
    ASSERT_THAT(first, Succeeds());
    EXPECT_EQ(*first->find("Nome"), Value(std::string("FORLÌ")));
    EXPECT_EQ(*first->find("Anno"), Value(std::int64_t{1861}));
    EXPECT_EQ(*first->find("Quota"), Value(0.5));
    EXPECT_EQ(list().read("Vecchi Nomi", 2)->find("Nome"), nullptr);
    const auto named = list().seek("Vecchi Nomi", "Nome", "", 9);
    ASSERT_THAT(named, Succeeds());
    EXPECT_EQ(named->size(), 1U) << "a row without a name is behind no text";
}

TEST_F(AnOlderList, HasNoOtherTablesAndFieldsAndNoNameIsACommand) {
    addComune("ROMA", "RM", "H501");
    EXPECT_THAT(list().count("Province"), Fails(Failure::notFound));
    EXPECT_THAT(list().count("Comuni] WHERE 1=0 --"), Fails(Failure::notFound));
    EXPECT_THAT(list().read("Province", 1), Fails(Failure::notFound));
    EXPECT_THAT(list().seek("Province", "COMU_DESCR", "", 1), Fails(Failure::notFound));
    EXPECT_THAT(list().seek("Comuni", "ATTIVO", "", 1), Fails(Failure::notFound));
    EXPECT_THAT(codes("ROMA' OR 'A' = 'A", 9), IsEmpty());
}

TEST_F(AnOlderList, RefusesToBeWritten) {
    addComune("ROMA", "RM", "H501");
    const std::string before = fileContent(path_);
    EXPECT_THAT(list().begin(), Fails(Failure::refused));
    EXPECT_THAT(list().append("Comuni", Row().setText("COMU_DESCR", "MILANO")), Fails(Failure::refused));
    EXPECT_THAT(list().removeFirst("Comuni", 1), Fails(Failure::refused));
    EXPECT_THAT(list().removeAll("Comuni"), Fails(Failure::refused));
    const auto committed = list().commit();
    ASSERT_THAT(committed, Fails(Failure::refused));
    EXPECT_EQ(committed.error().subject, "Comuni.mdb");
    EXPECT_THAT(list().count("Comuni"), Gives(1));
    EXPECT_EQ(fileContent(path_), before);
}

TEST_F(AnOlderList, IsReadOnceAndNotHeld) {
    addComune("ROMA", "RM", "H501");
    EXPECT_THAT(codes("ROMA", 1), ElementsAre("H501"));
    std::filesystem::rename(path_, folder_.path() / "via.mdb");
    EXPECT_THAT(list().check(), Succeeds());
    EXPECT_THAT(codes("ROMA", 1), ElementsAre("H501"));
    EXPECT_THAT(list().count("Stati"), Fails(Failure::notFound)) << "this table was not needed before";
}

TEST_F(AnOlderList, IsOpenedByTheFirstDoorThatOpens) {
    addComune("ROMA", "RM", "H501");
    const QString shut = QString::fromStdString((folder_.path() / "nessuna" / "x.mdb").string());
    OlderPlaces second(path_.string(), {"QSQLITE", {shut, file()}});
    EXPECT_THAT(second.count("Comuni"), Gives(1));
    // The first one that opens is taken, also when another one would find more.
    const QString empty = QString::fromStdString((folder_.path() / "vuoto.mdb").string());
    OlderPlaces first(path_.string(), {"QSQLITE", {empty, file()}});
    EXPECT_THAT(first.check(), Succeeds());
    EXPECT_THAT(first.count("Comuni"), Fails(Failure::notFound));
}

TEST_F(AnOlderList, ThatNothingOpensIsDamaged) {
    const QString shut = QString::fromStdString((folder_.path() / "nessuna" / "x.mdb").string());
    for (const OlderDoors& doors :
         {OlderDoors{"QSQLITE", {shut, shut}}, OlderDoors{"QSQLITE", {}}, OlderDoors{"QNESSUNO", {file()}}}) {
        OlderPlaces closed(path_.string(), doors);
        const auto checked = closed.check();
        ASSERT_THAT(checked, Fails(Failure::damaged));
        EXPECT_EQ(checked.error().subject, "Comuni.mdb");
        EXPECT_THAT(closed.count("Comuni"), Fails(Failure::damaged));
        EXPECT_THAT(closed.seek("Comuni", "COMU_DESCR", "R", 1), Fails(Failure::damaged));
    }
}

TEST_F(AnOlderList, ThatIsMissingIsNotFoundAndOneThatIsAFolderIsRefused) {
    EXPECT_THAT(OlderPlaces((folder_.path() / "Altri.mdb").string(), {"QSQLITE", {file()}}).check(),
                Fails(Failure::notFound));
    EXPECT_THAT(OlderPlaces(folder_.path().string(), {"QSQLITE", {file()}}).check(), Fails(Failure::refused));
}

TEST_F(AnOlderList, WithRowsThatCannotBeReadIsNotHalfRead) {
    // The second row fails while it is read: what stands in it is no list.
    execute("CREATE TABLE Rotta (Testo TEXT)");
    execute("INSERT INTO Rotta VALUES ('[1]'), ('[1')");
    execute("ALTER TABLE Rotta ADD COLUMN Numero AS (json_extract(Testo, '$[0]'))");
    const auto counted = list().count("Rotta");
    ASSERT_THAT(counted, Fails(Failure::device));
    EXPECT_EQ(counted.error().subject, "Comuni.mdb");
    EXPECT_THAT(list().read("Rotta", 1), Fails(Failure::device));
}

TEST(OlderDoors, AskForTheDriverOfBothFormatsAndThenForTheElderOne) {
    const OlderDoors doors = odbcDoors("/ufficio/Stampe/Comuni.mdb");
    EXPECT_EQ(doors.driver, "QODBC");
    const QString path = QDir::toNativeSeparators("/ufficio/Stampe/Comuni.mdb");
    EXPECT_THAT(doors.texts,
                ElementsAre("DRIVER={Microsoft Access Driver (*.mdb, *.accdb)};DBQ=" + path + ";ReadOnly=1",
                            "DRIVER={Microsoft Access Driver (*.mdb)};DBQ=" + path + ";ReadOnly=1"));
}

TEST(OlderDoors, PutAPathWithASignOfTheirOwnIntoBraces) {
    const auto asked = [](const char* path) { return odbcDoors(path).texts.front(); };
    EXPECT_TRUE(asked("Anno 2012; vecchio").endsWith(";DBQ={Anno 2012; vecchio};ReadOnly=1"));
    EXPECT_TRUE(asked("{uno}").endsWith(";DBQ={{uno}}};ReadOnly=1"));
    EXPECT_TRUE(asked("Programmi (x86)").endsWith(";DBQ=Programmi (x86);ReadOnly=1"));
}

}  // namespace vorbano::test
