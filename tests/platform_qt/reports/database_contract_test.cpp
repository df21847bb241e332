#include "support/database_contract.h"

#include "platform/qt/installed_databases.h"
#include "platform/qt/sqlite_database.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

namespace {

/// A database file in a folder that goes with it.
struct FileDatabase {
    TemporaryFolder folder;
    std::unique_ptr<SqliteDatabase> database;
};

std::shared_ptr<Database> newFile() {
    auto file = std::make_shared<FileDatabase>();
    const std::string path = (file->folder.path() / "prova.mdb").string();
    EXPECT_THAT(makeTables(QString::fromStdString(path), contractTables()), Succeeds());
    file->database = std::make_unique<SqliteDatabase>(path);
    return {file, file->database.get()};
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(File, DatabaseContract, ::testing::Values(DatabaseMaker{"File", newFile}), makerName);

}  // namespace vorbano::test
