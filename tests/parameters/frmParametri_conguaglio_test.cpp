// The adjustment on the staff's tab: what is on show, the rates of a date of effect, the run.

#include "adjusted_employees.h"
#include "parameters_desk.h"
#include "storage/failing_file_system.h"
#include "support/laid_out_records.h"

namespace vorbano::test {
namespace {

using Answer = ScriptedDesktop::Answer;

constexpr const char* noDate = "Inserire la decorrenza delle tariffe";
constexpr const char* incomplete = "Dati incompleti per il conguaglio";
constexpr const char* done = "Calcolo conguaglio effettuato";

/// Another rate in every row than the table in force has.
int aprilCents(int number, int kind) { return number * 100 + kind + 51; }

/// A block of PmDipc.dat with the rates of `aprilCents`.
std::string blockBytes(std::string_view date) {
    std::string bytes;
    for (int number = 1; number <= 32; ++number) {
        bytes += padded(expectedRows.at(static_cast<std::size_t>(number) - 1).grade, 15) + padded(date, 10);
        for (int kind = 0; kind < 3; ++kind) bytes += amount(0, aprilCents(number, kind));
    }
    return bytes;
}

std::string questionFor(const std::string& type, const std::string& date) {
    return "State per effettuare il conguaglio delle competenze liquidate\nper Elezioni : " + type + "  del " + date +
           "\nVolete continuare?";
}

class AdjustmentScreen : public ParametriTest {
  protected:
    AdjustmentScreen() {
        EXPECT_TRUE(lay(files, "Elezioni/Europee/06-06-09/06-06-09.vbn", employeeBytes()));
        EXPECT_TRUE(lay(files, "Elezioni/Politiche_Comunali/13-04-08/13-04-08.vbn", employeeBytes()));
    }

    bool visible(std::string_view name) { return control(name).isVisible(); }
    void choose(std::string_view name, std::string_view line) {
        EXPECT_EQ(clerk().choose(control(name), line), Refusal::none) << name;
    }
    void chooseElection(std::string_view type, std::string_view date) {
        choose("Combo1", type);
        choose("Combo2", date);
    }
    /// The adjustment of an election at the rates in force, up to the command.
    void prepare(std::string_view type, std::string_view date) {
        openWithRates("");
        tick("Check46");
        chooseElection(type, date);
    }
    std::string result(const std::string& name) { return contentOf(files, "Elezioni/" + name); }
};

TEST_F(AdjustmentScreen, ItsBoxTakesTheTabAwayFromPlainEditing) {
    openWithRates("/");
    for (const char* name : {"Combo1", "Combo2", "lblDeco", "cboDeco", "cmdCrea"}) EXPECT_FALSE(visible(name)) << name;
    tick("Check46");
    for (const char* name : {"Combo1", "Combo2", "lblDeco", "cboDeco", "cmdCrea"}) EXPECT_TRUE(visible(name)) << name;
    for (const char* name : {"cmdAggTar", "Check20"}) EXPECT_FALSE(visible(name)) << name;
    for (const char* name : {"cmdTarVecchie", "cmdTarNuove", "cmdStampa"}) EXPECT_FALSE(enabled(name)) << name;
    EXPECT_EQ(screen->cboDeco.items(), (Lines{"01/04/2008", "01/01/2009"}));
    EXPECT_EQ(screen->Combo1.items(), (Lines{"Europee", "Politiche_Comunali"}));
    EXPECT_EQ(text("Check46"), "Conguaglio");
    EXPECT_EQ(text("cmdCrea"), "Elabora conguaglio");
}

TEST_F(AdjustmentScreen, ClearingItsBoxRestoresTheTabAndEmptiesTheLists) {
    prepare("Europee", "06-06-09");
    tick("Check46", false);
    for (const char* name : {"Combo1", "Combo2", "lblDeco", "cboDeco", "cmdCrea"}) EXPECT_FALSE(visible(name)) << name;
    EXPECT_TRUE(visible("Check20"));
    for (const char* name : {"cmdTarVecchie", "cmdTarNuove", "cmdStampa", "Check20"})
        EXPECT_TRUE(enabled(name)) << name;
    EXPECT_EQ(text("Combo1"), "");
    EXPECT_EQ(text("Combo2"), "");
    EXPECT_EQ(text("txtDataEle"), "");
    EXPECT_TRUE(screen->Combo2.items().empty());
}

TEST_F(AdjustmentScreen, AndTheUpdateOfTheTariffsExcludeEachOther) {
    openWithRates("/");
    tick("Check45");
    tick("Check46");
    EXPECT_FALSE(ticked("Check45"));
    EXPECT_FALSE(visible("cmdAggTar"));
    tick("Check45");
    EXPECT_FALSE(ticked("Check46"));
    EXPECT_FALSE(visible("cmdCrea"));
}

TEST_F(AdjustmentScreen, ADateOfEffectWithoutAnElectionDoesNotStay) {
    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", blockBytes("01/04/2008")));
    openWithRates("/");
    tick("Check46");
    choose("cboDeco", "01/04/2008");
    EXPECT_EQ(text("lblDeco"), "");
    EXPECT_EQ(text("txtD5Day"), "1,01");
    EXPECT_EQ(text("Label26"), "SONO APPLICATE LE TARIFFE ANNO ");
}

TEST_F(AdjustmentScreen, ADateOfEffectShowsItsRatesAndItsYear) {
    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", blockBytes("01/04/2008")));
    prepare("Europee", "06-06-09");
    choose("cboDeco", "01/04/2008");
    EXPECT_EQ(text("lblDeco"), "01/04/2008");
    EXPECT_EQ(text("Label26"), "SONO APPLICATE LE TARIFFE ANNO 2008");
    for (int number = 1; number <= 32; ++number) {
        const std::string stem = "txt" + std::string(expectedRows.at(static_cast<std::size_t>(number) - 1).key);
        EXPECT_EQ(text(stem + "Day"), std::to_string(number) + ",51");
        EXPECT_EQ(text(stem + "Fn"), std::to_string(number) + ",52");
        EXPECT_EQ(text(stem + "Nf"), std::to_string(number) + ",53");
    }
}

TEST_F(AdjustmentScreen, ADateOfEffectThatWasNeverStoredDoesNotStay) {
    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", blockBytes("01/04/2008")));
    prepare("Europee", "06-06-09");
    choose("cboDeco", "01/04/2008");
    choose("cboDeco", "01/01/2009");
    EXPECT_EQ(text("lblDeco"), "");
    EXPECT_EQ(text("Label26"), "SONO APPLICATE LE TARIFFE ANNO ");
    EXPECT_EQ(text("txtD5Day"), "1,51");
}

/// The rates of the date are read anew with every date of election that is chosen.
TEST_F(AdjustmentScreen, AnotherElectionLoadsTheRatesAgain) {
    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", blockBytes("01/04/2008")));
    prepare("Europee", "06-06-09");
    choose("cboDeco", "01/04/2008");
    tick("Check5");
    type("txtD2Day", "99,99");
    chooseElection("Politiche_Comunali", "13-04-08");
    EXPECT_EQ(text("txtDataEle"), "13-04-08");
    EXPECT_EQ(text("txtD2Day"), "5,51");
}

/// The banner and the date must not name a year whose rates are no longer on show.
TEST_F(AdjustmentScreen, TheTableInForceShownAgainEndsTheDateOfEffect) {
    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", blockBytes("01/04/2008")));
    openWithRates("/");
    tick("Check46");
    chooseElection("Europee", "06-06-09");
    choose("cboDeco", "01/04/2008");
    desktop.box(title, noPercentages);
    tab(2);
    tab(0);
    EXPECT_EQ(text("txtD5Day"), "1,01");
    EXPECT_EQ(text("lblDeco"), "");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE    NUOVE TARIFFE");
}

TEST_F(AdjustmentScreen, AVersionOfTheTariffsEndsTheDateOfEffect) {
    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", blockBytes("01/04/2008")));
    ASSERT_TRUE(lay(files, "Params/NewPmDip.dat", tariffBytes("/", distinctCents)));
    openWithRates("/");
    tick("Check46");
    chooseElection("Europee", "06-06-09");
    choose("cboDeco", "01/04/2008");
    tick("Check46", false);
    EXPECT_EQ(text("Label26"), "SONO APPLICATE LE TARIFFE ANNO 2008");
    click("cmdTarNuove");
    EXPECT_EQ(text("txtD5Day"), "1,01");
    EXPECT_EQ(text("Label26"), "\nSONO APPLICATE LE    NUOVE TARIFFE");
}

TEST_F(AdjustmentScreen, AnElectionWithoutADateOfEffectKeepsTheRatesOnShow) {
    ASSERT_TRUE(lay(files, "Params/PmDipc.dat", nuls(49)));
    prepare("Europee", "06-06-09");
    EXPECT_EQ(text("txtD5Day"), "1,01");
    EXPECT_EQ(text("txtDataEle"), "06-06-09");
}

TEST_F(AdjustmentScreen, SavingStoresTheBlockOfTheDateAndNotTheTableInForce) {
    openWithRates("/", aprilCents);
    tick("Check46");
    tick("Check5");
    desktop.box("Tariffe", noDate);
    click("cmdSalva");
    EXPECT_EQ(focused(), "cboDeco");
    EXPECT_EQ(file("PmDipc.dat"), noFile);
    choose("cboDeco", "01/01/2009");
    desktop.box("SALVATAGGIO", "FATTO!!");
    click("cmdSalva");
    EXPECT_EQ(toHex(file("PmDipc.dat")), toHex(blockBytes("01/01/2009")));
    EXPECT_EQ(file("PmDip.dat"), tariffBytes("/", aprilCents));
    EXPECT_EQ(file("NewPmDip.dat"), noFile);
    EXPECT_TRUE(ticked("Check5"));
}

TEST_F(AdjustmentScreen, ATextThatIsNoNumberIsToldAndStoresNothing) {
    prepare("Europee", "06-06-09");
    choose("cboDeco", "01/01/2009");
    tick("Check5");
    type("txtD2Fn", "dodici");
    const char* words =
        "Riga D2, colonna Festive: il testo \"dodici\" non è un numero. Correggerlo e ripetere l'operazione.";
    desktop.box(title, words);
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtD2Fn");
    EXPECT_EQ(file("PmDipc.dat"), "");
    desktop.box("Conguaglio", questionFor("Europee", "06-06-09"), Answer::yes).box(title, words);
    click("cmdCrea");
    EXPECT_EQ(result("Europee/06-06-09/Congs.vbn"), noFile);
}

TEST_F(AdjustmentScreen, TheRunNeedsATypeAndADate) {
    openWithRates("");
    tick("Check46");
    desktop.box("Conguaglio", incomplete);
    click("cmdCrea");
    EXPECT_EQ(focused(), "Combo1");
    choose("Combo1", "Europee");
    desktop.box("Conguaglio", incomplete);
    click("cmdCrea");
    EXPECT_EQ(focused(), "txtDataEle");
    EXPECT_EQ(result("Europee/06-06-09/Congs.vbn"), noFile);
}

TEST_F(AdjustmentScreen, TheQuestionAnsweredNoDoesNothing) {
    prepare("Europee", "06-06-09");
    desktop.box("Conguaglio", questionFor("Europee", "06-06-09"), Answer::no);
    click("cmdCrea");
    EXPECT_EQ(result("Europee/06-06-09/Congs.vbn"), noFile);
}

TEST_F(AdjustmentScreen, ASingleElectionHasOneRun) {
    prepare("Europee", "06-06-09");
    desktop.box("Conguaglio", questionFor("Europee", "06-06-09"), Answer::yes).box("Conguaglio", done);
    click("cmdCrea");
    EXPECT_EQ(result("Europee/06-06-09/Congs.vbn").size(), 145U);
    EXPECT_EQ(result("Europee/06-06-09/Congs1.vbn"), noFile);
    EXPECT_EQ(result("Europee/06-06-09/06-06-09.vbn"), employeeBytes());
}

TEST_F(AdjustmentScreen, AJointElectionHasTwoAndIsToldOnce) {
    prepare("Politiche_Comunali", "13-04-08");
    desktop.box("Conguaglio", questionFor("Politiche_Comunali", "13-04-08"), Answer::yes).box("Conguaglio", done);
    click("cmdCrea");
    // Row 11 has 11,01; the hours are 25 over all periods, 18 in the first.
    EXPECT_EQ(result("Politiche_Comunali/13-04-08/Congs.vbn").substr(2, 2), le16(25));
    EXPECT_EQ(result("Politiche_Comunali/13-04-08/Congs1.vbn").substr(2, 2), le16(18));
    EXPECT_EQ(result("Politiche_Comunali/13-04-08/Congs1.vbn").substr(25, 8), amount(11, 1));
    EXPECT_EQ(result("Politiche_Comunali/13-04-08/13-04-08.vbn"), employeeBytes());
}

/// 12 x 10,1249 = 121,4988 against 120,00, whatever date of effect is in use.
TEST_F(AdjustmentScreen, TheRunUsesWhatIsOnTheScreen) {
    EXPECT_TRUE(
        lay(files, "Elezioni/Europee/06-06-09/06-06-09.vbn", bytesOf(liquidatedEmployee("D2", {12, 0, 0}, "120,00"))));
    prepare("Europee", "06-06-09");
    tick("Check5");
    type("txtD2Day", "10.1249");
    desktop.box("Conguaglio", questionFor("Europee", "06-06-09"), Answer::yes).box("Conguaglio", done);
    click("cmdCrea");
    const std::string bytes = result("Europee/06-06-09/Congs.vbn");
    EXPECT_EQ(toHex(bytes.substr(25, 8)), toHex(amount(10, 12)));
    EXPECT_EQ(toHex(bytes.substr(49, 16)), toHex(amount(121, 50) + amount(1, 49, 88)));
}

TEST_F(AdjustmentScreen, ADateThatIsNoneOrHasNoElectionIsTold) {
    openWithRates("");
    tick("Check46");
    choose("Combo1", "Europee");
    type("txtDataEle", "31/02/09");
    desktop.box("Errore", "Data di Elezione inesistente!");
    click("cmdCrea");
    EXPECT_EQ(focused(), "txtDataEle");
    type("txtDataEle", "07/06/09");
    desktop.box("Conguaglio", questionFor("Europee", "07-06-09"), Answer::yes);
    desktop.box("Errore", "Manca la cartella del file Elezioni/Europee/07-06-09/07-06-09.vbn.");
    click("cmdCrea");
}

}  // namespace
}  // namespace vorbano::test
