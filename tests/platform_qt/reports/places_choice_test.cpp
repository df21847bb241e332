#include "platform/qt/places_choice.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "file_content.h"
#include "platform/qt/installation.h"
#include "platform/qt/older_places.h"
#include "platform/qt/sqlite_database.h"
#include "platform/scripted_desktop.h"
#include "support/places.h"
#include "support/results.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

using ::testing::IsEmpty;
namespace fs = std::filesystem;

class PlacesChoice : public ::testing::Test {
  protected:
    PlacesChoice() { fs::create_directory(root_ / "Stampe"); }
    ~PlacesChoice() override { EXPECT_THAT(desktop_.finish(), IsEmpty()); }

    void write(const fs::path& file, const std::string& content) const {
        std::ofstream(file, std::ios::binary) << content;
    }
    void carryOverOlderList() const { write(list_, older_); }
    void expectBox() {
        desktop_.box(
            "Vorbano",
            "Il file Stampe/Comuni.mdb, l'elenco dei comuni e degli stati per il codice fiscale, viene da "
            "un'installazione precedente e su questo computer non può essere letto: manca il driver di "
            "Microsoft Access, o il file è danneggiato.\n\nAl suo posto il programma usa l'elenco consegnato, "
            "che ha messo nel file Stampe/Comuni consegnati.mdb. Nel file precedente niente è stato cambiato.");
    }
    std::unique_ptr<Database> choose(const OpensOlder& opensOlder) {
        return choosePlaces(root_.string(), desktop_, opensOlder);
    }
    /// The driver is there: the older list holds these places.
    OpensOlder driverShowing(const std::function<void(Database&)>& fill,
                             const std::vector<TableInfo>& tables = placeTables()) {
        return [this, fill, tables](const std::string& path) {
            opened_.push_back(path);
            auto places = std::make_unique<MemoryDatabase>(tables);
            fill(*places);
            return places;
        };
    }

    static std::unique_ptr<Database> noDriver(const std::string& path) {
        return std::make_unique<OlderPlaces>(path, OlderDoors{"QNESSUNO", {}});
    }

    const std::string older_ = std::string("\0\1\0\0Standard Jet DB\0", 20) + std::string(4076, '\0');
    TemporaryFolder folder_;
    fs::path root_ = folder_.path();
    fs::path list_ = root_ / "Stampe" / "Comuni.mdb";
    fs::path delivered_ = root_ / "Stampe" / "Comuni consegnati.mdb";
    std::vector<std::string> opened_;
    ScriptedDesktop desktop_;
};

TEST_F(PlacesChoice, TakesTheOlderListWhereItCanBeRead) {
    carryOverOlderList();
    const auto places = choose(driverShowing([](Database& shown) { addComune(shown, "ROMA", "RM", "H501"); }));
    EXPECT_THAT(places->count("Comuni"), Gives(1));
    EXPECT_THAT(opened_, ::testing::ElementsAre(list_.string()));
    EXPECT_FALSE(fs::exists(delivered_));
    EXPECT_EQ(fileContent(list_), older_);
}

TEST_F(PlacesChoice, TakesTheDeliveredListWhereThereIsNoDriverAndSaysSo) {
    carryOverOlderList();
    expectBox();
    const auto places = choose(noDriver);
    EXPECT_THAT(places->count("Comuni"), Gives(13335));
    EXPECT_THAT(places->count("Stati"), Gives(335));
    EXPECT_TRUE(fs::is_regular_file(delivered_));
    EXPECT_FALSE(fs::exists(root_ / "Stampe" / "Comuni consegnati.mdb.nuovo"));
    EXPECT_EQ(fileContent(list_), older_);
}

TEST_F(PlacesChoice, IsToldOnlyOnce) {
    carryOverOlderList();
    expectBox();
    EXPECT_THAT(choose(noDriver)->count("Comuni"), Gives(13335));
    ASSERT_THAT(desktop_.finish(), IsEmpty());
    const std::string made = fileContent(delivered_);
    EXPECT_THAT(choose(noDriver)->count("Comuni"), Gives(13335));
    EXPECT_EQ(fileContent(delivered_), made);
}

TEST_F(PlacesChoice, TakesTheDeliveredListWhereTheDriverCannotReadTheFile) {
    struct Damage {
        const char* what;
        std::vector<TableInfo> tables;
    };
    const std::vector<TableInfo> all = placeTables();
    const Damage damages[] = {
        {"no table", {}}, {"no states", {all[0]}}, {"no municipalities", {all[1]}}, {"an empty list", all}};
    carryOverOlderList();
    for (const Damage& damage : damages) {
        SCOPED_TRACE(damage.what);
        fs::remove(delivered_);
        expectBox();
        EXPECT_THAT(choose(driverShowing([](Database&) {}, damage.tables))->count("Comuni"), Gives(13335));
    }
    EXPECT_EQ(fileContent(list_), older_);
}

TEST_F(PlacesChoice, ComesBackToTheOlderListWhenItCanBeReadAgain) {
    carryOverOlderList();
    expectBox();
    EXPECT_THAT(choose(noDriver)->count("Comuni"), Gives(13335));
    const auto places = choose(driverShowing([](Database& shown) { addComune(shown, "ROMA", "RM", "H501"); }));
    EXPECT_THAT(places->count("Comuni"), Gives(1));
}

TEST_F(PlacesChoice, StaysWithOurListAsItIs) {
    ASSERT_THAT(layInstallation(root_.string()), Succeeds());
    EXPECT_THAT(choose(driverShowing([](Database&) {}))->count("Comuni"), Gives(13335));
    EXPECT_THAT(opened_, IsEmpty());
    EXPECT_FALSE(fs::exists(delivered_));
}

TEST_F(PlacesChoice, LeavesAListThatIsMissingOrOfAnotherKindToTheScreens) {
    EXPECT_THAT(choose(noDriver)->check(), Fails(Failure::notFound));
    write(list_, "Comune di Pratofiorito");
    const auto foreign = choose(noDriver)->check();
    ASSERT_THAT(foreign, Fails(Failure::damaged));
    EXPECT_EQ(foreign.error().subject, "Comuni.mdb");
    EXPECT_FALSE(fs::exists(delivered_));
}

TEST_F(PlacesChoice, LeavesTheOlderListToTheScreensWhenTheDeliveredOneCannotBeLaid) {
    carryOverOlderList();
    // A folder that is not empty stands where the companion would.
    fs::create_directories(root_ / "Stampe" / "Comuni consegnati.mdb.nuovo" / "x");
    const auto places = choose(noDriver)->check();
    ASSERT_THAT(places, Fails(Failure::damaged));
    EXPECT_EQ(places.error().subject, "Comuni.mdb");
    EXPECT_EQ(fileContent(list_), older_);
}

TEST_F(PlacesChoice, FindsTheListWhateverTheCaseOfItsNames) {
    fs::rename(root_ / "Stampe", root_ / "STAMPE");
    write(root_ / "STAMPE" / "COMUNI.MDB", older_);
    expectBox();
    EXPECT_THAT(choose(noDriver)->count("Comuni"), Gives(13335));
    EXPECT_TRUE(fs::is_regular_file(root_ / "STAMPE" / "Comuni consegnati.mdb"));
    EXPECT_FALSE(fs::exists(root_ / "Stampe"));
}

}  // namespace vorbano::test
