// The list of all staff names ever entered, and the correction of one of them.

#include "authorisation_desk.h"

namespace vorbano::test {
namespace {

class Nomi : public AuthorisationTest {
  protected:
    Nomi() { EXPECT_TRUE(lay(files, "Params/Dipend.dat", before)); }
    void openList() {
        open();
        menu("mnuDipendenti");
    }
    const std::string before = padded("VERDI ALDO", 60) + padded("NERI NICCOL\xD2", 60) + padded("BIANCHI ADA", 60);
};

TEST_F(Nomi, AreShownTrimmed) {
    openList();
    EXPECT_TRUE(visible("Frame7"));
    EXPECT_EQ(text("Frame7"), "Dipendenti inseriti");
    EXPECT_THAT(screen->List1.items(), ::testing::ElementsAre("VERDI ALDO", "NERI NICCOLÒ", "BIANCHI ADA"));
    EXPECT_EQ(focused(), "List1");
    EXPECT_FALSE(visible("Frame16"));
}

TEST_F(Nomi, OfNobodyIsAnEmptyList) {
    ASSERT_TRUE(lay(files, "Params/Dipend.dat", ""));
    openList();
    EXPECT_THAT(screen->List1.items(), ::testing::IsEmpty());
}

TEST_F(Nomi, SelectedOpenTheirCorrection) {
    openList();
    chooseIndex("List1", 1);
    EXPECT_TRUE(visible("Frame16"));
    EXPECT_EQ(text("txtNominativo"), "NERI NICCOLÒ");
    EXPECT_EQ(text("Label88"), "2");
    EXPECT_EQ(focused(), "txtNominativo");
}

TEST_F(Nomi, CorrectedTakeTheirRecord) {
    openList();
    chooseIndex("List1", 1);
    type("txtNominativo", " NERI NICOLÒ ");
    click("Command2");
    EXPECT_EQ(names(), padded("VERDI ALDO", 60) + padded("NERI NICOL\xD2", 60) + padded("BIANCHI ADA", 60));
    EXPECT_FALSE(visible("Frame16"));
    EXPECT_EQ(text("Label88"), "");
    EXPECT_THAT(screen->List1.items(), ::testing::ElementsAre("VERDI ALDO", "NERI NICOLÒ", "BIANCHI ADA"));
    EXPECT_THAT(screen->cboDipendenti.items(), ::testing::Contains("NERI NICOLÒ" + std::string(25, ' ') + "2"));
}

TEST_F(Nomi, CorrectedToNothingAreRefused) {
    openList();
    chooseIndex("List1", 0);
    type("txtNominativo", "  ");
    box("Errore", noName);
    click("Command2");
    EXPECT_EQ(focused(), "txtNominativo");
    EXPECT_EQ(names(), before);
}

TEST_F(Nomi, NotCorrectedStay) {
    openList();
    chooseIndex("List1", 0);
    type("txtNominativo", "ALTRO");
    click("Command3");
    EXPECT_FALSE(visible("Frame16"));
    EXPECT_TRUE(visible("Frame7"));
    EXPECT_EQ(text("Label88"), "");
    EXPECT_EQ(names(), before);
}

TEST_F(Nomi, TheListClosesWithItsCorrection) {
    openList();
    chooseIndex("List1", 0);
    click("cmdElenco");
    EXPECT_FALSE(visible("Frame7"));
    EXPECT_FALSE(visible("Frame16"));
    EXPECT_EQ(text("Label88"), "");
}

TEST_F(Nomi, AnOpenCorrectionIsNotTheEmployeeOnShow) {
    toName();
    menu("mnuDipendenti");
    chooseIndex("List1", 0);
    saveEmployee("ROSSI MARIA");
    EXPECT_EQ(names(), before + padded("ROSSI MARIA", 60));
    EXPECT_TRUE(visible("Frame16"));
    type("txtNominativo", "VERDI ALDA");
    click("Command2");
    EXPECT_EQ(names().substr(0, 60), padded("VERDI ALDA", 60));
}

TEST_F(Nomi, OneIsCorrectedAtATime) {
    toName();
    menu("mnuDipendenti");
    chooseIndex("List1", 0);
    menu("mnuNome");
    chooseIndex("cboDipendenti", 2);
    EXPECT_FALSE(visible("Frame16")) << "the choice from the other list is corrected now";
    EXPECT_EQ(text("Label88"), "3");
    chooseIndex("List1", 1);
    EXPECT_EQ(text("Label88"), "2");
    saveEmployee("BIANCHI ADELE");
    EXPECT_EQ(names(), before + padded("BIANCHI ADELE", 60));
}

TEST_F(Nomi, ThatCannotBeReadAreToldInWords) {
    open();
    files.makeReadOnly("Params/Dipend.dat");
    box("Errore", "Il file Params/Dipend.dat non può essere letto o scritto: controllare che non sia di sola lettura.");
    menu("mnuDipendenti");
    EXPECT_FALSE(visible("Frame7"));
}

}  // namespace
}  // namespace vorbano::test
