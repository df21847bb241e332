// The whole program on a disk that is full, or that may no longer be written: what was on file stays, and the clerk
// hears once of each file that was not written, from the screen or else when the command is over.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory_database.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "program/program.h"
#include "storage/failing_file_system.h"
#include "storage/memory_file_system.h"
#include "support/bytes.h"

namespace vorbano::test {
namespace {

using ::testing::IsEmpty;

struct OnABadDisk : ::testing::Test {
    MemoryFileSystem disk;
    FailingFileSystem failing{disk};
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{{}};
    RecordingPrintEngine printing;
    ScriptedDesktop desktop;
    Program program{failing, desktop, staging, places, printing};

    OnABadDisk() {
        EXPECT_TRUE(lay(disk, "Params/Ente.dat", padded("Pratofiorito", 60)));
        EXPECT_TRUE(lay(disk, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + amount(8, 80) + amount(0, 35)));
    }
    ~OnABadDisk() override { EXPECT_THAT(desktop.finish(), IsEmpty()); }

    static Control& control(Form& form, std::string_view name) {
        Control* found = form.find(name);
        if (found == nullptr) throw std::invalid_argument("no control " + std::string(name));
        return *found;
    }
    static void click(Form& form, std::string_view name) {
        EXPECT_EQ(Operator(form).click(control(form, name)), Refusal::none) << name;
    }
    static void type(Form& form, std::string_view name, std::string_view words) {
        EXPECT_EQ(Operator(form).type(control(form, name), words), Refusal::none) << name;
    }
    static void choose(Form& form, std::string_view name, std::string_view item) {
        EXPECT_EQ(Operator(form).choose(control(form, name), item), Refusal::none) << name;
    }
    static void tick(Form& form, std::string_view name) {
        EXPECT_EQ(Operator(form).tick(control(form, name), true), Refusal::none) << name;
    }
};

TEST_F(OnABadDisk, WhatTheScreenTellsIsToldOnce) {
    ASSERT_TRUE(lay(disk, "Params/Ente.dat", ""));
    disk.leaveRoom(20);
    desktop.box("Vorbano", "Inserire denominazione Ente");
    desktop.form("Form1", [this](Form& main) {
        desktop.box("Errore", "Il file Params/Ente.dat non è stato scritto: il disco è pieno.");
        type(main, "txtEnte", "Pratofiorito");
        click(main, "cmdSalva");
        EXPECT_EQ(contentOf(disk, "Params/Ente.dat"), "");
        disk.leaveRoom(1000);
        desktop.box("Inserimento Ente", "Operazione terminata");
        click(main, "cmdSalva");
    });
    program.run();
    EXPECT_EQ(contentOf(disk, "Params/Ente.dat"), padded("Pratofiorito", 60));
}

TEST_F(OnABadDisk, AFolderThatCannotBeMadeIsToldWhenTheCommandIsOver) {
    desktop.form("frmCompStraord", [this](Form& form) {
        choose(form, "Combo1", "Europee");
        type(form, "txtDataEle", "09/06/24");
        type(form, "txtNumDip", "6");
        failing.failOnce(1);
        desktop.box("Errore", "Il disco non ha completato l'operazione sulla cartella Elezioni.");
        click(form, "cmdAttiva");
        failing.failOnce(0);
        // The new election was begun all the same.
        EXPECT_TRUE(control(form, "Frame9").isVisible());
    });
    program.open("frmCompStraord");
}

TEST_F(OnABadDisk, AListOfNamesThatIsWriteProtectedIsToldWhenItsWindowOpens) {
    ASSERT_TRUE(lay(disk, "Params/Dipend.dat", padded("VERDI ALDO", 60)));
    disk.makeReadOnly("Params/Dipend.dat");
    desktop.box("Errore",
                "Il file Params/Dipend.dat non può essere letto o scritto: controllare che non sia di sola lettura.");
    desktop.form("frmCompStraord", [](Form&) {});
    program.open("frmCompStraord");
}

TEST_F(OnABadDisk, ADeletionGoesOnAndSaysNothingOfTheFileThatStayed) {
    const std::string folder = "Elezioni/Europee/09-06-24/";
    ASSERT_TRUE(lay(disk, folder + "Seggi.vbn", std::string(216, '\0')));
    ASSERT_TRUE(lay(disk, folder + "SosSeggi.vbn", std::string(218, '\0')));
    desktop.form("frmCancella", [&](Form& form) {
        choose(form, "Combo1", "Europee");
        choose(form, "Combo2", "09-06-24");
        click(form, "cmdRicerca");
        tick(form, "Check4");
        disk.makeReadOnly(folder + "Seggi.vbn");
        desktop
            .box("CANCELLAZIONE FILE",
                 "ATTENZIONE!\nSTATE PER CANCELLARE IN MODO DEFINITIVO\nI FILE RELATIVI ALLE OPZIONI "
                 "SELEZIONATE\nCONTINUARE?",
                 ScriptedDesktop::Answer::yes)
            .box("Cancellazione", "Eseguita con successo!");
        click(form, "cmdEsegui");
    });
    program.open("frmCancella");
    EXPECT_EQ(contentOf(disk, folder + "Seggi.vbn").size(), 216U);
    EXPECT_EQ(contentOf(disk, folder + "SosSeggi.vbn"), noFile);
}

}  // namespace
}  // namespace vorbano::test
