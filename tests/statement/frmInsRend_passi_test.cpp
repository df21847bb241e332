// What is on show and can be used on the entry of a statement, for each type of election and after each step.

#include "statement_desk.h"

namespace vorbano::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* designed19 = "Compenso lavoro straordinario";
constexpr const char* designed5 = "+IRAP ed INAIL a totale carico:";
constexpr const char* set3 = "Rimborso spese ai presidenti di seggio";
constexpr const char* thirds = "L'importo totale sarà ripartito 1/3 Regione  e  2/3 Stato";
constexpr const char* halves = "L'importo totale sarà ripartito 1/2 Comune  e  1/2 Stato";
constexpr const char* hidden = "(hidden)";

/// One type of election, as the office tells it.
struct EntryRow {
    const char* type;
    const char* frame19;  ///< before a date is chosen
    const char* label5;
    bool twoBodies;  ///< Label6, Label7 and txtCarico2
    const char* frame3;
    const char* frame9;
    const char* label8;
    const char* option1;  ///< its caption; hidden when the printed matter has no choice
    bool postalChoice;    ///< Option3, Option4
    bool postalShares;    ///< on show without a choice
    const char* frame7;
    const char* indennita;  ///< at the opening
    const char* focus;      ///< at the opening
    bool provincia;         ///< parts of Provincia and Comune
};
void PrintTo(const EntryRow& row, std::ostream* out) { *out << row.type; }

constexpr const char* ofStato = "Stampati non forniti dallo Stato";
constexpr const char* ofProvincia = "Stampati non forniti dalla Provincia";

const EntryRow entryRows[] = {
    {"Politiche", pandemic, hidden, false, set3, "Spese postali", hidden, hidden, false, false, ofStato, "",
     "txtStampanti", false},
    {"Politiche_Regionali", designed19, designed5, true, designed3, "Spese spedizione cartoline",
     "agli elettori residenti all'estero", thirds, false, true, ofStato, "0,00", "txtIndennità", false},
    {"Europee_Comunali", designed19, designed5, false, set3, "Spese postali", hidden, halves, true, false, ofStato,
     "0,00", "txtIndennità", false},
    {"Referendum_Comunali", pandemic, hidden, false, set3, "Spese postali", hidden, halves, true, false, ofStato,
     "0,00", "txtIndennità", false},
    {"Referendum", "", hidden, false, set3, "Spese postali", hidden, hidden, false, false, ofStato, "", "txtStampanti",
     false},
    {"Comunali", "", hidden, false, set3, "Spese postali", hidden, hidden, false, false, ofStato, "", "txtStampanti",
     false},
    {"Regionali", "", hidden, false, set3, "Spese postali", hidden, hidden, false, false, ofStato, "", "txtStampanti",
     false},
    {"Europee", designed19, designed5, false, set3, "Spese postali", hidden, hidden, false, false, ofStato, "0,00",
     "txtIndennità", false},
    {"Provinciali", designed19, designed5, false, designed3, "Spese per altre necessità", hidden, hidden, false, false,
     ofProvincia, "", "txtStampanti", false},
    {"Provinciali_Comunali", designed19, designed5, false, designed3, "Spese per altre necessità", hidden, hidden,
     false, false, ofProvincia, "", "txtStampanti", true},
    {"Politiche_Comunali", designed19, designed5, false, designed3, "Spese per altre necessità", hidden, hidden, false,
     false, ofStato, "", "txtStampanti", false},
};

class EntryOfType : public StatementDesk<frmInsRend>, public ::testing::WithParamInterface<EntryRow> {
  protected:
    const EntryRow& row() { return GetParam(); }
    std::string seen(std::string_view name) { return visible(name) ? text(name) : hidden; }
    void expectCaptions() {
        EXPECT_EQ(seen("Label5"), row().label5);
        for (const char* name : {"Label6", "Label7", "txtCarico2"}) EXPECT_EQ(visible(name), row().twoBodies) << name;
        EXPECT_EQ(text("Frame3"), row().frame3);
        EXPECT_EQ(text("Frame9"), row().frame9);
        EXPECT_EQ(seen("Label8"), row().label8);
        EXPECT_EQ(seen("Option1"), row().option1);
        EXPECT_EQ(seen("Option2"), row().option1 == hidden ? hidden : "Senza Riparto");
        EXPECT_EQ(seen("Option3"), row().postalChoice ? "Senza Riparto" : hidden);
        EXPECT_EQ(seen("Option4"), row().postalChoice ? "L'importo totale sarà ripartito  al 50%" : hidden);
        for (const char* name : {"txtCartRegione", "txtCartStato", "Label11", "Label12"})
            EXPECT_EQ(visible(name), row().postalShares) << name;
        EXPECT_FALSE(visible("Label13"));
        EXPECT_EQ(text("Frame7"), row().frame7);
        EXPECT_EQ(text("Frame12"), "Ulteriori spese");
        EXPECT_TRUE(visible("txtCarico"));
        for (const char* name : {"txtAta", "Frame1", "Label1", "txtTotStato"}) EXPECT_FALSE(visible(name)) << name;
    }
    void expectAllClosed() {
        for (const char* name : typedLines) EXPECT_FALSE(enabled(name)) << name;
        for (const char* name :
             {"txtCarico", "txtCarico2", "txtTotStato", "txtTotComune", "txtTotProv", "txtCartRegione", "txtCartStato",
              "Option1", "Option2", "Option3", "Option4", "cmdSalva"})
            EXPECT_FALSE(enabled(name)) << name;
    }
};

TEST_P(EntryOfType, ChosenSetsTheFrames) {
    layCosts(files, row().type, someDay);
    open();
    choose("Combo1", row().type);
    expectCaptions();
    EXPECT_EQ(text("Frame19"), row().frame19);
    expectAllClosed();
    for (const char* name : {"Label9", "txtTotProv", "Label10", "txtTotComune", "txtFraz", "Label16"})
        EXPECT_FALSE(visible(name)) << name;
    EXPECT_THAT(screen->Combo2.items(), ElementsAre(someDay));
}

TEST_F(Entry, OfTypesOfOneBodyHasNoWordsBesideTheExpense) {
    for (const char* type : {"Referendum", "Comunali", "Regionali"}) {
        callUp(type);
        EXPECT_EQ(text("Label5"), "") << type;
        EXPECT_TRUE(visible("txtCarico")) << type;
    }
}

TEST_P(EntryOfType, WithADateHasTheExpensesOfTheJourney) {
    layCosts(files, row().type, someDay);
    open();
    identify(row().type, someDay);
    EXPECT_EQ(text("txtDataEle"), someDay);
    EXPECT_EQ(text("Frame19"), travel);
    expectCaptions();
    expectAllClosed();
}

TEST_P(EntryOfType, CalledUpOpensItsLines) {
    callUp(row().type);
    expectCaptions();
    EXPECT_EQ(text("Frame19"), travel);
    for (const char* name : typedLines) EXPECT_TRUE(operable(name)) << name;
    EXPECT_EQ(enabled("txtCarico2"), row().twoBodies);
    EXPECT_FALSE(operable("txtCarico")) << "computed, or closed";
    for (const char* name : {"Label9", "txtTotProv", "Label10", "txtTotComune"})
        EXPECT_EQ(visible(name), row().provincia) << name;
    for (const char* name : {"txtTotProv", "txtTotComune"}) EXPECT_EQ(enabled(name), row().provincia) << name;
    EXPECT_EQ(enabled("txtCartRegione"), row().postalShares);
    EXPECT_EQ(enabled("txtCartStato"), row().postalShares);
    EXPECT_FALSE(enabled("txtTotStato"));
    EXPECT_FALSE(enabled("txtAta"));
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(focused(), row().focus);
    EXPECT_FALSE(visible("txtFraz"));
    for (const char* name : {"txtOnorari", "txtSpeciali", "txtStraordinario", "txtTotale", "txtFraz", "txtDifferenza"})
        EXPECT_FALSE(operable(name)) << name;
}

TEST_P(EntryOfType, FetchesFeesAndOvertime) {
    callUp(row().type);
    EXPECT_EQ(text("txtOnorari"), "420,75");
    EXPECT_EQ(text("txtSpeciali"), "178,50");
    EXPECT_EQ(text("txtStraordinario"), row().twoBodies ? "43,67" : "635,24");
    EXPECT_EQ(text("txtCarico"), row().twoBodies ? "333,01" : "0,00");
    EXPECT_EQ(text("txtCarico2"), row().twoBodies ? "258,56" : "");
    EXPECT_EQ(text("txtIndennità"), row().indennita);
    for (const char* name : {"txtMagMis", "txtStampanti", "txtMissioni", "txtTotale", "txtAcconti", "txtDifferenza"})
        EXPECT_EQ(text(name), "") << name;
}

TEST_P(EntryOfType, ThatHasAStatementIsRefused) {
    layCosts(files, row().type, someDay);
    const std::string before = laidRendi({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19});
    ASSERT_TRUE(lay(files, statementPath(row().type, someDay, "Rendi.vbn"), before));
    open();
    identify(row().type, someDay);
    box("Rendiconto", "Rendiconto già inserito");
    click("cmdAnteprima");
    expectAllClosed();
    EXPECT_EQ(focused(), "Combo1");
    for (const char* name : {"txtOnorari", "txtSpeciali", "txtStraordinario", "txtCarico", "txtTotale"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(stored(row().type, "Rendi.vbn"), toHex(before));
}

TEST_P(EntryOfType, GivenUpIsAsAtTheStart) {
    callUp(row().type);
    line("txtTrasporti", "12,5");
    click("cmdAnnulla");
    expectAllClosed();
    for (const char* name : {"Combo1", "Combo2", "txtDataEle", "txtTrasporti", "txtOnorari", "txtStraordinario"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(text("Frame3"), designed3);
    EXPECT_EQ(text("Frame9"), "Spese postali");
    EXPECT_EQ(text("Frame19"), designed19);
    EXPECT_EQ(text("Label5"), designed5);
    EXPECT_EQ(text("Label15"), "Differenza");
    EXPECT_EQ(focused(), "Combo1");
    EXPECT_TRUE(enabled("Combo1"));
    EXPECT_EQ(contentOf(files, statementPath(row().type, someDay, "Rendi.vbn")), "") << "made by the search, and empty";
    EXPECT_EQ(stored(row().type, "Tprov.vbn"), missing());
    EXPECT_EQ(stored(row().type, "DivSt.vbn"), missing());
}

INSTANTIATE_TEST_SUITE_P(All, EntryOfType, ::testing::ValuesIn(entryRows),
                         [](const auto& one) { return std::string(one.param.type); });

// Options.

TEST_F(Entry, OfTwoBodiesDividesThePrintedMatterByFractionsOrByHand) {
    callUp("Politiche_Regionali");
    EXPECT_FALSE(screen->Option1.checked());
    click("Option2");
    EXPECT_EQ(focused(), "txtTotStato");
    for (const char* name : {"Label1", "Label10", "txtTotStato", "txtTotComune"}) EXPECT_TRUE(visible(name)) << name;
    EXPECT_EQ(text("Label1"), "Stato");
    EXPECT_EQ(text("Label10"), "Regione");
    EXPECT_TRUE(enabled("txtTotStato"));
    EXPECT_TRUE(enabled("txtTotComune"));
    EXPECT_TRUE(enabled("txtStampanti"));
    click("Option1");
    EXPECT_EQ(focused(), "txtStampanti");
    EXPECT_FALSE(screen->Option2.checked());
    EXPECT_FALSE(visible("Label1"));
    EXPECT_FALSE(visible("Label10"));
    EXPECT_FALSE(enabled("txtTotStato"));
    EXPECT_FALSE(enabled("txtTotComune"));
    EXPECT_TRUE(enabled("txtStampanti"));
}

TEST_F(Entry, OfTheEuropeanAndTheReferendumDividesTheOtherExpensesToo) {
    for (const char* type : {"Europee_Comunali", "Referendum_Comunali"}) {
        callUp(type);
        EXPECT_EQ(screen->Option1.checked(), std::string_view(type) == "Referendum_Comunali") << type;
        click("Option2");
        EXPECT_EQ(focused(), "txtTotStato");
        EXPECT_EQ(text("Label1"), "Stato");
        EXPECT_EQ(text("Label10"), "Comune");
        click("Option3");
        EXPECT_EQ(focused(), "txtCartRegione");
        for (const char* name : {"Label12", "Label13", "txtCartRegione", "txtCartStato"})
            EXPECT_TRUE(visible(name)) << type << " " << name;
        EXPECT_EQ(text("Label13"), "COMUNE");
        EXPECT_EQ(text("Label12"), "STATO");
        EXPECT_FALSE(visible("Label11"));
        EXPECT_TRUE(enabled("txtCartStato"));
        EXPECT_TRUE(screen->Option2.checked()) << "one choice does not end the other";
        click("Option4");
        EXPECT_EQ(focused(), "txtAssunzioni");
        EXPECT_FALSE(screen->Option3.checked());
        for (const char* name : {"Label12", "Label13", "txtCartRegione", "txtCartStato"})
            EXPECT_FALSE(visible(name)) << type << " " << name;
        EXPECT_FALSE(enabled("txtCartRegione"));
        click("cmdAnnulla");
    }
}

// The days that are fixed in the rules, and their neighbours.

struct Day {
    const char* type;
    const char* date;
    const char* frame19;
    bool caricoTyped;
    bool fiveSixths;
};
void PrintTo(const Day& day, std::ostream* out) { *out << day.type << " " << day.date; }

class EntryOnADay : public StatementDesk<frmInsRend>, public ::testing::WithParamInterface<Day> {};

TEST_P(EntryOnADay, HasItsRules) {
    const Day& day = GetParam();
    callUp(day.type, day.date);
    EXPECT_EQ(text("Frame19"), day.frame19);
    EXPECT_EQ(operable("txtCarico"), day.caricoTyped);
    EXPECT_EQ(focused() == "txtCarico", day.caricoTyped);
    EXPECT_EQ(text("txtCarico"), "0,00");
    for (const char* name : {"txtFraz", "Label16", "Label17"}) EXPECT_EQ(visible(name), day.fiveSixths) << name;
    line("txtMissioni", "0,03");
    EXPECT_EQ(text("txtFraz").empty(), !day.fiveSixths);
}

INSTANTIATE_TEST_SUITE_P(
    All, EntryOnADay,
    ::testing::Values(
        Day{"Comunali", "14-05-23", pandemic, false, false}, Day{"Comunali", "13-05-23", travel, false, false},
        Day{"Comunali", "15-05-23", travel, false, false}, Day{"Comunali", "25-06-23", travel, false, false},
        Day{"Comunali", "12-06-22", travel, false, false}, Day{"Regionali", "25-06-23", pandemic, false, false},
        Day{"Regionali", "24-06-23", travel, false, false}, Day{"Regionali", "26-06-23", travel, false, false},
        Day{"Regionali", "14-05-23", travel, false, false}, Day{"Referendum", "12-06-22", travel, true, false},
        Day{"Referendum", "11-06-22", travel, false, false}, Day{"Referendum", "13-06-22", travel, false, false},
        Day{"Referendum_Comunali", "12-06-22", travel, true, true},
        Day{"Referendum_Comunali", "11-06-22", travel, false, false},
        Day{"Referendum_Comunali", "13-06-22", travel, false, false},
        Day{"Europee", "12-06-22", travel, false, false}));

// Messages.

TEST_F(Entry, WithoutTypeOrDateTellsSo) {
    layCosts(files, "Comunali", someDay);
    open();
    box("Inserimento Rendiconto", "Dati insufficienti per l'inserimento");
    click("cmdAnteprima");
    EXPECT_EQ(focused(), "Combo1");
    choose("Combo1", "Comunali");
    box("Inserimento Rendiconto", "Dati insufficienti per l'inserimento");
    click("cmdAnteprima");
    EXPECT_EQ(focused(), "Combo2") << "the list of dates";
    choose("Combo2", someDay);
    click("cmdAnteprima");
    EXPECT_EQ(text("txtOnorari"), "420,75");
}

TEST_F(Entry, OfADateWithoutAFolderTellsSo) {
    layCosts(files, "Comunali", someDay);
    open();
    choose("Combo1", "Comunali");
    type("txtDataEle", "10/6/24");
    box("Errore", "Non sono stati trovati record per la compilazione del rendiconto. Inserire i dati esatti");
    click("cmdAnteprima");
    EXPECT_EQ(text("txtDataEle"), "10-06-24");
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_FALSE(enabled("txtStampanti"));
    type("txtDataEle", "9/6/24");
    click("cmdAnteprima");
    EXPECT_EQ(text("txtOnorari"), "420,75");
}

TEST_F(Entry, OfAFolderThatIsNoTypeTellsSo) {
    layCosts(files, "Circoscrizionali", someDay);
    open();
    identify("Circoscrizionali", someDay);
    box("Errore", "Non sono stati trovati record per la compilazione del rendiconto. Inserire i dati esatti");
    click("cmdAnteprima");
    EXPECT_FALSE(enabled("cmdSalva"));
}

TEST_F(Entry, WithoutReadableOvertimeTellsSo) {
    layStations(files, "Comunali", someDay);
    ASSERT_TRUE(files.makeFolder(statementPath("Comunali", someDay, "Meirin.vbn")));
    open();
    identify("Comunali", someDay);
    box("Rendiconto", "Dati per la compilazione del rendiconto inesistenti");
    click("cmdAnteprima");
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(text("txtOnorari"), "");
}

TEST_F(Entry, OfEmptyFilesBeginsAtZero) {
    ASSERT_TRUE(makeElectionFolder(files, {"Comunali", someDay}).ok());
    open();
    again("Comunali");
    EXPECT_EQ(text("txtOnorari"), "0,00");
    EXPECT_EQ(text("txtSpeciali"), "0,00");
    EXPECT_EQ(text("txtStraordinario"), "0,00");
    EXPECT_TRUE(enabled("cmdSalva"));
    EXPECT_EQ(contentOf(files, statementPath("Comunali", someDay, "SspecSufr.vbn")), "");
}

TEST_F(Entry, WithoutElectionsHasAnEmptyList) {
    open();
    EXPECT_THAT(screen->Combo1.items(), IsEmpty());
}

// Another election.

TEST_F(Entry, CanBeOfAnotherElectionUntilSomethingIsTyped) {
    layCosts(files, "Europee", someDay);
    callUp("Comunali");
    choose("Combo1", "Europee");
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(text("txtOnorari"), "");
    EXPECT_EQ(text("txtDataEle"), "");
    EXPECT_EQ(text("Combo2"), "");
    EXPECT_THAT(screen->Combo2.items(), ElementsAre(someDay)) << "not both lists";
    choose("Combo2", someDay);
    click("cmdAnteprima");
    type("txtTrasporti", "1");
    EXPECT_EQ(clerkNow().choose(control("Combo1"), "Comunali"), Refusal::disabled);
    EXPECT_EQ(tries("txtDataEle", "10-06-24"), Refusal::disabled);
    EXPECT_EQ(clerkNow().click(control("cmdAnteprima")), Refusal::disabled);
    EXPECT_EQ(text("txtTrasporti"), "1");
}

TEST_F(Entry, OfADateThatIsTypedAnewIsClosed) {
    layCosts(files, "Comunali", "10-06-24");
    callUp("Comunali");
    type("txtDataEle", "10/6/24");
    leave();
    EXPECT_FALSE(enabled("cmdSalva"));
    EXPECT_EQ(text("txtOnorari"), "");
    click("cmdAnteprima");
    EXPECT_TRUE(enabled("cmdSalva"));
}

}  // namespace
}  // namespace vorbano::test
