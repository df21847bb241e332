#include <QSqlQuery>
#include <fstream>

#include "file_content.h"
#include "platform/qt/installed_databases.h"
#include "platform/qt/sqlite_database.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

class DatabaseFile : public ::testing::Test {
  protected:
    void write(const std::string& content) const { std::ofstream(path_, std::ios::binary) << content; }
    [[nodiscard]] std::string content() const { return fileContent(path_); }
    void makeStaging() const { ASSERT_THAT(makeStagingDatabase(QString::fromStdString(path_.string())), Succeeds()); }

    TemporaryFolder folder_;
    std::filesystem::path path_ = folder_.path() / "dbStampa.mdb";
};

TEST_F(DatabaseFile, ThatIsMissingIsNamedAndNotMade) {
    SqliteDatabase database(path_.string());
    EXPECT_EQ(databaseKind(path_.string()), DatabaseKind::missing);
    const auto checked = database.check();
    ASSERT_THAT(checked, Fails(Failure::notFound));
    EXPECT_EQ(checked.error().subject, "dbStampa.mdb");
    EXPECT_THAT(database.append("Tabella3", Row()), Fails(Failure::notFound));
    EXPECT_THAT(database.begin(), Fails(Failure::notFound));
    EXPECT_FALSE(std::filesystem::exists(path_));
}

TEST_F(DatabaseFile, IsNotOpenedBeforeItIsNeeded) {
    SqliteDatabase database(path_.string());
    makeStaging();
    EXPECT_THAT(database.count("Tabella3"), Gives(0));
}

TEST_F(DatabaseFile, IsFoundWhateverTheCaseOfItsNames) {
    std::filesystem::create_directory(folder_.path() / "STAMPE");
    path_ = folder_.path() / "STAMPE" / "DBSTAMPA.MDB";
    makeStaging();
    SqliteDatabase database((folder_.path() / "Stampe" / "dbStampa.mdb").string());
    EXPECT_THAT(database.count("Tabella3"), Gives(0));
}

TEST_F(DatabaseFile, WithABlankOrASignInItsNameIsOpened) {
    path_ = folder_.path() / "Ufficio 50% # nuovo?.mdb";
    makeStaging();
    SqliteDatabase database(path_.string());
    EXPECT_THAT(database.count("Tabella3"), Gives(0));
}

TEST_F(DatabaseFile, OfAnOlderInstallationIsRecognisedAndLeftAlone) {
    for (const std::string_view mark : {"Standard Jet DB", "Standard ACE DB"}) {
        const std::string older = std::string("\0\1\0\0", 4) + std::string(mark) + std::string(4077, '\0');
        write(older);
        SqliteDatabase database(path_.string());
        EXPECT_EQ(databaseKind(path_.string()), DatabaseKind::older);
        const auto checked = database.check();
        ASSERT_THAT(checked, Fails(Failure::damaged));
        EXPECT_EQ(checked.error().subject, "dbStampa.mdb");
        EXPECT_THAT(database.append("Tabella3", Row()), Fails(Failure::damaged));
        EXPECT_EQ(content(), older);
    }
}

TEST_F(DatabaseFile, OfAnotherKindIsDamaged) {
    for (const std::string& other : {std::string(), std::string("SQLite format"), std::string("Comune di Forlì")}) {
        write(other);
        EXPECT_EQ(databaseKind(path_.string()), DatabaseKind::foreign);
        EXPECT_THAT(SqliteDatabase(path_.string()).check(), Fails(Failure::damaged));
        EXPECT_EQ(content(), other);
    }
}

TEST_F(DatabaseFile, WithOurMarkAndNothingElseIsDamaged) {
    write(std::string("SQLite format 3\0", 16) + std::string(200, 'x'));
    EXPECT_EQ(databaseKind(path_.string()), DatabaseKind::ours);
    EXPECT_THAT(SqliteDatabase(path_.string()).check(), Fails(Failure::damaged));
}

TEST_F(DatabaseFile, ThatIsAFolderIsRefused) {
    std::filesystem::create_directory(path_);
    EXPECT_THAT(SqliteDatabase(path_.string()).check(), Fails(Failure::refused));
}

TEST_F(DatabaseFile, KeepsItsRowsForTheNextOneWhoOpensIt) {
    makeStaging();
    Row row;
    row.setText("Comune", "FORLI'");
    {
        SqliteDatabase first(path_.string());
        ASSERT_THAT(first.begin(), Succeeds());
        ASSERT_THAT(first.append("Tabella5", row), Succeeds());
    }
    EXPECT_THAT(SqliteDatabase(path_.string()).count("Tabella5"), Gives(1))
        << "rows stay behind when a document fails between begin and commit";
}

TEST_F(DatabaseFile, IsSeenByTwoAtATime) {
    makeStaging();
    SqliteDatabase one(path_.string());
    SqliteDatabase other(path_.string());
    ASSERT_THAT(one.append("Tabella5", Row()), Succeeds());
    EXPECT_THAT(other.count("Tabella5"), Gives(1));
}

TEST_F(DatabaseFile, SumsAmountsExactly) {
    makeStaging();
    SqliteDatabase database(path_.string());
    // A tenth has no end in binary: a thousand of them, added as fractions, miss a hundred.
    ASSERT_THAT(database.begin(), Succeeds());
    for (int row = 0; row < 1000; ++row) {
        ASSERT_THAT(database.append("Tabella3", Row().set("Dovuto", Amount{1000})), Succeeds());
    }
    ASSERT_THAT(database.commit(), Succeeds());
    QSqlQuery query(*database.connection());
    ASSERT_TRUE(query.exec("SELECT SUM(Dovuto), typeof(SUM(Dovuto)) FROM Tabella3") && query.next());
    EXPECT_EQ(query.value(0).toLongLong(), 1000000);
    EXPECT_EQ(query.value(1).toString(), "integer");
}

TEST_F(DatabaseFile, GoesOnInATransactionThatADocumentLeftOpen) {
    makeStaging();
    SqliteDatabase database(path_.string());
    ASSERT_THAT(database.begin(), Succeeds());
    ASSERT_THAT(database.append("Tabella3", Row()), Succeeds());
    ASSERT_THAT(database.begin(), Succeeds());
    ASSERT_THAT(database.append("Tabella3", Row()), Succeeds());
    ASSERT_THAT(database.commit(), Succeeds());
    EXPECT_THAT(database.commit(), Succeeds());
    EXPECT_THAT(SqliteDatabase(path_.string()).count("Tabella3"), Gives(2));
}

TEST_F(DatabaseFile, TakesEveryEmployeeThatARecordFileCanHold) {
    constexpr int most = 32767;
    makeStaging();
    SqliteDatabase database(path_.string());
    ASSERT_THAT(database.begin(), Succeeds());
    for (int number = 1; number <= most; ++number) {
        ASSERT_THAT(database.append("Tabella3", Row().setWhole("NDip", number)), Succeeds());
    }
    ASSERT_THAT(database.commit(), Succeeds());
    EXPECT_THAT(database.count("Tabella3"), Gives(most));
    EXPECT_EQ(*database.read("Tabella3", most)->find("NDip"), Value(std::int64_t{most}));
}

TEST_F(DatabaseFile, TellsWhichNamesAreAmounts) {
    makeStaging();
    SqliteDatabase database(path_.string());
    ASSERT_THAT(database.check(), Succeeds());
    EXPECT_EQ(database.amountsNamed("Dovuto"), AmountColumns::all);
    EXPECT_EQ(database.amountsNamed("NDip"), AmountColumns::none);
    EXPECT_EQ(database.amountsNamed("Totale complessivo"), AmountColumns::unknown);
}

}  // namespace vorbano::test
