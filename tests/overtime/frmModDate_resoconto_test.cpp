// "Stampa resoconto": what stands on the page, line by line.

#include "mod_date_desk.h"
#include "overtime/date_summary.h"

namespace vorbano::test::moddate {
namespace {

using ::testing::ElementsAre;

class ModDateResoconto : public ModDateTest {
  protected:
    void printElection24() {
        searchElection24();
        newDates(2, "20/05/24", "27/05/24");
        click("cmdModifica");
        click("cmdStampa");
    }
};

TEST_F(ModDateResoconto, IsOnePageUnderTheNameOfTheMunicipality) {
    ASSERT_TRUE(lay(files, "Params/Ente.dat", padded("Forl\xEC", 60)));
    printElection24();
    ASSERT_EQ(printing.pages.size(), 1U);
    EXPECT_EQ(printing.pages[0].title, "Resoconto dell'elezione Europee del 09-06-24");
    EXPECT_EQ(printing.pages[0].heading, "Comune di Forlì");
    const std::string dashes(61, '-');
    EXPECT_THAT(printing.pages[0].lines,
                ElementsAre("RESOCONTO DELL'ELEZIONE: Europee del 09-06-24",                  //
                            "SITUAZIONE DOPO LA MODIFICA",                                    //
                            dashes,                                                           //
                            "                1°Periodo   2°Periodo   3°Periodo  4° Periodo",  //
                            "dal              20-04-24    20-05-24          //           -",  //
                            "al               19-05-24    27-05-24          //           -",  //
                            "Monte ore    ",                                                  //
                            "Limite                 60          16           0           -",  //
                            "Individuale            40          11           0           -",  //
                            "Mensile               240          64           0           -",  //
                            "Utilizzato             70          28           0           -",  //
                            "Residuo               170          36           0           -",  //
                            dashes));
    EXPECT_TRUE(printing.jobs.empty()) << "it goes through no layout";
    EXPECT_EQ(staging.count("Tabella1").valueOr(-1), 0);
}

TEST_F(ModDateResoconto, WithoutAMunicipalityItHasNoHeading) {
    ASSERT_TRUE(files.makeFolder("Params").ok());
    printElection24();
    ASSERT_EQ(printing.pages.size(), 1U);
    EXPECT_EQ(printing.pages[0].heading, "");
}

TEST_F(ModDateResoconto, CanBePrintedAgainAfterSaving) {
    ASSERT_TRUE(lay(files, "Params/Ente.dat", padded("Lesa", 60)));
    printElection24();
    box("Date periodi", "MODIFICA EFFETTUATA");
    click("cmdSalva");
    click("cmdStampa");
    ASSERT_EQ(printing.pages.size(), 2U);
    EXPECT_EQ(printing.pages[1].lines, printing.pages[0].lines);
}

TEST(ModDateResocontoPage, AFifthPeriodHasAColumnWhereThereIsOne) {
    std::vector<SummaryPeriod> periods;
    for (int n = 1; n <= 5; ++n) {
        const std::string own = std::to_string(n);
        periods.push_back({n, "0" + own + "-05-13", "0" + own + "-06-13", "1" + own, "2" + own, "3" + own, "4" + own,
                           n == 5 ? "" : "-5" + own});
    }
    const PlainPage page = dateSummary("Lesa", "Europee_Comunali", "26-05-13", periods);
    const std::string dashes(73, '-');
    EXPECT_THAT(page.lines,
                ElementsAre("RESOCONTO DELL'ELEZIONE: Europee_Comunali del 26-05-13",                     //
                            "SITUAZIONE DOPO LA MODIFICA",                                                //
                            dashes,                                                                       //
                            "                1°Periodo   2°Periodo   3°Periodo  4° Periodo  5° Periodo",  //
                            "dal              01-05-13    02-05-13    03-05-13    04-05-13    05-05-13",  //
                            "al               01-06-13    02-06-13    03-06-13    04-06-13    05-06-13",  //
                            "Monte ore    ",                                                              //
                            "Limite                 11          12          13          14          15",  //
                            "Individuale            21          22          23          24          25",  //
                            "Mensile                31          32          33          34          35",  //
                            "Utilizzato             41          42          43          44          45",  //
                            "Residuo               -51         -52         -53         -54           0",  //
                            dashes));
}

}  // namespace
}  // namespace vorbano::test::moddate
