// CONTRIBUTI E RITENUTE (allegato A): the documents brought into line with what is due, then the list.
//
// Three employees with 6,00 of contributions and 7,00 of the credit fund withheld each, and 2,00 of contributions and
// 3,00 of IRAP due; IRPEF 111,11, INAIL 22,22. So 18,00  21,00  6,00  9,00 are due by the first four voices.

#include "reports/contributi.h"

#include <gmock/gmock.h>

#include "failing_desk.h"
#include "records/payment_records.h"
#include "reports/payments_due.h"
#include "stampe_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* path = "Elezioni/Europee/26-05-13/Versum.vbn";

std::string document(std::string_view mother, std::string_view son, int cents, int number) {
    return padded(mother, 10) + padded(son, 27) + padded("1%", 6) + cents64(cents) + le32(number) + "30-06-13" +
           padded("in originale e copia autenticata", 32);
}
/// One document of each voice but one of which there are two.
std::string documents(const std::array<int, 8>& cents) {
    const std::string_view form = "Mod. F24";
    return document("Coprdi", "Mandato di pagamento", cents[0], 1) +
           document("Coprdi", "Mandato di pagamento", cents[1], 2) + document("Cofocrdi", form, cents[2], 0) +
           document("Copren", form, cents[3], 0) + document("Coirap", form, cents[4], 0) +
           document("Irpef", form, cents[5], 0) + document("Inail", "", cents[6], 0) +
           document("Inps", form, cents[7], 0);
}
const std::string documentsBefore = documents({1, 2, 3, 4, 5, 6, 7, 8});
const std::string documentsAfter = documents({1800, 1800, 2100, 600, 900, 11111, 2222, 8});

const Heading headingOf2013{
    .Elezione = "Europee", .Data = "del 26 Maggio 2013", .Databall = "{Vorbano 3.9 edizione 2014}"};

class Contributi : public StampeDesk {
  protected:
    void layAll(const std::vector<LaidEmployee>& employees = threeEmployees()) {
        ASSERT_TRUE(layOvertime(files, "Europee", "26-05-13", 4, 0, employees));
        ASSERT_TRUE(lay(files, path, documentsBefore));
    }
};

TEST(RateText, IsThePlainNumberWithItsSign) {
    const std::pair<int, const char*> cases[] = {{2380, "23,8%"}, {885, "8,85%"}, {35, "0,35%"}, {30, "0,3%"},
                                                 {2300, "23%"},   {1000, "10%"},  {0, "0%"},     {10000, "100%"}};
    for (const auto& [cents, words] : cases) EXPECT_EQ(rateText(Currency::fromCents(cents)), words);
}

TEST_F(Contributi, IsOfferedWhenThereAreDocuments) {
    layAll();
    open();
    EXPECT_FALSE(screen().cmdContributi.enabled());
    search("Europee", "26-05-13");
    EXPECT_TRUE(screen().cmdContributi.enabled());
    click(screen().cmdRiavvia);
    EXPECT_FALSE(screen().cmdContributi.enabled());
}

TEST_F(Contributi, IsNotOfferedWithoutDocuments) {
    ASSERT_TRUE(layOvertime(files, "Europee", "26-05-13", 4));
    open();
    search("Europee", "26-05-13");
    EXPECT_FALSE(screen().cmdContributi.enabled());
}

TEST_F(Contributi, SetsEveryDocumentToWhatIsDueButInps) {
    layAll();
    open();
    search("Europee", "26-05-13");
    click(screen().cmdContributi);
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(documentsAfter));
    EXPECT_EQ(contentOf(files, "Elezioni/Europee/26-05-13/Reversum.vbn"), noFile);
}

TEST_F(Contributi, FillsItsTablesAndClearsThem) {
    layAll();
    open();
    search("Europee", "26-05-13");
    click(screen().cmdContributi);
    ASSERT_THAT(printing.jobs, SizeIs(1));
    EXPECT_EQ(printing.jobs[0].layout, "vers.rpt");
    EXPECT_EQ(printing.jobs[0].title, "CONTRIBUTI E RITENUTE (Allegato A)");
    EXPECT_EQ(printing.jobs[0].destination, Destination::preview);
    EXPECT_EQ(seen.rows("Tabella3"), 3);
    EXPECT_EQ(seen.cell("Tabella3", 1, "QuartusDal"), "01-06-13");
    EXPECT_EQ(seen.cell("Tabella4", 1, "Irpef"), "111,11");
    EXPECT_EQ(seen.cell("Tabella4", 1, "datainail"), "30-06-13");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Comune"), "Pratofiorito");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Databall"), "{Vorbano 3.9 edizione 2014}");
    EXPECT_EQ(seen.cell("Tabella6", 1, "DataA"), "02-04-13");
    EXPECT_EQ(seen.cell("Tabella6", 1, "DataB"), "31-05-13");
    EXPECT_EQ(seen.cell("Tabella10", 1, "foncred"), "0,35");
    ASSERT_EQ(seen.rows("Tabella11"), 8) << "no closing rows";
    EXPECT_EQ(seen.cell("Tabella11", 2, "Comune"), "Pratofiorito");
    EXPECT_EQ(seen.cell("Tabella11", 2, "Elezioni"), "Europee");
    EXPECT_EQ(seen.cell("Tabella11", 2, "dataE"), "del 26 Maggio 2013");
    EXPECT_EQ(seen.cell("Tabella11", 2, "Mother"), "Coprdi");
    EXPECT_EQ(seen.cell("Tabella11", 2, "Son"), "Mandato di pagamento");
    EXPECT_EQ(seen.cell("Tabella11", 2, "Importo"), "18,00");
    EXPECT_EQ(seen.cell("Tabella11", 2, "Numero"), "2");
    EXPECT_EQ(seen.cell("Tabella11", 2, "Data"), "30-06-13");
    EXPECT_EQ(seen.cell("Tabella11", 2, "Sonocosi"), "in originale e copia autenticata");
    EXPECT_EQ(seen.cell("Tabella11", 7, "Son"), "Il versamento sarà effettuato entro il");
    EXPECT_EQ(seen.cell("Tabella11", 8, "Importo"), "0,08");
    expectEmptyTables();
}

TEST_F(Contributi, KeepsASurplusOfTheEmployeeTableForTheNextDocument) {
    layAll();
    Row left;
    left.setText("Nome", "X");
    ASSERT_THAT(staging.append("Tabella3", left), Succeeds());
    ASSERT_THAT(printContributi(desk, {"Europee", "26-05-13"}, {}, headingOf2013), Succeeds());
    EXPECT_EQ(seen.rows("Tabella3"), 4);
    EXPECT_EQ(tables().rows("Tabella3"), 1);
}

TEST_F(Contributi, TakesFirstStartAndLastEndOfThePeriodsInUse) {
    struct Case {
        std::array<bool, 3> used;
        const char* from;
        const char* to;
    };
    const Case cases[] = {{{true, true, true}, "01-01-13", "32-01-13"},
                          {{false, true, true}, "11-01-13", "32-01-13"},
                          {{true, false, true}, "01-01-13", "32-01-13"},
                          {{true, true, false}, "01-01-13", "22-01-13"},
                          {{true, false, false}, "01-01-13", "12-01-13"}};
    for (const Case& one : cases) {
        EmployeeRecord record{};
        const std::array<std::array<const char*, 2>, 3> dates = {
            {{"01-01-13", "12-01-13"}, {"11-01-13", "22-01-13"}, {"21-01-13", "32-01-13"}}};
        for (std::size_t at = 0; at < dates.size(); ++at) {
            record.periods[at].from = one.used[at] ? dates[at][0] : "//";
            record.periods[at].to = one.used[at] ? dates[at][1] : "//";
        }
        const auto found = datesOfOvertime(record);
        ASSERT_TRUE(found.has_value());
        EXPECT_EQ(found->DataA, one.from);
        EXPECT_EQ(found->DataB, one.to);
    }
    EmployeeRecord none{};
    for (PeriodBlock& period : none.periods) period.from = period.to = "//";
    EXPECT_FALSE(datesOfOvertime(none).has_value());
    EXPECT_FALSE(datesOfOvertime(EmployeeRecord{}).has_value()) << "never assigned";
}

TEST_F(Contributi, WithAllPeriodsLeftOutIsToldAndNotShown) {
    std::vector<LaidEmployee> employees = threeEmployees();
    for (std::size_t at = 0; at < 3; ++at) employees[0].periods.at(at) = {"//", "//"};
    layAll(employees);
    open();
    search("Europee", "26-05-13");
    desktop.box("Errore!", "Data di Elezione inesistente!", ScriptedDesktop::Answer::ok);
    click(screen().cmdContributi);
    EXPECT_THAT(printing.jobs, IsEmpty());
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(documentsAfter)) << "the documents follow all the same";
    expectEmptyTables();
}

TEST_F(Contributi, WithoutEmployeesNothingIsSetToNothing) {
    ASSERT_TRUE(layElection("Europee", "26-05-13"));
    ASSERT_TRUE(lay(files, path, documentsBefore));
    open();
    search("Europee", "26-05-13");
    desktop.box("Errore!", "Data di Elezione inesistente!", ScriptedDesktop::Answer::ok);
    click(screen().cmdContributi);
    EXPECT_THAT(printing.jobs, IsEmpty());
    EXPECT_EQ(toHex(contentOf(files, path)), toHex(documentsBefore));
}

TEST_F(Contributi, FaultsOfTheDiskLeaveTheDocumentsOldOrNew) {
    FailingFileSystem failing(files);
    const Workplace broken{failing, desktop, staging, printing, screens, places};
    const auto print = [&] { return printContributi(broken, {"Europee", "26-05-13"}, {true, false}, headingOf2013); };
    layAll();
    const int operations = operationsOf(failing, [&] { EXPECT_THAT(print(), Succeeds()); });
    for (const Fault fault : bothFaults) {
        atEveryOperation({"frmTutteStampe.cmdContributi", "new amounts"}, operations, [&](int n) {
            layAll();
            strike(failing, fault, n);
            EXPECT_FALSE(print().ok());
            failing.failOnce(0);
            if (fault == Fault::forGood) files.cutPower();
            EXPECT_THAT(contentOf(files, path), AnyOf(documentsBefore, documentsAfter));
            expectEmptyTables();
            EXPECT_THAT(print(), Succeeds());
            EXPECT_EQ(toHex(contentOf(files, path)), toHex(documentsAfter));
        });
    }
}

TEST_F(Contributi, ARowThatCannotBeStagedEndsItAndEverythingIsCleared) {
    layAll();
    // Three employees, four companions, eight documents.
    for (int n = 1; n <= 15; ++n) {
        FailingDatabase failing;
        failing.failAt = n;
        const Workplace broken{files, desktop, failing, printing, screens, places};
        EXPECT_FALSE(printContributi(broken, {"Europee", "26-05-13"}, {}, headingOf2013).ok()) << n;
        EXPECT_EQ(failing.appends, n);
        for (const TableInfo& table : stagingTables()) EXPECT_EQ(failing.count(table.name).valueOr(-1), 0);
    }
    EXPECT_THAT(printing.jobs, IsEmpty());
}

}  // namespace
}  // namespace vorbano::test
