#include "report_desk.h"

namespace vorbano::test {

class TariffLayout : public ReportDesk {};

TEST_F(TariffLayout, ListsTheRatesOfTheStaff) {
    append("Tabella1", Row()
                           .setText("Categoria", "D3")
                           .setText("Exqualifica", "-")
                           .set("Diurno", 16.5)
                           .set("FestNo", 18.65)
                           .set("NottFe", 1021.525));
    const auto document = renderDelivered("tariffe.rpt");
    ASSERT_THAT(document, Succeeds());
    for (const char* text : {"Categorie", "Feriali", "Festive", "Fe/No", "D3", "16,50", "18,65", "1.021,53"}) {
        EXPECT_EQ(timesOn(**document, 0, text), 1) << text;
    }
}

TEST_F(TariffLayout, ListsTheRatesOfTheSecretaries) {
    append("Tabella2", Row()
                           .setText("Qualifica", "Segretario A")
                           .set("DiurnaFer", 21.0)
                           .set("NottorFes", 25.0)
                           .set("NottendFes", 30.0));
    const auto document = renderDelivered("tariffe2.rpt");
    ASSERT_THAT(document, Succeeds());
    for (const char* text : {"Qualifica", "Segretario A", "21,00", "25,00", "30,00"}) {
        EXPECT_EQ(timesOn(**document, 0, text), 1) << text;
    }
}

TEST_F(TariffLayout, HoldsTheTwentySevenRowsOnOnePage) {
    for (int row = 1; row <= 27; ++row) append("Tabella1", Row().setText("Categoria", "riga " + std::to_string(row)));
    const auto document = renderDelivered("tariffe.rpt");
    ASSERT_THAT(document, Succeeds());
    EXPECT_EQ((*document)->pages(), 1);
    EXPECT_EQ(timesOn(**document, 0, "riga 27"), 1);
}

}  // namespace vorbano::test
