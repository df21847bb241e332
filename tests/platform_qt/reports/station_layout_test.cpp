#include "report_desk.h"

namespace vorbano::test {

using ::testing::HasSubstr;
using ::testing::Not;

class StationLayout : public ReportDesk {
  protected:
    void appendPerson(int station, int place, const std::string& name, const std::string& role, int cents) {
        append("Tabella7", Row()
                               .setWhole("Seggio", 2)
                               .setWhole("SonoSeggio", station)
                               .setWhole("CompoNum", place)
                               .setText("Componente", name)
                               .setText("Indirizzo", "VIA ROMA 1")
                               .setText("Qualifica", role)
                               .setText("Partecipazione", place == 2 ? "NO" : "SI")
                               .setText("CodiceFiscale", "RSSMRA80A41A944X")
                               .set("onorario", Amount{std::int64_t{cents} * 100}));
    }
    /// Two stations: 150,00 + 0,05 and 9,99.
    void appendStations() {
        appendHeading();
        appendPerson(7, 1, "ROSSI MARIA", "Presidente", 15000);
        appendPerson(7, 2, "BIANCHI LUCA", "Segretario", 5);
        appendPerson(3, 1, "VERDI ANNA", "Presidente", 999);
    }
    void appendSums(int station, int fees, int quota) {
        const Amount part{std::int64_t{quota} * 100};
        append("Tabella8", Row()
                               .setWhole("NSeggio", station)
                               .set("onorario", Amount{std::int64_t{fees} * 100})
                               .set("Prov", part)
                               .set("MagMis", part)
                               .set("MCom", Amount{std::int64_t{fees - quota} * 100}));
    }
    std::unique_ptr<ReportDocument> good(std::string_view layout) {
        auto document = renderDelivered(layout);
        if (document) return std::move(*document);
        ADD_FAILURE() << layout << ": " << document.error().subject;
        return nullptr;
    }
};

TEST_F(StationLayout, EachStationHasItsSheet) {
    appendStations();
    const auto document = good("seggi.rpt");
    ASSERT_NE(document, nullptr);
    ASSERT_EQ(document->pages(), 2);
    for (const char* text :
         {"Comune di CASTELFRANCO VENETO", "SEGGIO N. 7", "ROSSI MARIA", "BIANCHI LUCA", "Presidente", "Segretario",
          "NO", "150,00", "0,05", "150,05", "Totale del seggio (2)", "Firma per quietanza", "Codice fiscale"}) {
        EXPECT_EQ(timesOn(*document, 0, text), 1) << text;
    }
    EXPECT_EQ(timesOn(*document, 0, "RSSMRA80A41A944X"), 2);
    EXPECT_THAT(pageText(*document, 0), HasSubstr("€ 150,05"));
    EXPECT_THAT(pageText(*document, 0), Not(HasSubstr("VERDI")));
    EXPECT_EQ(timesOn(*document, 1, "SEGGIO N. 3"), 1);
    EXPECT_EQ(timesOn(*document, 1, "9,99"), 2) << "the fee and the total";
    EXPECT_THAT(allText(*document), Not(HasSubstr("ballottaggio")));
}

TEST_F(StationLayout, OfAllKindsSayWhatTheyAre) {
    appendStations();
    struct Words {
        const char* layout;
        const char* title;
        bool runOff;
        bool together;
    };
    for (const Words& one :
         {Words{"seggi.rpt", "SEGGIO N. 7", false, false}, Words{"conaltri.rpt", "SEGGIO N. 7", false, true},
          Words{"segsuf.rpt", "SEGGIO N. 7", true, false}, Words{"conalsuf.rpt", "SEGGIO N. 7", true, true},
          Words{"SegSpeciale.rpt", "SEGGIO SPECIALE N. 7", false, false},
          Words{"Speconaltri.rpt", "SEGGIO SPECIALE N. 7", false, true},
          Words{"SegSpecsuf.rpt", "SEGGIO SPECIALE N. 7", true, false},
          Words{"Specoalsuf.rpt", "SEGGIO SPECIALE N. 7", true, true}}) {
        const auto document = good(one.layout);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(timesOn(*document, 0, one.title), 1) << one.layout;
        EXPECT_EQ(timesOn(*document, 0, "Turno di ballottaggio"), one.runOff ? 1 : 0) << one.layout;
        const bool together = pageText(*document, 0).find("Consultazioni abbinate") != std::string::npos;
        EXPECT_EQ(together, one.together) << one.layout;
    }
}

TEST_F(StationLayout, ANumberThatComesAgainIsAnotherSheet) {
    appendHeading();
    appendPerson(7, 1, "ROSSI MARIA", "Presidente", 100);
    appendPerson(3, 1, "VERDI ANNA", "Presidente", 200);
    appendPerson(7, 1, "NERI CARLO", "Presidente", 400);
    const auto document = good("SegSpeciale.rpt");
    ASSERT_NE(document, nullptr);
    ASSERT_EQ(document->pages(), 3);
    EXPECT_EQ(timesOn(*document, 2, "4,00"), 2) << "its total is its own";
}

TEST_F(StationLayout, WithoutStationsSayIt) {
    appendHeading();
    for (const char* layout : {"seggi.rpt", "SegSpecsuf.rpt"}) {
        const auto document = good(layout);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(document->pages(), 1);
        EXPECT_EQ(timesOn(*document, 0, "Non risultano seggi in archivio."), 1) << layout;
    }
}

TEST_F(StationLayout, SummariesShowFeesAndTheirTotal) {
    appendHeading();
    appendSums(4, 51000, 0);
    appendSums(1, 43550, 0);
    struct Words {
        const char* layout;
        const char* title;
        bool runOff;
    };
    for (const Words& one : {Words{"riepseg.rpt", "RIEPILOGO DEI SEGGI", false},
                             Words{"riepspec.rpt", "RIEPILOGO DEI SEGGI SPECIALI", false},
                             Words{"specialtri.rpt", "RIEPILOGO DEI SEGGI SPECIALI", false},
                             Words{"riespesuf.rpt", "RIEPILOGO DEI SEGGI SPECIALI", true},
                             Words{"spaltrisuf.rpt", "RIEPILOGO DEI SEGGI SPECIALI", true}}) {
        const auto document = good(one.layout);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(timesOn(*document, 0, one.title), 1) << one.layout;
        EXPECT_EQ(timesOn(*document, 0, "Turno di ballottaggio"), one.runOff ? 1 : 0) << one.layout;
        for (const char* text : {"Seggio n. 4", "510,00", "Seggio n. 1", "435,50", "TOTALE (2 seggi)", "945,50"}) {
            EXPECT_EQ(timesOn(*document, 0, text), 1) << one.layout << " " << text;
        }
        EXPECT_THAT(pageText(*document, 0), Not(HasSubstr("Quota"))) << one.layout;
    }
}

TEST_F(StationLayout, SummariesWithQuotasDivideTheFees) {
    appendHeading();
    appendSums(1, 51000, 11075);
    appendSums(2, 43550, 8550);
    // Of 945,50 the quotas are 196,25 and 749,25 is left.
    for (const char* layout : {"riepseg.rpt", "riepsegaltri.rpt", "riepsegprov.rpt", "riepsegprocom.rpt",
                               "rieseprosuf.rpt", "riseprcosuf.rpt"}) {
        const auto document = good(layout);
        ASSERT_NE(document, nullptr);
        for (const char* text : {"510,00", "110,75", "399,25", "945,50", "196,25", "749,25"}) {
            EXPECT_EQ(timesOn(*document, 0, text), 1) << layout << " " << text;
        }
        const bool runOff = std::string_view(layout).find("suf") != std::string_view::npos;
        EXPECT_EQ(timesOn(*document, 0, "Turno di ballottaggio"), runOff ? 1 : 0) << layout;
    }
}

TEST_F(StationLayout, ASummaryOfOneStationSaysSo) {
    appendHeading();
    appendSums(1, 51000, 11075);
    for (const char* layout : {"riepseg.rpt", "riepspec.rpt", "riepsegprov.rpt", "riepsegprocom.rpt"}) {
        const auto document = good(layout);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(timesOn(*document, 0, "TOTALE (1 seggio)"), 1) << layout;
        EXPECT_THAT(pageText(*document, 0), ::testing::ContainsRegex("per il[[:space:]]seggio")) << layout;
    }
}

TEST_F(StationLayout, SummariesWithoutStationsAreWhole) {
    appendHeading();
    for (const char* layout : {"riepseg.rpt", "riepsegprocom.rpt", "riespesuf.rpt"}) {
        const auto document = good(layout);
        ASSERT_NE(document, nullptr);
        EXPECT_EQ(timesOn(*document, 0, "TOTALE (0 seggi)"), 1) << layout;
    }
}

}  // namespace vorbano::test
