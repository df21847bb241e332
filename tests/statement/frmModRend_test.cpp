// The correction of a statement: what is shown, what can be changed, what is stored.

#include "statement_desk.h"

namespace vorbano::test {
namespace {

constexpr const char* phone = "Spese collegamenti telefonici";

/// 10,01 to 10,19 in the order of the file, of no sum at all.
std::string savedRendi() {
    return laidRendi({1001, 1002, 1003, 1004, 1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012, 1013, 1014, 1015, 1016,
                      1017, 1018, 1019});
}

class Correcting : public Correction {
  protected:
    void layStatement(std::string_view type, std::string_view date = someDay) {
        ASSERT_TRUE(lay(files, statementPath(type, date, "Rendi.vbn"), savedRendi()));
        ASSERT_TRUE(lay(files, statementPath(type, date, "Tprov.vbn"), amount(20, 1) + amount(20, 2)));
        ASSERT_TRUE(lay(files, statementPath(type, date, "DivSt.vbn"), amount(20, 3) + amount(20, 4)));
    }
    void find(std::string_view type, std::string_view date = someDay) {
        layStatement(type, date);
        callUp(type, date);
    }
    void save() {
        box("Rendiconto", "Dati salvati");
        click("cmdSalva");
    }
};

struct CorrectionRow {
    const char* type;
    const char* frame3;
    const char* assunzioni;  ///< what the two screen fields of the rotated places show
    const char* necessita;
    const char* text1;
    const char* carico2;
    const char* totStato;
    const char* totComune;
    const char* totProv;
    const char* magMis;
    const char* cartRegione;
};
void PrintTo(const CorrectionRow& row, std::ostream* out) { *out << row.type; }

const CorrectionRow correctionRows[] = {
    {"Europee", phone, "10,11", "10,16", "10,10", "0,00", "0,00", "0,00", "0,00", "0,00", "0,00"},
    {"Europee_Comunali", phone, "10,11", "10,16", "10,10", "0,00", "10,06", "10,17", "0,00", "0,00", "10,18"},
    {"Referendum_Comunali", phone, "10,11", "10,16", "10,10", "0,00", "10,06", "10,17", "0,00", "0,00", "10,18"},
    {"Provinciali", designed3, "10,10", "10,11", "10,16", "0,00", "0,00", "0,00", "20,01", "20,02", "0,00"},
    {"Provinciali_Comunali", designed3, "10,10", "10,11", "10,16", "0,00", "20,03", "20,04", "20,01", "20,02", "0,00"},
    {"Comunali", phone, "10,11", "10,16", "10,10", "0,00", "0,00", "0,00", "20,01", "20,02", "0,00"},
    {"Referendum", phone, "10,11", "10,16", "10,10", "0,00", "0,00", "0,00", "0,00", "0,00", "0,00"},
    {"Politiche", phone, "10,11", "10,16", "10,10", "0,00", "0,00", "0,00", "20,01", "20,02", "0,00"},
    {"Regionali", phone, "10,11", "10,16", "10,10", "0,00", "0,00", "0,00", "20,01", "20,02", "0,00"},
    {"Politiche_Comunali", designed3, "10,11", "10,16", "10,10", "0,00", "0,00", "0,00", "20,01", "20,02", "0,00"},
    {"Politiche_Regionali", designed3, "10,11", "10,16", "10,10", "10,17", "20,03", "20,04", "20,01", "20,02", "10,18"},
};

class CorrectionOfType : public Correcting, public ::testing::WithParamInterface<CorrectionRow> {
  protected:
    const CorrectionRow& row() { return GetParam(); }
    void expectLocked() {
        for (const char* name : typedLines) EXPECT_FALSE(enabled(name)) << name;
        for (const char* name :
             {"txtCarico", "txtCarico2", "txtTotStato", "txtTotComune", "txtTotProv", "txtCartRegione", "txtCartStato",
              "Option1", "Option2", "Option3", "Option4", "cmdSalva"})
            EXPECT_FALSE(enabled(name)) << name;
    }
};

TEST_P(CorrectionOfType, ShowsTheStatementAsItWasSaved) {
    find(row().type);
    const std::pair<const char*, const char*> common[] = {
        {"txtOnorari", "10,01"},   {"txtStraordinario", "10,02"}, {"txtSpeciali", "10,03"},
        {"txtCarico", "10,04"},    {"txtIndennità", "10,05"},     {"txtStampanti", "10,07"},
        {"txtTrasporti", "10,08"}, {"txtDisciplina", "10,09"},    {"txtMissioni", "10,12"},
        {"txtTotale", "10,13"},    {"txtAcconti", "10,14"},       {"txtDifferenza", "10,15"}};
    for (const auto& [name, shown] : common) EXPECT_EQ(text(name), shown) << name;
    EXPECT_EQ(text("txtAssunzioni"), row().assunzioni);
    EXPECT_EQ(text("txtNecessità"), row().necessita);
    EXPECT_EQ(text("Text1"), row().text1);
    EXPECT_EQ(text("txtCarico2"), row().carico2);
    EXPECT_EQ(text("txtTotStato"), row().totStato);
    EXPECT_EQ(text("txtTotComune"), row().totComune);
    EXPECT_EQ(text("txtTotProv"), row().totProv);
    EXPECT_EQ(text("txtMagMis"), row().magMis);
    EXPECT_EQ(text("txtCartRegione"), row().cartRegione);
    EXPECT_EQ(text("Frame3"), row().frame3);
    EXPECT_EQ(text("Frame19"), travel);
    EXPECT_EQ(text("Frame12"), "Ulteriori spese");
    EXPECT_EQ(text("txtFraz"), "");
    EXPECT_EQ(text("Label15"), "Differenza a debito") << "10,14 are above 10,13";
    expectLocked();
    EXPECT_TRUE(enabled("Check1"));
    EXPECT_EQ(focused(), "Check1");
}

TEST_P(CorrectionOfType, IsUnlockedByTheBox) {
    layStatement(row().type);
    // No parts typed anywhere: the whole lines.
    ASSERT_TRUE(lay(files, statementPath(row().type, someDay, "Rendi.vbn"),
                    laidRendi({1, 2, 3, 4, 5, 0, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 0, 0, 0})));
    ASSERT_TRUE(lay(files, statementPath(row().type, someDay, "DivSt.vbn"), ""));
    callUp(row().type);
    tick("Check1");
    for (const char* name : typedLines) EXPECT_TRUE(operable(name)) << name;
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(focused(), "txtIndennità");
    EXPECT_FALSE(operable("txtCarico"));
    const std::string_view type = row().type;
    EXPECT_EQ(enabled("txtCarico2"), type == "Politiche_Regionali");
    EXPECT_EQ(operable("txtTotProv"), type == "Provinciali_Comunali");
    EXPECT_EQ(operable("txtTotComune"), type == "Provinciali_Comunali");
    EXPECT_FALSE(operable("txtTotStato"));
    EXPECT_FALSE(operable("txtCartRegione"));
    const bool choices = type == "Europee_Comunali" || type == "Referendum_Comunali" || type == "Politiche_Regionali";
    for (const char* name : {"Option1", "Option2", "Option3", "Option4"}) EXPECT_EQ(operable(name), choices) << name;
    for (const char* name : {"txtOnorari", "txtSpeciali", "txtStraordinario", "txtTotale", "txtDifferenza"})
        EXPECT_FALSE(operable(name)) << name;
    tick("Check1", false);
    expectLocked();
}

/// One line and the advances are changed; total and difference follow; what the type does not use stays.
TEST_P(CorrectionOfType, StoresOverTheRecord) {
    find(row().type);
    tick("Check1");
    if (row().type == std::string_view("Politiche_Regionali")) click("Option1");
    line("txtTrasporti", "100");
    save();
    EXPECT_EQ(focused(), "Combo1");
    EXPECT_EQ(text("txtTrasporti"), "");
    const bool europee = row().type == std::string_view("Europee");
    const bool divided = std::string_view(row().totStato) == "10,06";
    const std::string expected =
        laidRendi({1001, 1002, 1003, europee ? 0 : 1004, 1005, divided ? 1006 : 0, 1007, 10000, 1009, 1010, 1011, 1012,
                   1013, 1014, 1015, 1016, europee ? 0 : 1017, europee ? 0 : 1018, europee ? 0 : 1019});
    EXPECT_EQ(stored(row().type, "Rendi.vbn"), toHex(expected));
    EXPECT_EQ(stored(row().type, "Tprov.vbn"), toHex(amount(20, 1) + amount(20, 2)));
    const std::string divSt = divided ? amount(10, 6) + amount(10, 17) : amount(20, 3) + amount(20, 4);
    EXPECT_EQ(stored(row().type, "DivSt.vbn"), toHex(divSt)) << "written where the parts are typed";
}

INSTANTIATE_TEST_SUITE_P(All, CorrectionOfType, ::testing::ValuesIn(correctionRows),
                         [](const auto& one) { return std::string(one.param.type); });

TEST_F(Correcting, ShowsWhatWasSavedWhenTheFeesChange) {
    find("Comunali");
    click("cmdAnnulla");
    ASSERT_TRUE(lay(files, statementPath("Comunali", someDay, "Seggi.vbn"), laidFee(216, 99900)));
    ASSERT_TRUE(lay(files, statementPath("Comunali", someDay, "Speciale.vbn"), ""));
    again("Comunali");
    EXPECT_EQ(text("txtOnorari"), "10,01");
    EXPECT_EQ(text("txtSpeciali"), "10,03");
    EXPECT_EQ(text("txtStraordinario"), "10,02");
}

TEST_F(Correcting, ComputesTotalAndDifferenceAsTheEntryDoes) {
    find("Politiche_Regionali");
    tick("Check1");
    click("Option1");
    line("txtStampanti", "0");
    click("Option4");
    line("txtAssunzioni", "0");
    for (const char* name : {"txtIndennità", "txtTrasporti", "txtDisciplina", "Text1", "txtNecessità"}) line(name, "0");
    line("txtMissioni", "0,01");
    // 10,01 + 10,02 + 10,03 + 10,04 and 10,17 of the second body
    EXPECT_EQ(text("txtTotale"), "50,28");
    line("txtAcconti", "50,29");
    EXPECT_EQ(text("txtDifferenza"), "-0,01");
    EXPECT_EQ(text("Label15"), "Differenza a debito");
    EXPECT_EQ(text("lblAvviso"), "");
}

TEST_F(Correcting, OfTwoBodiesOpensEitherTheLineOrItsParts) {
    find("Politiche_Regionali");
    EXPECT_TRUE(screen->Option2.checked()) << "the parts were typed";
    EXPECT_TRUE(screen->Option3.checked());
    EXPECT_FALSE(visible("Option3"));
    tick("Check1");
    for (const char* name : {"txtTotStato", "txtTotComune", "txtCartRegione", "txtCartStato"})
        EXPECT_TRUE(operable(name)) << name;
    EXPECT_FALSE(operable("txtStampanti"));
    EXPECT_FALSE(operable("txtAssunzioni"));
    click("Option1");
    EXPECT_EQ(focused(), "txtStampanti");
    click("Option4");
    EXPECT_EQ(focused(), "txtAssunzioni");
    EXPECT_FALSE(operable("txtTotStato"));
    EXPECT_FALSE(operable("txtCartStato"));
    save();
    // The shares are stored whether they are on show or not.
    EXPECT_EQ(stored("Politiche_Regionali", "Rendi.vbn"),
              toHex(laidRendi({1001, 1002, 1003, 1004, 1005, 0, 1007, 1008, 1009, 1010, 1011, 1012, 1013, 1014, 1015,
                               1016, 1017, 1018, 1019})));
}

TEST_F(Correcting, OfTheReferendumDayHasItsWords) {
    find("Referendum_Comunali", referendum2022);
    EXPECT_EQ(text("Frame19"), pandemic);
    EXPECT_EQ(text("Frame12"), "Ulteriori spese");
    EXPECT_EQ(text("Label1"), "A totale carico Stato");
    EXPECT_EQ(text("Label10"), "A totale carico Stato");
    EXPECT_TRUE(visible("Label1")) << "the parts were typed";
    EXPECT_TRUE(visible("txtFraz"));
    EXPECT_EQ(text("Label16"), "di cui importo totale 5/6 Stato + Spese postali + cabine elettorali");
    // 8,34 (10,01), 8,35 (10,02), 8,36 (10,03), 8,37 (10,04), 8,38 (8,375 of 10,05), 8,39 (10,07), 8,40 (10,08), 8,41
    // (10,09), 8,42 (10,10), 8,43 (10,12), and 10,11 + 10,16 whole.
    EXPECT_EQ(text("txtFraz"), "104,12");
    tick("Check1");
    EXPECT_TRUE(operable("txtCarico"));
    line("txtCarico", "20");
    line("txtMissioni", "0");
    // 10,01 + 10,02 + 10,03 + 20 + 10,05 + 10,07 + 10,08 + 10,09 + 10,10 + 10,11 + 10,16
    EXPECT_EQ(text("txtTotale"), "120,72");
    // 104,12 - 8,37 + 16,67 - 8,43
    EXPECT_EQ(text("txtFraz"), "103,99");
    line("txtAcconti", "100");
    EXPECT_EQ(text("txtDifferenza"), "3,99");
    EXPECT_EQ(text("Label15"), "Differenza a credito");
}

TEST_F(Correcting, OfTheNeighboursOfTheReferendumDayHasNone) {
    for (const char* date : {"11-06-22", "13-06-22"}) {
        find("Referendum_Comunali", date);
        EXPECT_EQ(text("Frame19"), travel) << date;
        EXPECT_EQ(text("Label1"), "Stato") << date;
        EXPECT_EQ(text("Label10"), "Comune") << date;
        EXPECT_FALSE(visible("txtFraz")) << date;
        tick("Check1");
        EXPECT_FALSE(operable("txtCarico")) << date;
        click("cmdAnnulla");
    }
}

TEST_F(Correcting, OfTheReferendumDayHasThePandemicForEveryType) {
    for (const char* type : {"Referendum", "Comunali", "Europee"}) {
        find(type, referendum2022);
        EXPECT_EQ(text("Frame19"), pandemic) << type;
        tick("Check1");
        EXPECT_EQ(operable("txtCarico"), std::string_view(type) == "Referendum") << type;
        EXPECT_FALSE(visible("txtFraz")) << type;
        click("cmdAnnulla");
    }
}

TEST_F(Correcting, HasTheCaptionOfTheEuropeanHalvesWithOneBlank) {
    layCosts(files, "Europee_Comunali", someDay);
    layCosts(files, "Referendum_Comunali", someDay);
    open();
    choose("Combo1", "Europee_Comunali");
    EXPECT_EQ(text("Option4"), "L'importo totale sarà ripartito al 50%");
    choose("Combo1", "Referendum_Comunali");
    EXPECT_EQ(text("Option4"), "L'importo totale sarà ripartito  al 50%");
}

TEST_F(Correcting, WithEmptySmallFilesShowsZero) {
    ASSERT_TRUE(lay(files, statementPath("Provinciali_Comunali", someDay, "Rendi.vbn"), savedRendi()));
    callUp("Provinciali_Comunali");
    for (const char* name : {"txtTotProv", "txtMagMis", "txtTotComune"}) EXPECT_EQ(text(name), "0,00") << name;
    EXPECT_EQ(stored("Provinciali_Comunali", "Tprov.vbn"), "");
    EXPECT_EQ(stored("Provinciali_Comunali", "DivSt.vbn"), "");
    tick("Check1");
    line("txtTotProv", "3");
    line("txtTotComune", "4");
    line("txtMagMis", "5");
    save();
    EXPECT_EQ(stored("Provinciali_Comunali", "Tprov.vbn"), toHex(amount(3) + amount(5)));
    EXPECT_EQ(stored("Provinciali_Comunali", "DivSt.vbn"), toHex(amount(0) + amount(4)));
}

TEST_F(Correcting, OfTypesWithoutSmallFilesDoesNotMakeThem) {
    for (const char* type : {"Europee", "Referendum"}) {
        ASSERT_TRUE(lay(files, statementPath(type, someDay, "Rendi.vbn"), savedRendi()));
        callUp(type);
        EXPECT_EQ(stored(type, "Tprov.vbn"), missing()) << type;
        EXPECT_EQ(stored(type, "DivSt.vbn"), missing()) << type;
        click("cmdAnnulla");
    }
}

// Search.

TEST_F(Correcting, WithoutTypeOrDateSearchesNothing) {
    layStatement("Comunali");
    open();
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo1");
    choose("Combo1", "Comunali");
    click("cmdRicerca");
    EXPECT_EQ(focused(), "Combo1");
    EXPECT_FALSE(enabled("Check1"));
    EXPECT_EQ(clerkNow().tick(control("Check1"), true), Refusal::disabled);
}

TEST_F(Correcting, WithoutAStatementTellsSo) {
    layCosts(files, "Comunali", someDay);
    open();
    identify("Comunali", someDay);
    box("Errore", "Non sono stati trovati record per la compilazione del rendiconto. Inserire i dati esatti");
    click("cmdRicerca");
    EXPECT_FALSE(enabled("Check1"));
    EXPECT_EQ(text("txtOnorari"), "");
}

TEST_F(Correcting, WithoutAFolderOrATypeTellsSo) {
    layCosts(files, "Comunali", someDay);
    layCosts(files, "Circoscrizionali", someDay);
    open();
    choose("Combo1", "Comunali");
    type("txtDataEle", "1/1/24");
    box("Errore", "Non sono stati trovati record per la compilazione del rendiconto. Inserire i dati esatti");
    click("cmdRicerca");
    identify("Circoscrizionali", someDay);
    box("Errore", "Non sono stati trovati record per la compilazione del rendiconto. Inserire i dati esatti");
    click("cmdRicerca");
    EXPECT_FALSE(enabled("Check1"));
}

TEST_F(Correcting, WithoutReadableOvertimeTellsSo) {
    layStations(files, "Comunali", someDay);
    layStatement("Comunali");
    ASSERT_TRUE(files.makeFolder(statementPath("Comunali", someDay, "Meirin.vbn")));
    open();
    identify("Comunali", someDay);
    box("Rendiconto", "Dati per la compilazione del rendiconto inesistenti");
    click("cmdRicerca");
    EXPECT_FALSE(enabled("Check1"));
}

TEST_F(Correcting, KeepsTheElectionOnceSomethingIsTyped) {
    find("Comunali");
    tick("Check1");
    type("txtTrasporti", "5");
    tick("Check1", false);
    EXPECT_EQ(text("txtTrasporti"), "5,00") << "locked, and not lost";
    EXPECT_EQ(clerkNow().choose(control("Combo1"), "Comunali"), Refusal::disabled);
    EXPECT_EQ(clerkNow().click(control("cmdRicerca")), Refusal::disabled);
    tick("Check1");
    EXPECT_TRUE(operable("txtTrasporti"));
    click("cmdAnnulla");
    EXPECT_EQ(stored("Comunali", "Rendi.vbn"), toHex(savedRendi()));
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_FALSE(ticked("Check1"));
}

TEST_F(Correcting, GivenUpStoresNothing) {
    find("Provinciali_Comunali");
    tick("Check1");
    line("txtTotProv", "77");
    click("cmdAnnulla");
    EXPECT_EQ(stored("Provinciali_Comunali", "Rendi.vbn"), toHex(savedRendi()));
    EXPECT_EQ(stored("Provinciali_Comunali", "Tprov.vbn"), toHex(amount(20, 1) + amount(20, 2)));
    EXPECT_EQ(text("txtTotProv"), "");
    EXPECT_EQ(focused(), "Combo1");
}

}  // namespace
}  // namespace vorbano::test
