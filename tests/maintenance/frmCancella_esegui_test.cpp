// The deletion: the question, what goes and what stays, the message that always comes.

#include "cancella_desk.h"
#include "screens/write_watch.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;
using ::testing::UnorderedElementsAreArray;

class CancellaEsegui : public CancellaTest {
  protected:
    void searchAll() {
        layAll(files);
        search();
        EXPECT_EQ(enabledBoxes(), "2 3 4 5 6 7 8 9");
    }
};

TEST_F(CancellaEsegui, AsksAndLeavesAllAtNo) {
    searchAll();
    const Names before = namesIn(files);
    tick("Check1");
    box(questionTitle, question, Answer::no);
    click("cmdEsegui");
    EXPECT_EQ(namesIn(files), before);
    EXPECT_EQ(tickedBoxes(), "1 2 3 4 5 6 7 8 9");
    EXPECT_TRUE(enabled("cmdEsegui"));
    EXPECT_FALSE(enabled("cmdAnnulla"));
}

TEST_F(CancellaEsegui, RemovesTheFilesOfEachGroup) {
    for (const ToldGroup& group : toldGroups()) {
        SCOPED_TRACE(group.box);
        searchAll();
        Names left = namesIn(files);
        for (const std::string& name : group.files) std::erase(left, name);
        tick(group.box);
        execute();
        EXPECT_THAT(namesIn(files), UnorderedElementsAreArray(left));
    }
}

TEST_F(CancellaEsegui, RemovesSeveralGroupsAndLeavesTheFolder) {
    searchAll();
    for (const ToldGroup& group : toldGroups()) tick(group.box);
    EXPECT_EQ(text("Label2"), "8");
    execute();
    EXPECT_THAT(namesIn(files), UnorderedElementsAreArray(ungrouped));
}

/// As the program shows it: with the watch that tells of every file that could not be written.
TEST_F(CancellaEsegui, OnAWriteProtectedDiskTellsOnlyItsOwnWords) {
    layAll(files);
    WriteWatch watch(files, desktop);
    frmCancella shown(Workplace{watch.files(), watch.desktop(), staging, printing, screens, places});
    Names before;
    desktop.form("frmCancella", [&](Form& form) {
        Operator clerk(form);
        EXPECT_EQ(clerk.choose(shown.Combo1, "Europee"), Refusal::none);
        EXPECT_EQ(clerk.choose(shown.Combo2, "09-06-24"), Refusal::none);
        EXPECT_EQ(clerk.click(shown.cmdRicerca), Refusal::none);
        before = namesIn(files);
        files.makeReadOnly("");
        EXPECT_EQ(clerk.tick(shown.Check1, true), Refusal::none);
        EXPECT_EQ(clerk.click(shown.cmdEsegui), Refusal::none);
    });
    box(questionTitle, question, Answer::yes);
    box("Cancellazione", "Eseguita con successo!");
    watch.desktop().show(shown.form);
    EXPECT_THAT(before, ::testing::SizeIs(23));
    EXPECT_EQ(namesIn(files), before);
}

TEST_F(CancellaEsegui, OfTheStatementTakesItsTwoSharesWithIt) {
    for (const char* name : {"Rendi.vbn", "DivSt.vbn", "Tprov.vbn", "Seggi.vbn"}) layFile(files, name, 304);
    search();
    tick("Check9");
    execute();
    EXPECT_THAT(namesIn(files), UnorderedElementsAre("09-06-24.vbn", "Congs.vbn", "Seggi.vbn", "SegSuf.vbn",
                                                     "Speciale.vbn", "SpecSufr.vbn", "Versum.vbn"));
}

TEST_F(CancellaEsegui, RemovesTheElectionAndItsFolderWithAllTicked) {
    layFile(files, "Seggi.vbn", 216, "Elezioni/Europee/26-05-19");
    searchAll();
    tick("Check1");
    execute();
    EXPECT_THAT(namesIn(files, "Elezioni/Europee"), ElementsAre("26-05-19"));
}

TEST_F(CancellaEsegui, RemovesTheElectionAlsoWhenAGroupWasTakenOffAgain) {
    searchAll();
    tick("Check1");
    tick("Check4", false);
    execute();
    EXPECT_THAT(namesIn(files, "Elezioni"), ElementsAre("Europee"));
    EXPECT_THAT(namesIn(files, "Elezioni/Europee"), IsEmpty());
}

TEST_F(CancellaEsegui, LeavesTheScreenAsItWasUntilAnnulla) {
    searchAll();
    tick("Check1");
    execute();
    EXPECT_EQ(tickedBoxes(), "1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(text("Label2"), "8");
    for (const char* name : {"Combo1", "Combo2", "cmdRicerca"}) EXPECT_FALSE(enabled(name)) << name;
    EXPECT_TRUE(enabled("cmdEsegui"));
    EXPECT_EQ(text("Combo2"), "09-06-24");
    EXPECT_EQ(text("lblAvviso"), "Cancellazione eseguita. Con Annulla Ricerca si sceglie un'altra elezione.");

    click("cmdAnnulla");
    EXPECT_EQ(tickedBoxes(), "");
    EXPECT_EQ(enabledBoxes(), "");
    EXPECT_EQ(text("Label2"), "0");
    for (const char* name : {"Combo1", "Combo2", "cmdRicerca"}) EXPECT_TRUE(enabled(name)) << name;
    EXPECT_THAT(items("Combo2"), IsEmpty());
    EXPECT_EQ(text("Combo2"), "");
    EXPECT_EQ(text("Combo1"), "Europee") << "its type stays, also without elections";
}

TEST_F(CancellaEsegui, OfAGroupKeepsTheElectionOffered) {
    searchAll();
    tick("Check9");
    execute();
    click("cmdAnnulla");
    EXPECT_EQ(text("Combo2"), "09-06-24");
    click("cmdRicerca");
    EXPECT_EQ(enabledBoxes(), "2 3 4 5 6 7 8");
}

TEST_F(CancellaEsegui, OnceMoreRemovesNothingAndSaysTheSame) {
    searchAll();
    tick("Check3");
    execute();
    const Names left = namesIn(files);
    execute();
    EXPECT_EQ(namesIn(files), left);
}

TEST_F(CancellaEsegui, TheWayBackClosesAgainWhenOtherGroupsAreTicked) {
    searchAll();
    tick("Check3");
    execute();
    EXPECT_TRUE(enabled("cmdAnnulla"));
    tick("Check9");
    EXPECT_FALSE(enabled("cmdAnnulla"));
    tick("Check9", false);
    tick("Check3", false);
    EXPECT_TRUE(enabled("cmdAnnulla"));
    EXPECT_TRUE(enabled("cmdRicerca"));
}

TEST_F(CancellaEsegui, SaysTheSameWhenNothingCouldBeRemoved) {
    searchAll();
    const Names before = namesIn(files);
    files.makeReadOnly("");
    tick("Check1");
    execute();
    EXPECT_EQ(namesIn(files), before);
}

TEST_F(CancellaEsegui, LeavesAFileThatSomebodyHoldsAndItsFolder) {
    searchAll();
    files.makeReadOnly(electionFolder + "/Seggi.vbn");
    tick("Check1");
    execute();
    EXPECT_THAT(namesIn(files), ElementsAre("Seggi.vbn"));
}

TEST_F(CancellaEsegui, LeavesWhatIsNotItsOwnAndTheFolder) {
    layFile(files, "delibera.pdf", 3);
    searchAll();
    tick("Check1");
    execute();
    EXPECT_THAT(namesIn(files), ElementsAre("delibera.pdf"));
    click("cmdAnnulla");
    EXPECT_THAT(items("Combo2"), ElementsAre("09-06-24"));
}

TEST_F(CancellaEsegui, FindsItsFilesInAnyCase) {
    for (const char* name : {"09-06-24.VBN", "MEIRIN.VBN", "quartum.vbn", "RENDI.vbn"}) layFile(files, name, 301);
    search();
    EXPECT_EQ(enabledBoxes(), "2 9");
    tick("Check2");
    execute();
    EXPECT_THAT(namesIn(files), UnorderedElementsAre("Congs.vbn", "RENDI.vbn", "Seggi.vbn", "SegSuf.vbn",
                                                     "Speciale.vbn", "SpecSufr.vbn", "Versum.vbn"));
}

/// As on a system on which an open file cannot be removed.
class HoldingDisk : public MemoryFileSystem {
  public:
    Result<std::unique_ptr<File>> open(std::string_view path) override {
        auto file = MemoryFileSystem::open(path);
        if (!file) return file;
        ++*held_;
        return std::unique_ptr<File>(std::make_unique<Held>(std::move(*file), held_));
    }
    Result<> remove(std::string_view path) override {
        if (*held_ > 0) return Error{Failure::refused, std::string(path)};
        return MemoryFileSystem::remove(path);
    }

  private:
    class Held : public File {
      public:
        Held(std::unique_ptr<File> file, std::shared_ptr<int> held) : file_(std::move(file)), held_(std::move(held)) {}
        ~Held() override { --*held_; }
        Result<std::size_t> read(std::uint64_t offset, std::span<std::byte> into) override {
            return file_->read(offset, into);
        }
        Result<> write(std::uint64_t offset, std::span<const std::byte> bytes) override {
            return file_->write(offset, bytes);
        }
        Result<std::uint64_t> size() override { return file_->size(); }
        Result<> flush() override { return file_->flush(); }

      private:
        std::unique_ptr<File> file_;
        std::shared_ptr<int> held_;
    };
    std::shared_ptr<int> held_ = std::make_shared<int>(0);
};

TEST_F(CancellaEsegui, HoldsNoFileOpenItself) {
    HoldingDisk disk;
    layAll(disk);
    openOn(disk);
    identify();
    click("cmdRicerca");
    tick("Check1");
    execute();
    EXPECT_THAT(namesIn(disk, "Elezioni/Europee"), IsEmpty());
    desktop.shut(screen->form);
    screen.reset();
}

}  // namespace
}  // namespace vorbano::test
