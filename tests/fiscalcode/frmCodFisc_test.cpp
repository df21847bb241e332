#include "fiscalcode/frmCodFisc.h"

#include "platform/failure_words.h"
#include "support/screen_desk.h"

namespace vorbano::test {
namespace {

class CodFisc : public ScreenDesk<frmCodFisc> {
  protected:
    CodFisc() { fillPlaces(places); }

    /// "name province code", the part that the program added in brackets.
    std::string place() {
        std::string name = text("Text1");
        const int from = screen->Text1.markedFrom();
        if (from >= 0) name = name.substr(0, static_cast<std::size_t>(from)) + "[" + name.substr(from) + "]";
        return name + " " + text("Text2") + " " + text("Text3");
    }
    bool wrong() { return screen->Text1.tone() == Tone::wrong; }
    void edit(const char* words) { EXPECT_EQ(clerk().edit(control("Text1"), words), Refusal::none); }
    void typePerson(const char* cognome, const char* nome, const char* born) {
        type("txtCognome", cognome);
        type("txtNome", nome);
        type("txtDataNascita", born);
        leave();
    }
};

TEST_F(CodFisc, OpensForAManBornInItaly) {
    open();
    EXPECT_EQ(text("cboSesso"), "M");
    EXPECT_FALSE(ticked("Check1"));
    for (const char* result : {"Text2", "Text3", "txtCodiceFiscale"}) EXPECT_FALSE(operable(result)) << result;
}

TEST_F(CodFisc, WorksOutTheCode) {
    open();
    typePerson("BIANCHI", "ANNA", "5/3/1975");
    EXPECT_EQ(text("txtDataNascita"), "05/03/1975");
    choose("cboSesso", "F");
    type("Text1", "MILANO");
    click("cmdElabora");
    EXPECT_EQ(text("txtCodiceFiscale"), "BNCNNA75C45F205O");
}

TEST_F(CodFisc, WorksOutTheCodeOfSomeoneBornAbroad) {
    open();
    typePerson("DUPONT", "ZOÉ", "21/03/2003");
    choose("cboSesso", "F");
    tick("Check1");
    type("Text1", "fr");
    EXPECT_EQ(place(), "FR[ANCIA] EE Z110");
    click("cmdElabora");
    EXPECT_EQ(text("txtCodiceFiscale").substr(0, 15), "DPNZOX03C61Z110");
}

TEST_F(CodFisc, RefusesADateThatIsNone) {
    open();
    typePerson("BIANCHI", "ANNA", "31/02/1975");
    box("Codice Fiscale", "La data di nascita non e' valida.");
    click("cmdElabora");
    EXPECT_EQ(text("txtCodiceFiscale"), "");
    EXPECT_EQ(focused(), "txtDataNascita");
}

TEST_F(CodFisc, CompletesTheNameKeyByKey) {
    open();
    edit("R");
    EXPECT_EQ(place(), "R[OMA] RM H501");
    edit("RO");
    EXPECT_EQ(place(), "RO[MA] RM H501");
    edit("ROMA");
    EXPECT_EQ(place(), "ROMA RM H501");
    edit("ROMAN");
    EXPECT_EQ(place(), "ROMAN[A] SS H507");
    edit("ROMAG");
    EXPECT_EQ(place(), "ROMAG[NANO SESIA] NO H502");
}

TEST_F(CodFisc, TakesSmallLettersForCapitals) {
    open();
    type("Text1", "mil");
    EXPECT_EQ(place(), "MIL[ANO] MI F205");
}

TEST_F(CodFisc, GoesOnWhenTheKeyIsTheLastLetterButOneOfTheName) {
    open();
    edit("MILA");
    EXPECT_EQ(place(), "MILA[NO] MI F205");
    edit("MILAN");
    EXPECT_EQ(place(), "MILAN[O] MI F205");
    edit("MILAN");
    EXPECT_EQ(place(), "MILAN  ");
}

TEST_F(CodFisc, LetsABackspaceTakeAwayWhatWasAdded) {
    open();
    edit("ROM");
    EXPECT_EQ(place(), "ROM[A] RM H501");
    edit("ROM");  // the marked part is gone
    EXPECT_EQ(place(), "ROM  ");
    edit("RO");
    EXPECT_EQ(place(), "RO  ");
    edit("ROM");
    EXPECT_EQ(place(), "ROM[A] RM H501");
}

TEST_F(CodFisc, FindsAPlaceAgainWhenABackspaceLeavesItsWholeName) {
    open();
    edit("ROMAN");
    edit("ROMANA");
    edit("ROMAN");
    EXPECT_EQ(place(), "ROMAN  ");
    edit("ROMA");
    EXPECT_EQ(place(), "ROMA RM H501");
}

TEST_F(CodFisc, TellsOnceThatAMunicipalityIsNotInTheList) {
    open();
    edit("ROMA");
    box("Errore", "Comune non in elenco");
    edit("ROMAX");
    EXPECT_TRUE(wrong());
    EXPECT_EQ(place(), "ROMAX ? ?");
    edit("ROMAXY");
    edit("ROMAXYZ");
    EXPECT_TRUE(wrong());
}

TEST_F(CodFisc, PutsTheColourBackWhenTheTextMatchesAgain) {
    open();
    box("Errore", "Comune non in elenco");
    edit("Z");
    EXPECT_TRUE(wrong());
    edit("M");
    EXPECT_FALSE(wrong());
    EXPECT_EQ(place(), "M[ILANO] MI F205");
    box("Errore", "Comune non in elenco");
    edit("MZ");
    EXPECT_TRUE(wrong());
}

TEST_F(CodFisc, TellsThatAStateIsNotInTheList) {
    open();
    tick("Check1");
    box("Errore", "Stato non in elenco");
    edit("Q");
    EXPECT_EQ(place(), "Q ? ?");
}

TEST_F(CodFisc, EmptiesThePlaceWithItsName) {
    open();
    edit("ROMA");
    edit("");
    EXPECT_EQ(place(), "  ");
    edit("  ");
    EXPECT_EQ(place(), "    ");
    EXPECT_FALSE(wrong());
}

TEST_F(CodFisc, EmptiesThePlaceWhenTheListChanges) {
    open();
    edit("ROMA");
    tick("Check1");
    EXPECT_EQ(place(), "  ");
    edit("A");
    EXPECT_EQ(place(), "A[LBANIA] EE Z100");
    tick("Check1", false);
    EXPECT_EQ(place(), "  ");
}

TEST_F(CodFisc, ClosesOnEsci) {
    open();
    click("Command1");
    EXPECT_FALSE(screen->form.isOpen());
}

/// A list that opens and then cannot be read.
class BrokenList : public MemoryDatabase {
  public:
    BrokenList() : MemoryDatabase(placeTables()) {}
    Result<> state;
    Result<> check() override { return state; }
    Result<std::vector<Row>> seek(std::string_view, std::string_view, std::string_view, int) override {
        return Error{Failure::device, "Comuni.mdb"};
    }
};

struct OnABrokenList : CodFisc {
    BrokenList list;
    void openOnList() {
        screen = std::make_unique<frmCodFisc>(Workplace{files, desktop, staging, printing, screens, list});
        desktop.open(screen->form);
    }
};

TEST_F(OnABrokenList, TellsTheFailureOfASearch) {
    openOnList();
    box("Codice Fiscale", "FasMsg: " + inItalian(Error{Failure::device, "Comuni.mdb"}));
    edit("R");
    EXPECT_EQ(place(), "R  ");
}

TEST_F(OnABrokenList, FindsNothingWhenTheListIsMissing) {
    list.state = Error{Failure::notFound, "Comuni.mdb"};
    openOnList();
    box("Errore", "Comune non in elenco");
    edit("R");
    edit("RO");
    EXPECT_EQ(place(), "RO ? ?");
}

struct Exporting : CodFisc {
    std::vector<std::string> taken;
    void openFor() {
        screen = std::make_unique<frmCodFisc>(Workplace{files, desktop, staging, printing, screens, places},
                                              [this](const std::string& code) { taken.push_back(code); });
        desktop.open(screen->form);
    }
};

TEST_F(Exporting, HandsTheCodeOverAndCloses) {
    openFor();
    typePerson("BIANCHI", "ANNA", "05/03/1975");
    choose("cboSesso", "F");
    type("Text1", "MIL");
    click("cmdElabora");
    click("cmdEsporta");
    EXPECT_THAT(taken, ::testing::ElementsAre("BNCNNA75C45F205O"));
    EXPECT_FALSE(screen->form.isOpen());
}

TEST_F(Exporting, HandsNothingOverWhenNothingWasWorkedOut) {
    openFor();
    click("cmdEsporta");
    EXPECT_THAT(taken, ::testing::IsEmpty());
    EXPECT_FALSE(screen->form.isOpen());
}

}  // namespace
}  // namespace vorbano::test
