#include "reports/station_documents.h"

#include "stampe_seggi_desk.h"

namespace vorbano::test {
namespace {

/// One choice of the boxes, by kind of election: the layouts of its three documents.
struct Papers {
    const char* kind;
    Boxes boxes;
    const char* summary;
    const char* one;
    const char* all;
};

const char* summaryTitle(const Boxes& boxes) {
    return boxes.stations == &frmTutteStampe::Check1 ? "RIEPILOGO SEGGI" : "RIEPILOGO Speciale";
}

class StationPapersTest : public StampeSeggiDesk, public testing::WithParamInterface<Papers> {};

TEST_P(StationPapersTest, SummaryHasItsLayout) {
    find(GetParam().kind);
    choose(GetParam().boxes);
    click(screen().cmdRSeggi);
    expectJob(GetParam().summary, summaryTitle(GetParam().boxes), Destination::preview);
    expectEmptyTables();
}

TEST_P(StationPapersTest, OneStationHasItsLayout) {
    find(GetParam().kind);
    choose(GetParam().boxes);
    click(screen().cmdSSeggio);
    const bool special = GetParam().boxes.stations == &frmTutteStampe::Check2;
    choose(special ? screen().Combo2 : screen().Combo3, "1");
    click(special ? screen().cmdStampaSpeciali : screen().cmdStampa);
    expectJob(GetParam().one, "COMPONENTI SEGGIO", Destination::preview);
    expectEmptyTables();
}

TEST_P(StationPapersTest, AllStationsHaveThePlainLayout) {
    find(GetParam().kind);
    choose(GetParam().boxes);
    const bool special = GetParam().boxes.stations == &frmTutteStampe::Check2;
    const bool runOff = GetParam().boxes.round == &frmTutteStampe::Check4;
    const std::string title = std::string("Stampa seggi ") + (special ? "SPECIALI" : "normali") +
                              (runOff ? " - BALLOTTAGGIO" : " - 1° turno");
    desktop.box(title,
                special ? "Volete stampare i componenti di tutti i seggi SPECIALI?"
                        : "Volete stampare i componenti di tutti i seggi?",
                ScriptedDesktop::Answer::yes);
    click(screen().cmdTSeggi);
    expectJob(GetParam().all, "", Destination::printer);
    expectEmptyTables();
}

INSTANTIATE_TEST_SUITE_P(
    Choices, StationPapersTest,
    testing::Values(
        Papers{"Provinciali", normalFirstBoxes, "riepsegprov.rpt", "seggi.rpt", "seggi.rpt"},
        Papers{"Provinciali_Comunali", normalFirstBoxes, "riepsegprocom.rpt", "conaltri.rpt", "seggi.rpt"},
        Papers{"Politiche_Comunali", normalFirstBoxes, "riepsegaltri.rpt", "conaltri.rpt", "seggi.rpt"},
        Papers{"Comunali", normalFirstBoxes, "riepseg.rpt", "seggi.rpt", "seggi.rpt"},
        Papers{"Europee_Comunali", normalFirstBoxes, "riepseg.rpt", "seggi.rpt", "seggi.rpt"},
        Papers{"Provinciali", normalRunOffBoxes, "rieseprosuf.rpt", "segsuf.rpt", "segsuf.rpt"},
        Papers{"Provinciali_Comunali", normalRunOffBoxes, "riseprcosuf.rpt", "conalsuf.rpt", "segsuf.rpt"},
        Papers{"Politiche_Comunali", normalRunOffBoxes, "riepsegaltri.rpt", "conalsuf.rpt", "segsuf.rpt"},
        Papers{"Comunali", normalRunOffBoxes, "riepseg.rpt", "segsuf.rpt", "segsuf.rpt"},
        Papers{"Provinciali", specialFirstBoxes, "riepspec.rpt", "SegSpeciale.rpt", "SegSpeciale.rpt"},
        Papers{"Provinciali_Comunali", specialFirstBoxes, "specialtri.rpt", "Speconaltri.rpt", "SegSpeciale.rpt"},
        Papers{"Politiche_Comunali", specialFirstBoxes, "specialtri.rpt", "Speconaltri.rpt", "SegSpeciale.rpt"},
        Papers{"Referendum", specialFirstBoxes, "riepspec.rpt", "SegSpeciale.rpt", "SegSpeciale.rpt"},
        Papers{"Provinciali", specialRunOffBoxes, "riespesuf.rpt", "SegSpecsuf.rpt", "SegSpecsuf.rpt"},
        Papers{"Provinciali_Comunali", specialRunOffBoxes, "spaltrisuf.rpt", "Specoalsuf.rpt", "SegSpecsuf.rpt"},
        Papers{"Politiche_Comunali", specialRunOffBoxes, "spaltrisuf.rpt", "SegSpecsuf.rpt", "SegSpecsuf.rpt"},
        Papers{"Comunali", specialRunOffBoxes, "riespesuf.rpt", "SegSpecsuf.rpt", "SegSpecsuf.rpt"}),
    [](const auto& one) {
        const Boxes& boxes = one.param.boxes;
        return std::string(one.param.kind) + (boxes.stations == &frmTutteStampe::Check1 ? "Normal" : "Special") +
               (boxes.round == &frmTutteStampe::Check3 ? "First" : "RunOff");
    });

class StationRows : public StampeSeggiDesk {
  protected:
    void expectSums(const std::vector<std::pair<std::string, std::string>>& stations) {
        ASSERT_EQ(seen.rows("Tabella8"), static_cast<int>(stations.size()));
        int row = 0;
        for (const auto& [number, fees] : stations) {
            ++row;
            EXPECT_EQ(seen.cell("Tabella8", row, "NSeggio"), number);
            EXPECT_EQ(seen.cell("Tabella8", row, "onorario"), fees) << number;
        }
    }
    void expectPeople(const std::vector<std::string>& people) {
        ASSERT_EQ(seen.rows("Tabella7"), static_cast<int>(people.size()));
        for (std::size_t at = 0; at < people.size(); ++at) {
            EXPECT_EQ(seen.cell("Tabella7", static_cast<int>(at) + 1, "Componente"), people[at] + " ANNA");
        }
    }
    void printAll(const Boxes& boxes) {
        choose(boxes);
        const Message question =
            allStationsQuestion({boxes.stations == &frmTutteStampe::Check2 ? StationKind::special : StationKind::normal,
                                 boxes.round == &frmTutteStampe::Check4 ? Round::runOff : Round::first});
        desktop.box(question.title, question.text, ScriptedDesktop::Answer::yes);
        click(screen().cmdTSeggi);
    }
};

TEST_F(StationRows, SummaryAddsMembersAndSubstitutesOfEachStation) {
    find("Comunali");
    click(screen().cmdRSeggi);
    // 150,00 + 3 x 120,00; 150,00 + 2 x 120,00 + 45,50; 150,00 + 120,00 + 0,05
    expectSums({{"1", "510,00"}, {"2", "435,50"}, {"3", "270,05"}});
    for (int row = 1; row <= 3; ++row) {
        EXPECT_EQ(seen.cell("Tabella8", row, "Seggi"), std::to_string(row));
        EXPECT_EQ(seen.cell("Tabella8", row, "missioni"), "0,00");
        EXPECT_EQ(seen.cell("Tabella8", row, "MagMis"), "0,00") << "no row of quotas";
        EXPECT_EQ(seen.cell("Tabella8", row, "MProv"), "0,00");
        EXPECT_EQ(seen.cell("Tabella8", row, "Prov"), "(not there)");
    }
    EXPECT_EQ(seen.cell("Tabella8", 2, "MCom"), "435,50");
    EXPECT_EQ(seen.rows("Tabella5"), 1);
    EXPECT_EQ(seen.cell("Tabella5", 1, "Elezione"), "Comunali");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Data"), "del 9 Giugno 2024");
    EXPECT_EQ(seen.cell("Tabella5", 1, "Databall"), "{Vorbano 3.9 edizione 2014}");
}

TEST_F(StationRows, SummariesOfTheOtherChoices) {
    find("Comunali");
    choose(normalRunOffBoxes);
    click(screen().cmdRSeggi);
    // 110,01 + 3 x 88,55; 110,01 + 2 x 88,55 + 45,50; 110,01 + 88,55 + 0,05
    expectSums({{"1", "375,66"}, {"2", "332,61"}, {"3", "198,61"}});
    EXPECT_EQ(seen.cell("Tabella8", 1, "MCom"), "375,66");
    choose(specialFirstBoxes);
    click(screen().cmdRSeggi);
    // 90,00 + 2 x 61,01 + 20,33; 90,00 + 61,01
    expectSums({{"4", "232,35"}, {"1", "151,01"}});
    for (const char* field : {"Seggi", "missioni", "MCom", "MProv", "MagMis", "Prov"}) {
        EXPECT_EQ(seen.cell("Tabella8", 1, field), "(not there)") << "special stations have number and fees only";
    }
    choose(specialRunOffBoxes);
    click(screen().cmdRSeggi);
    // 70,00 + 2 x 50,03 + 20,33; 70,00 + 50,03
    expectSums({{"4", "190,39"}, {"1", "120,03"}});
}

TEST_F(StationRows, QuotasOfTheKindAreTakenByRole) {
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat",
                    quotaBytes("Europee", 100, 100) + quotaBytes("Provinciali_Comunali", 3500, 2525) +
                        quotaBytes("Provinciali_Comunali", 9900, 9900)));
    find("Provinciali_Comunali");
    click(screen().cmdRSeggi);
    // 35,00 + 3 x 25,25; 35,00 + 2 x 25,25; 35,00 + 25,25. The substitutes have none.
    const std::array quotas = {"110,75", "85,50", "60,25"};
    // What is left of 510,00, 435,50 and 270,05.
    const std::array left = {"399,25", "350,00", "209,80"};
    for (int row = 1; row <= 3; ++row) {
        const auto at = static_cast<std::size_t>(row) - 1;
        for (const char* field : {"MagMis", "MProv", "Prov"}) {
            EXPECT_EQ(seen.cell("Tabella8", row, field), quotas[at]) << field;
        }
        EXPECT_EQ(seen.cell("Tabella8", row, "MCom"), left[at]);
    }
}

TEST_F(StationRows, ProvincialElectionsAloneSubtractNothing) {
    ASSERT_TRUE(lay(files, "Params/Tarmag.dat", quotaBytes("Provinciali", 3500, 2525)));
    find("Provinciali");
    choose(normalRunOffBoxes);
    click(screen().cmdRSeggi);
    EXPECT_EQ(seen.cell("Tabella8", 1, "Prov"), "110,75");
    EXPECT_EQ(seen.cell("Tabella8", 1, "MCom"), "375,66");
}

TEST_F(StationRows, OfOneStationAreItsMembersAndThenItsSubstitutes) {
    find("Comunali");
    click(screen().cmdSSeggio);
    choose(screen().Combo3, "2");
    click(screen().cmdStampa);
    expectPeople({"N21", "N22", "N23", "MANCA"});
    const std::pair<const char*, const char*> president[] = {
        {"Elezione", "Comunali"},   {"Data", "del 9 Giugno 2024"}, {"Seggio", "3"},          {"SonoSeggio", "2"},
        {"CompoNum", "1"},          {"Qualifica", "Presidente"},   {"Indirizzo", "VIA N21"}, {"Partecipazione", "SI"},
        {"CodiceFiscale", "CFN21"}, {"onorario", "150,00"}};
    for (const auto& [field, value] : president) EXPECT_EQ(seen.cell("Tabella7", 1, field), value) << field;
    EXPECT_EQ(seen.cell("Tabella7", 2, "Qualifica"), "Segretario");
    EXPECT_EQ(seen.cell("Tabella7", 4, "CompoNum"), "4");
    EXPECT_EQ(seen.cell("Tabella7", 4, "onorario"), "45,50");
    EXPECT_EQ(seen.rows("Tabella5"), 1);
}

TEST_F(StationRows, OfOneStationOfTheOtherChoices) {
    find("Comunali");
    choose(normalRunOffBoxes);
    click(screen().cmdSSeggio);
    choose(screen().Combo3, "3");
    click(screen().cmdStampa);
    expectPeople({"B31", "B32", "TARDI"});
    EXPECT_EQ(seen.cell("Tabella7", 2, "onorario"), "88,55");
    EXPECT_EQ(seen.cell("Tabella7", 2, "CodiceFiscale"), "CFB32");
    choose(specialRunOffBoxes);
    click(screen().cmdSSeggio);
    choose(screen().Combo2, "1");
    click(screen().cmdStampaSpeciali);
    expectPeople({"R11", "R12"});
    EXPECT_EQ(seen.cell("Tabella7", 2, "onorario"), "50,03");
    EXPECT_EQ(seen.cell("Tabella7", 2, "Seggio"), "2");
    EXPECT_EQ(seen.cell("Tabella7", 2, "Qualifica"), "Scrutatore");
}

TEST_F(StationRows, OfAllStationsFollowTheFile) {
    find("Comunali");
    printAll(normalFirstBoxes);
    expectPeople({"N11", "N12", "N13", "N14", "N21", "N22", "N23", "MANCA", "N31", "N32", "TARDI"});
    EXPECT_EQ(seen.cell("Tabella7", 8, "SonoSeggio"), "2");
    EXPECT_EQ(seen.cell("Tabella7", 11, "onorario"), "0,05");
    EXPECT_EQ(seen.rows("Tabella5"), 1);
    printAll(normalRunOffBoxes);
    expectPeople({"B11", "B12", "B13", "B14", "B21", "B22", "B23", "MANCA", "B31", "B32", "TARDI"});
    printAll(specialFirstBoxes);
    expectPeople({"S41", "S42", "S43", "LETTO", "S11", "S12"});
    printAll(specialRunOffBoxes);
    expectPeople({"R41", "R42", "R43", "LETTO", "R11", "R12"});
}

TEST_F(StationRows, ANoPrintsNothing) {
    find("Comunali");
    desktop.box("Stampa seggi normali - 1° turno", "Volete stampare i componenti di tutti i seggi?",
                ScriptedDesktop::Answer::no);
    click(screen().cmdTSeggi);
    EXPECT_TRUE(printing.jobs.empty());
    expectEmptyTables();
}

TEST_F(StationRows, TookPartAndHalfCentsAsTheFileHasThem) {
    ASSERT_TRUE(lay(files, "Params/Ente.dat", ""));
    LaidPerson absent{"ASSENTE", "Scrutatore", 0, "NO"};
    std::string record = memberBytes({1, 1, 2}, 2, absent);
    record.replace(208, 8, amount(0, 0, 50));
    ASSERT_TRUE(lay(files, "Elezioni/Comunali/09-06-24/Seggi.vbn",
                    memberBytes({1, 1, 2}, 1, {"CAPO", "Presidente", 15000}) + record));
    open();
    search("Comunali", "09-06-24");
    printAll(normalFirstBoxes);
    EXPECT_EQ(seen.cell("Tabella7", 2, "Partecipazione"), "NO");
    EXPECT_EQ(seen.units("Tabella7", 2, "onorario"), 100) << "0,0050 is a cent";
}

TEST_F(StationRows, OfAChoiceWithoutStationsAreOnlyTheHeading) {
    ASSERT_TRUE(layStations(files, "Comunali"));
    for (const char* name : {"Speciale.vbn", "SosSpec.vbn"}) {
        ASSERT_TRUE(lay(files, std::string("Elezioni/Comunali/09-06-24/") + name, ""));
    }
    open();
    search("Comunali", "09-06-24");
    EXPECT_FALSE(screen().Check2.isEnabled());
    EXPECT_EQ(screen().txtSpeciali.text(), "");
    EXPECT_THAT(printStationSummary(desk, {"Comunali", "09-06-24"}, {StationKind::special, Round::first}, {}),
                Succeeds());
    EXPECT_EQ(seen.rows("Tabella8"), 0);
    EXPECT_EQ(seen.rows("Tabella5"), 1);
}

TEST_F(StationRows, NoFileOfStationsIsWrittenByAnyDocument) {
    ASSERT_TRUE(layStations(files, "Provinciali_Comunali"));
    const std::string before = allStationBytes(files, "Provinciali_Comunali");
    // 9 members of 216 and 246 bytes, 5 of 216 and 224; two substitutes of 218 and 248, one of 218 and 226.
    ASSERT_EQ(before.size(), 9U * (216 + 246) + 5U * (216 + 224) + 2U * (218 + 248) + 218 + 226);
    open();
    search("Provinciali_Comunali", "09-06-24");
    for (const Boxes& boxes : {normalFirstBoxes, normalRunOffBoxes, specialFirstBoxes, specialRunOffBoxes}) {
        printAll(boxes);
        click(screen().cmdRSeggi);
        click(screen().cmdSSeggio);
        const bool special = screen().Frame2.isVisible();
        choose(special ? screen().Combo2 : screen().Combo3, "1");
        click(special ? screen().cmdStampaSpeciali : screen().cmdStampa);
    }
    EXPECT_EQ(printing.jobs.size(), 12U);
    EXPECT_EQ(allStationBytes(files, "Provinciali_Comunali"), before);
}

}  // namespace
}  // namespace vorbano::test
