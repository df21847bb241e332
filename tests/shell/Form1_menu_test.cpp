// The menu of the main window and the screens that it opens.

#include "shell_desk.h"

namespace vorbano::test {
namespace {

struct Way {
    const char* entry;
    const char* caption;
    const char* screen;
    std::vector<const char*> above;  ///< from the innermost outwards
};

const std::vector<Way>& ways() {
    static const std::vector<Way> all = {
        {"mnuStrao", "Compenso Straordinario", "frmParametri", {"mnuTariffe", "mnuFile"}},
        {"mnuTarseg", "Componenti Seggi", "frmTariffeSeggi", {"mnuTariffe", "mnuFile"}},
        {"mnuCancella", "Cancella Elezione", "frmCancella", {"mnuFile"}},
        {"mnuDipendenti", "Cancella dipendenti", "frmElimina", {"mnuFile"}},
        {"mnuDate", "Modifica date periodi", "frmModDate", {"mnuFile"}},
        {"mnuVersa", "Contributi e Ritenute", "frmVersamenti", {"mnuFile"}},
        {"mnuTuttoStampe", "Stampe", "frmTutteStampe", {"mnuFile"}},
        {"mnuInsert", "Autorizzazione", "frmCompStraord", {"mnuCompensoStraordinario"}},
        {"mnuModifica", "Liquidazione", "frmModStraord", {"mnuCompensoStraordinario"}},
        {"mnu1°TurnoN", "1°Turno", "frmSeggi", {"mnuNormaliIns", "mnuNormali", "mnuSeggi1"}},
        {"mnu1°TurnoNmod", "1°Turno", "frmModSeggi", {"mnuNormaliMod", "mnuNormali", "mnuSeggi1"}},
        {"mnu1°TurnoS", "1°Turno", "frmSeggiSpeciali", {"mnuSpecialiIns", "mnuSpeciali", "mnuSeggi1"}},
        {"mnu1°TurnoSm", "1°Turno", "frmModSpeciale", {"mnuSpecialiMod", "mnuSpeciali", "mnuSeggi1"}},
        {"mnuInserto", "Inserimento", "frmInsRend", {"mnuRendicont"}},
        {"mnuModif", "Modifica", "frmModRend", {"mnuRendicont"}},
    };
    return all;
}

class Menu : public ShellTest {
  protected:
    void startWithEnte() {
        layEnte();
        start();
    }
};

TEST_F(Menu, EveryEntryOpensItsScreen) {
    startWithEnte();
    for (const Way& way : ways()) {
        SCOPED_TRACE(way.entry);
        EXPECT_EQ(text(way.entry), way.caption);
        desktop.form(way.screen, nullptr);
        menu(way.entry);
    }
}

TEST_F(Menu, EveryEntryStandsInItsMenu) {
    startWithEnte();
    for (const Way& way : ways()) {
        SCOPED_TRACE(way.entry);
        const auto* entry = dynamic_cast<const MenuEntry*>(&control(way.entry));
        ASSERT_NE(entry, nullptr);
        for (const char* above : way.above) {
            entry = entry->above();
            ASSERT_NE(entry, nullptr);
            EXPECT_EQ(entry->name(), above);
        }
        EXPECT_EQ(entry->above(), nullptr);
    }
}

TEST_F(Menu, TheMenusHaveTheirCaptions) {
    startWithEnte();
    const std::vector<std::pair<const char*, const char*>> captions = {
        {"mnuFile", "&File"},           {"mnuTariffe", "Tariffe"},       {"Ente", "Inserimento Ente"},
        {"mnuInfo", "Versione"},        {"mnuFileEsci", "Esci"},         {"mnuCompensoStraordinario", "&Straordinario"},
        {"mnuSeggi1", "S&eggi"},        {"mnuNormali", "Normali"},       {"mnuNormaliIns", "Inserimento"},
        {"mnuNormaliMod", "Modifica"},  {"mnuSpeciali", "Speciali"},     {"mnuSpecialiIns", "Inserimento"},
        {"mnuSpecialiMod", "Modifica"}, {"mnuRendicont", "&Rendiconto"},
    };
    for (const auto& [entry, caption] : captions) EXPECT_EQ(text(entry), caption) << entry;
}

TEST_F(Menu, EveryEntryIsShown) {
    startWithEnte();
    for (const Way& way : ways()) EXPECT_TRUE(operable(way.entry)) << way.entry;
}

TEST_F(Menu, WhileThePanelOfTheEnteIsInUseNothingElseOpens) {
    startWithEnte();
    menu("Ente");
    for (const Way& way : ways()) EXPECT_EQ(clerk().menu(control(way.entry)), Refusal::disabled) << way.entry;
    EXPECT_EQ(clerk().menu(control("mnuFileEsci")), Refusal::disabled);
}

TEST_F(Menu, VersioneShowsTheSplashWindowAgain) {
    startWithEnte();
    EXPECT_FALSE(desktop.beside->isOpen());
    menu("mnuInfo");
    EXPECT_TRUE(desktop.beside->isOpen());
    EXPECT_TRUE(screen->form.isOpen()) << "the main window stays usable";
}

TEST_F(Menu, EsciEndsTheProgram) {
    startWithEnte();
    menu("mnuFileEsci");
    EXPECT_FALSE(screen->form.isOpen());
}

}  // namespace
}  // namespace vorbano::test
