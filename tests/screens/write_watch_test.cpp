#include "screens/write_watch.h"

#include <gmock/gmock.h>

#include "platform/failure_words.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"
#include "screens/well_done.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"

namespace vorbano::test {
namespace {

using ::testing::IsEmpty;

constexpr const char* seggiFull = "Il file Elezioni/Seggi.vbn non è stato scritto: il disco è pieno.";
constexpr const char* readOnly = " non può essere letto o scritto: controllare che non sia di sola lettura.";

/// A screen with one command, which does what the test says, on a disk that is watched.
struct Watched : ::testing::Test {
    MemoryFileSystem disk;
    ScriptedDesktop desktop;
    WriteWatch watch{disk, desktop};
    FileSystem& files = watch.files();
    Form form{"frmProva", "Prova"};
    TextBox txtNome{form, "txtNome"};
    Button cmdSalva{form, "cmdSalva", "&Salva"};

    Watched() { EXPECT_TRUE(lay(disk, "Elezioni/Meirin.vbn", "old")); }
    ~Watched() override { EXPECT_THAT(desktop.finish(), IsEmpty()); }
    /// Stores and does not look what came of it.
    void store(std::string_view path) { writeIn(path).ignore(); }
    Result<> writeIn(std::string_view path) {
        auto file = files.open(path);
        if (!file) return file.error();
        const std::string_view content = "new content";
        return (*file)->write(0, std::as_bytes(std::span(content)));
    }
    /// Opens the form; the clerk gives the command `times`.
    void giveCommand(int times = 1) {
        desktop.form("frmProva", [this, times](Form&) {
            for (int time = 0; time < times; ++time) EXPECT_EQ(Operator(form).click(cmdSalva), Refusal::none);
        });
        // The form comes first, and then what is told.
        for (auto& [title, text] : boxes) desktop.box(title, text);
        watch.desktop().show(form);
    }
    std::vector<std::pair<std::string, std::string>> boxes;
};

TEST_F(Watched, AStoreThatFailsInSilenceIsToldWhenTheCommandIsOver) {
    disk.leaveRoom(3);
    cmdSalva.clicked.calls([this] {
        store("Elezioni/Seggi.vbn");
        watch.desktop().tell({"Operazione terminata", "Prova", Icon::information});
    });
    boxes = {{"Prova", "Operazione terminata"}, {"Errore", seggiFull}};
    giveCommand();
    EXPECT_EQ(contentOf(disk, "Elezioni/Meirin.vbn"), "old");
}

TEST_F(Watched, AStoreThatSucceedsIsNot) {
    cmdSalva.clicked.calls([this] { store("Elezioni/Seggi.vbn"); });
    giveCommand();
    EXPECT_EQ(contentOf(disk, "Elezioni/Seggi.vbn"), "new content");
}

TEST_F(Watched, EachCommandIsToldOnceForEachFile) {
    disk.leaveRoom(3);
    cmdSalva.clicked.calls([this] {
        for (int time = 0; time < 3; ++time) store("Elezioni/Seggi.vbn");
    });
    boxes = {{"Errore", seggiFull}, {"Errore", seggiFull}};
    giveCommand(2);
}

TEST_F(Watched, SeveralFilesStandInOneBox) {
    ASSERT_TRUE(lay(disk, "Elezioni/Seggi.vbn", "old"));
    disk.makeReadOnly("");
    cmdSalva.clicked.calls([this] {
        store("Elezioni/Seggi.vbn");
        store("Elezioni/Meirin.vbn");
        files.makeFolder("Params").ignore();
    });
    boxes = {{"Errore", std::string("Il file Elezioni/Seggi.vbn") + readOnly + "\nIl file Elezioni/Meirin.vbn" +
                            readOnly +
                            "\nLa cartella Params non può essere creata: controllare che non sia di sola lettura."}};
    giveCommand();
    EXPECT_EQ(contentOf(disk, "Elezioni/Meirin.vbn"), "old");
}

TEST_F(Watched, MoreThanFiveFilesAreCounted) {
    for (const char* name : {"1", "2", "3", "4", "5", "6", "7"}) ASSERT_TRUE(lay(disk, name, "old"));
    disk.makeReadOnly("");
    cmdSalva.clicked.calls([this] {
        for (const char* name : {"1", "2", "3", "4", "5", "6", "7"}) store(name);
    });
    std::string words;
    for (const char* name : {"1", "2", "3", "4", "5"}) words += std::string("Il file ") + name + readOnly + "\n";
    boxes = {{"Errore", words + "Altri file non scritti: n. 2."}};
    giveCommand();
}

TEST_F(Watched, WhatTheScreenTellsIsNotToldAgain) {
    disk.leaveRoom(3);
    cmdSalva.clicked.calls([this] {
        EXPECT_FALSE(wellDone(writeIn("Elezioni/Seggi.vbn"), watch.desktop()));
        // The companion is taken away again, or not.
        store("Elezioni/Seggi.vbn");
    });
    boxes = {{"Errore", seggiFull}};
    giveCommand();
}

TEST_F(Watched, AFileThatIsNotEvenOpenedIsLeftToTheWordsOfTheScreen) {
    disk.makeReadOnly("Elezioni/Meirin.vbn");
    cmdSalva.clicked.calls([this] {
        store("Elezioni/Meirin.vbn");
        watch.desktop().tell({"Dati inesistenti", "Prova", Icon::warning});
    });
    boxes = {{"Prova", "Dati inesistenti"}};
    giveCommand();
}

TEST_F(Watched, AFileThatIsNotEvenOpenedIsToldBesideAMessageThatAllIsWell) {
    disk.makeReadOnly("Elezioni/Meirin.vbn");
    cmdSalva.clicked.calls([this] {
        store("Elezioni/Meirin.vbn");
        watch.desktop().tell({"Operazione terminata", "Prova", Icon::information});
    });
    boxes = {{"Prova", "Operazione terminata"}, {"Errore", std::string("Il file Elezioni/Meirin.vbn") + readOnly}};
    giveCommand();
}

TEST_F(Watched, AFolderIsNotToldByTheNameOfAFileInIt) {
    disk.makeReadOnly("");
    cmdSalva.clicked.calls([this] {
        files.makeFolder("Europee").ignore();
        EXPECT_FALSE(wellDone(writeIn("Europee/Seggi.vbn"), watch.desktop()));
    });
    boxes = {{"Errore", "Manca la cartella del file Europee/Seggi.vbn."},
             {"Errore", "La cartella Europee non può essere creata: controllare che non sia di sola lettura."}};
    giveCommand();
}

TEST_F(Watched, WhatIsOnlyNotThereIsNoFailure) {
    cmdSalva.clicked.calls([this] {
        store("Nessuna/Seggi.vbn");
        files.remove("Elezioni/Rendi.vbn").ignore();
    });
    giveCommand();
}

TEST_F(Watched, WhatCouldNotBeRemovedIsNotTold) {
    ASSERT_TRUE(disk.makeFolder("Europee").ok());
    disk.makeReadOnly("");
    cmdSalva.clicked.calls([this] {
        files.remove("Elezioni/Meirin.vbn").ignore();
        files.removeFolder("Europee").ignore();
    });
    giveCommand();
    EXPECT_EQ(contentOf(disk, "Elezioni/Meirin.vbn"), "old");
}

TEST_F(Watched, WhatFailsWhileTheWindowOpensOrClosesIsToldToo) {
    disk.leaveRoom(0);
    store("Elezioni/Seggi.vbn");
    form.closing.calls([this] { store("Elezioni/Rendi.vbn"); });
    desktop.box("Errore", seggiFull);
    desktop.form("frmProva", [](Form& front) { Operator(front).close(); });
    desktop.box("Errore", "Il file Elezioni/Rendi.vbn non è stato scritto: il disco è pieno.");
    watch.desktop().show(form);
}

TEST_F(Watched, EveryGestureIsACommand) {
    disk.leaveRoom(0);
    txtNome.lostFocus.calls([this] { store("Elezioni/Seggi.vbn"); });
    // The leave takes the focus back, and the click never comes.
    txtNome.lostFocus.calls([this] { form.focus(txtNome); });
    desktop.form("frmProva", [this](Form&) {
        EXPECT_EQ(Operator(form).enter(txtNome), Refusal::none);
        EXPECT_EQ(Operator(form).click(cmdSalva), Refusal::none);
        EXPECT_EQ(form.focused(), &txtNome);
    });
    desktop.box("Errore", seggiFull);
    watch.desktop().show(form);
}

TEST_F(Watched, TheDiskThatBreaksIsToldInItsOwnWords) {
    EXPECT_EQ(inItalian({Unwritten{.error = {Failure::device, "Elezioni"}, .isFolder = true}}),
              "Il disco non ha completato l'operazione sulla cartella Elezioni.");
    EXPECT_EQ(inItalian({Unwritten{.error = {Failure::diskFull, ""}, .isFolder = true}}),
              "La cartella dell'installazione non è stata creata: il disco è pieno.");
    EXPECT_EQ(inItalian({Unwritten{.error = {Failure::device, "Params/Ente.dat"}}}),
              "Il disco non ha completato l'operazione sul file Params/Ente.dat.");
}

}  // namespace
}  // namespace vorbano::test
