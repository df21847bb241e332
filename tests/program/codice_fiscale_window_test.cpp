// The place of birth, found while it is typed: real keys in the real window, on the list that the installation lays.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <string>

#include "fiscalcode/frmCodFisc.h"
#include "platform/memory_database.h"
#include "platform/qt/form_window.h"
#include "platform/qt/installation.h"
#include "platform/qt/sqlite_database.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "storage/memory_file_system.h"

using namespace vorbano;

namespace {

struct NoScreens : Screens {
    [[nodiscard]] bool has(std::string_view) const override { return false; }
    void open(std::string_view) override {}
};

class PlaceOfBirth : public testing::Test {
  protected:
    void SetUp() override {
        const std::string root = folder.path().toStdString();
        ASSERT_TRUE(layInstallation(root).ok());
        places = std::make_unique<SqliteDatabase>(root + "/Stampe/Comuni.mdb");
        screen = std::make_unique<frmCodFisc>(Workplace{files, desktop, staging, printing, screens, *places});
        window = std::make_unique<FormWindow>(screen->form);
        window->show();
        QApplication::setActiveWindow(window.get());
        stack.push(screen->form);
        QApplication::processEvents();
        field = dynamic_cast<QLineEdit*>(window->widgetOf(screen->Text1));
        ASSERT_NE(field, nullptr);
        field->setFocus();
        QApplication::processEvents();
        ASSERT_EQ(screen->form.focused(), &screen->Text1);
    }
    ~PlaceOfBirth() override {
        if (screen) screen->form.close();
        QApplication::processEvents();
        EXPECT_TRUE(desktop.finish().empty());
    }

    void press(const char* letters) {
        for (const char* letter = letters; *letter != '\0'; ++letter) {
            QTest::keyClick(QApplication::focusWidget(), *letter);
            QApplication::processEvents();
        }
    }
    void press(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        QApplication::processEvents();
    }
    /// "name province code" as the window shows them, what is marked in brackets.
    [[nodiscard]] std::string shown() const {
        QString name = field->text();
        if (field->hasSelectedText()) {
            EXPECT_EQ(field->selectionEnd(), name.size()) << "the marked part is at the end";
            name.insert(field->selectionStart(), '[').append(']');
        }
        return name.toStdString() + " " + textOf(screen->Text2) + " " + textOf(screen->Text3);
    }
    [[nodiscard]] std::string textOf(const Control& control) const {
        return dynamic_cast<QLineEdit&>(*window->widgetOf(control)).text().toStdString();
    }

    QTemporaryDir folder;
    MemoryFileSystem files;
    ScriptedDesktop desktop;
    MemoryDatabase staging{stagingTables()};
    RecordingPrintEngine printing;
    NoScreens screens;
    FormStack stack;
    std::unique_ptr<SqliteDatabase> places;
    std::unique_ptr<frmCodFisc> screen;
    std::unique_ptr<FormWindow> window;
    QLineEdit* field = nullptr;
};

TEST_F(PlaceOfBirth, IsCompletedAtEveryKeyAndTheNextKeyTakesThePlaceOfWhatWasAdded) {
    press("T");
    EXPECT_EQ(shown().substr(0, 3), "T[A");
    press("OR");
    EXPECT_EQ(shown().substr(0, 4), "TOR[");
    press("I");
    EXPECT_EQ(shown(), "TORI[NO] TO L219");
    press("N");
    EXPECT_EQ(shown(), "TORIN[O] TO L219");
    press("O");
    EXPECT_EQ(shown(), "TORINO TO L219");
    press(" d");
    EXPECT_EQ(shown(), "TORINO D[I SANGRO] CH L218");
}

TEST_F(PlaceOfBirth, LosesWhatWasAddedAtABackspaceAndALetterMoreAtTheNext) {
    press("ROMA");
    EXPECT_EQ(shown(), "ROMA RM H501");
    press("n");
    EXPECT_EQ(shown(), "ROMAN[A] SS H507");
    press(Qt::Key_Backspace);
    EXPECT_EQ(shown(), "ROMAN  ");
    press(Qt::Key_Backspace);
    EXPECT_EQ(shown(), "ROMA RM H501");
    press(Qt::Key_Backspace);
    EXPECT_EQ(shown(), "ROM  ");
    press("A");
    EXPECT_EQ(shown(), "ROMA RM H501");
}

TEST_F(PlaceOfBirth, IsTakenAsItIsCompletedWhenTheClerkGoesOn) {
    press("tori");
    press(Qt::Key_Tab);
    EXPECT_EQ(field->text(), "TORINO");
    EXPECT_EQ(textOf(screen->Text3), "L219");
    EXPECT_EQ(screen->form.focused(), &screen->cmdElabora);
}

TEST_F(PlaceOfBirth, IsToldOnceWhenItIsNoMunicipality) {
    desktop.box("Errore", "Comune non in elenco");
    press("TORINOx");
    EXPECT_EQ(shown(), "TORINOx ? ?");
    press("y");
    EXPECT_EQ(shown(), "TORINOxy ? ?");
    press(Qt::Key_Backspace);
    press(Qt::Key_Backspace);
    EXPECT_EQ(shown(), "TORINO TO L219");
}

}  // namespace
