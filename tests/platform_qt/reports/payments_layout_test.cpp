// The two layouts of the payments over rows laid out by hand.

#include "report_desk.h"

namespace vorbano::test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

struct PaymentPaper {
    std::string key;
    std::string kind;
    std::string percent;
    std::int64_t cents;
    int number;
    std::string date;
    std::string copies;
};

class PaymentsLayout : public ReportDesk {
  protected:
    void document(const PaymentPaper& one) {
        append("Tabella11", Row()
                                .setText("Comune", "CASTELFRANCO VENETO")
                                .setText("Elezioni", "Europee")
                                .setText("dataE", "del 9 Giugno 2024")
                                .setText("Mother", one.key)
                                .setText("Son", one.kind)
                                .setText("Percent", one.percent)
                                .set("Importo", Amount{one.cents * 100})
                                .setWhole("Numero", one.number)
                                .setText("Data", one.date)
                                .setText("Sonocosi", one.copies));
    }
    /// In the order of entering, which is not that of the voices.
    void documents() {
        document({"Inps", "Mod. F24", "", 4500, 0, "17-08-24", "in originale e copia autenticata"});
        document({"Inail", "Il versamento sarà effettuato entro il", "", 7890, 0, "16-08-24", ""});
        document({"Coprdi", "Mandato di pagamento", "8,85%", 1903, 1201, "01-07-24", "in duplice copia autenticata"});
        document({"Coprdi", "Mandato di pagamento", "8,85%", 1903, 1202, "02-07-24", "in duplice copia autenticata"});
        document({"Altro & <b>", "Mod. F24", "1%", 111, 0, "03-07-24", ""});
    }
    void closing(const std::string& key, const std::string& percent, std::int64_t cents) {
        append("Tabella11",
               Row().setText("Mother", key).setText("Percent", percent).set("Importo", Amount{cents * 100}));
    }
    std::string text(std::string_view layout) {
        auto made = renderDelivered(layout);
        if (!made) {
            ADD_FAILURE() << made.error().subject;
            return {};
        }
        EXPECT_EQ((*made)->pages(), 1);
        std::string line;
        for (const char one : allText(**made)) {
            const char blank = one == '\n' ? ' ' : one;
            if (blank != ' ' || !line.ends_with(' ')) line += blank;
        }
        return line;
    }
};

TEST_F(PaymentsLayout, TheListIsOfTheVoicesInTheirOrderAndSaysAVoiceOnce) {
    appendHeading();
    appendEmployees(3);
    append("Tabella4", Row().set("Irpef", Amount{12345600}).set("inail", Amount{789000}));
    append("Tabella6", Row().setText("DataA", "15-04-24").setText("DataB", "14-06-24"));
    documents();
    const std::string all = text("vers.rpt");
    EXPECT_THAT(all, AllOf(HasSubstr("CONTRIBUTI E RITENUTE"), HasSubstr("Allegato A"), HasSubstr("3 dipendenti"),
                           HasSubstr("15/04/24"), HasSubstr("14/06/24"), HasSubstr("14,28"), HasSubstr("5,10"),
                           HasSubstr("1.234,56"), HasSubstr("78,90"), HasSubstr("1201"), HasSubstr("1202"),
                           HasSubstr("16/08/24"), HasSubstr("Altro & <b>"), HasSubstr("Il Segretario Comunale")));
    const auto first = all.find("1201");
    const auto second = all.find("1202");
    const auto inail = all.find("16/08/24");
    const auto inps = all.find("17/08/24");
    const auto other = all.find("03/07/24");
    EXPECT_TRUE(first < second && second < inail && inail < inps && inps < other) << all;
    const auto rate = all.find("8,85%");
    EXPECT_NE(rate, std::string::npos);
    EXPECT_EQ(all.find("8,85%", rate + 1), std::string::npos) << "said once";
}

TEST_F(PaymentsLayout, TheWholeListNeedsNoHeadingAndEndsWithWhatIsDue) {
    documents();
    closing("Coprdi", "8,85% ", 1903);
    closing("Inail", "-", 7890);
    const std::string all = text("ElenVers.rpt");
    EXPECT_THAT(all, AllOf(HasSubstr("Comune di CASTELFRANCO VENETO"), HasSubstr("Europee del 9 Giugno 2024"),
                           HasSubstr("1202"), HasSubstr("IMPORTI DOVUTI"), HasSubstr("TOTALE"), HasSubstr("97,93"),
                           HasSubstr("CASTELFRANCO VENETO, lì")));
    EXPECT_THAT(all, Not(HasSubstr("Vorbano 3.9")));
    EXPECT_GT(all.find("IMPORTI DOVUTI"), all.find("03/07/24"));
}

TEST_F(PaymentsLayout, AnElectionInJanuaryHasNoDate) {
    append("Tabella11", Row()
                            .setText("Comune", "Vo")
                            .setText("Elezioni", "Europee")
                            .setText("dataE", "")
                            .setText("Mother", "Irpef")
                            .setText("Son", "Mod. F24")
                            .set("Importo", Amount{100}));
    EXPECT_THAT(text("ElenVers.rpt"), AllOf(HasSubstr("Comune di Vo"), HasSubstr("Europee"), HasSubstr("IRPEF")));
}

TEST_F(PaymentsLayout, ManyDocumentsGoOnOnTheNextPage) {
    for (int n = 1; n <= 120; ++n)
        document({"Irpef", "Mandato di pagamento", "", 100, 1000 + n, "01-07-24", "in duplice copia autenticata"});
    closing("Irpef", "-", 100);
    const auto made = renderDelivered("ElenVers.rpt");
    ASSERT_THAT(made, Succeeds());
    EXPECT_GT((*made)->pages(), 2);
    EXPECT_THAT(allText(**made), AllOf(HasSubstr("1001"), HasSubstr("1120"), HasSubstr("Il Segretario Comunale")));
}

}  // namespace
}  // namespace vorbano::test
