#include <set>

#include "stampe_desk.h"

namespace vorbano::test {
namespace {

/// The first record of a file of stations, `width` bytes, of an election with so many stations.
std::string firstRecordBytes(std::size_t width, int stations) {
    std::string record = padded("Europee", 14) + "09-06-24" + le16(stations) + le16(1);
    record.resize(width, ' ');
    return record;
}

class Ricerca : public StampeDesk {
  protected:
    /// An election with its folder, an empty employee file, and what the test lays beside it.
    void SetUp() override { ASSERT_TRUE(layElection("Europee", "09-06-24")); }
    bool layFile(const std::string& name, const std::string& content) {
        return lay(files, "Elezioni/Europee/09-06-24/" + name, content);
    }
    /// Names of the boxes and commands that are enabled, on show or not.
    std::set<std::string> lit() {
        std::set<std::string> names;
        for (const Control* control : screen().form.controls()) {
            const bool asked = control->kind() == Kind::checkBox || control == &screen().cmdImpegno;
            if (asked && control->enabled()) names.insert(control->name());
        }
        return names;
    }
    std::set<std::string> ticked() {
        std::set<std::string> names;
        for (const Control* control : screen().form.controls()) {
            if (control->kind() != Kind::checkBox) continue;
            const auto* box = static_cast<const CheckBox*>(control);
            if (box->checked()) names.insert(box->name());
        }
        return names;
    }
    /// Text of `Label7` to `Label13`, joined with "|".
    std::string flags() {
        auto& stampe = screen();
        std::string joined;
        for (const HiddenLabel* label : {&stampe.Label7, &stampe.Label8, &stampe.Label9, &stampe.Label10,
                                         &stampe.Label11, &stampe.Label12, &stampe.Label13}) {
            joined += label->text() + "|";
        }
        return joined;
    }
};

TEST_F(Ricerca, WithoutTypeAndDateIsRefused) {
    auto& stampe = open();
    desktop.box("Errore", "dati insufficienti per la ricerca");
    click(stampe.cmdAnteprima);
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo1);
    EXPECT_TRUE(stampe.Combo1.isEnabled());
    EXPECT_FALSE(stampe.cmdRiavvia.isEnabled());
}

TEST_F(Ricerca, WithoutADateIsRefused) {
    auto& stampe = open();
    choose(stampe.Combo1, "Europee");
    desktop.box("Errore", "dati insufficienti per la ricerca");
    click(stampe.cmdAnteprima);
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo1);
}

TEST_F(Ricerca, WithoutATypeIsRefused) {
    auto& stampe = open();
    type(stampe.txtDataEle, "09/06/24");
    desktop.box("Errore", "dati insufficienti per la ricerca");
    click(stampe.cmdAnteprima);
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo1);
    EXPECT_EQ(stampe.txtDataEle.text(), "09-06-24");
}

TEST_F(Ricerca, OfADateThatIsNotThereIsRefusedAndMakesNoFolder) {
    auto& stampe = open();
    choose(stampe.Combo1, "Europee");
    type(stampe.txtDataEle, "10-06-24");
    desktop.box("Errore", "Data di Elezione inesistente!");
    click(stampe.cmdAnteprima);
    EXPECT_TRUE(stampe.Combo1.isEnabled());
    EXPECT_TRUE(stampe.txtDataEle.isEnabled());
    EXPECT_TRUE(stampe.cmdAnteprima.isEnabled());
    EXPECT_FALSE(stampe.cmdRiavvia.isEnabled());
    EXPECT_THAT(files.list("Elezioni/Europee/10-06-24"), Fails(Failure::missingFolder));
}

TEST_F(Ricerca, OfADateThatNamesAFolderElsewhereIsRefused) {
    ASSERT_TRUE(lay(files, "Elezioni/Europee/2024/06/2024.vbn", ""));
    auto& stampe = open();
    choose(stampe.Combo1, "Europee");
    type(stampe.txtDataEle, "2024/06");
    desktop.box("Errore", "Data di Elezione inesistente!");
    click(stampe.cmdAnteprima);
    EXPECT_FALSE(stampe.cmdRiavvia.isEnabled());
}

TEST_F(Ricerca, WithADateTypedByHandFindsTheElection) {
    auto& stampe = open();
    choose(stampe.Combo1, "Europee");
    type(stampe.txtDataEle, "9/6/2024");
    click(stampe.cmdAnteprima);
    EXPECT_EQ(stampe.txtDataEle.text(), "09-06-24");
    EXPECT_TRUE(stampe.cmdRiavvia.isEnabled());
    EXPECT_EQ(stampe.lbldata.text(), "");
}

TEST_F(Ricerca, LocksTheChoiceOfTheElection) {
    auto& stampe = open();
    search("Europee", "09-06-24");
    EXPECT_FALSE(stampe.Combo1.isEnabled());
    EXPECT_FALSE(stampe.Combo4.isEnabled());
    EXPECT_FALSE(stampe.txtDataEle.isEnabled());
    EXPECT_FALSE(stampe.cmdAnteprima.isEnabled());
    EXPECT_TRUE(stampe.cmdRiavvia.isEnabled());
}

TEST_F(Ricerca, OfEmptyFilesLightsNothing) {
    open();
    search("Europee", "09-06-24");
    EXPECT_EQ(lit(), std::set<std::string>{});
    EXPECT_EQ(ticked(), std::set<std::string>{});
    EXPECT_EQ(flags(), "1|||||1|0|");
    EXPECT_EQ(screen().form.focused(), &screen().cmdRiavvia);
}

TEST_F(Ricerca, LeavesTheFilesItLookedForBehindEmpty) {
    open();
    search("Europee", "09-06-24");
    const auto entries = files.list("Elezioni/Europee/09-06-24");
    ASSERT_THAT(entries, Succeeds());
    std::set<std::string> names;
    for (const Entry& entry : *entries) names.insert(entry.name);
    EXPECT_EQ(names, (std::set<std::string>{"09-06-24.vbn", "Congs.vbn", "Rendi.vbn", "SegSuf.vbn", "Seggi.vbn",
                                            "SpecSufr.vbn", "Speciale.vbn", "Versum.vbn"}));
    for (const std::string& name : names) EXPECT_EQ(contentOf(files, "Elezioni/Europee/09-06-24/" + name), "") << name;
}

TEST_F(Ricerca, SpecialStationsOfTheRunOff) {
    ASSERT_TRUE(layFile("SpecSufr.vbn", firstRecordBytes(224, 3)));
    open();
    search("Europee", "09-06-24");
    EXPECT_EQ(flags(), "1||||3|1|1|");
    EXPECT_EQ(lit(), std::set<std::string>{});
}

TEST_F(Ricerca, NormalStationsOfTheRunOff) {
    ASSERT_TRUE(layFile("SegSuf.vbn", firstRecordBytes(246, 12)));
    open();
    search("Europee", "09-06-24");
    EXPECT_EQ(flags(), "1|||12||0|0|");
    EXPECT_EQ(lit(), std::set<std::string>{"Check4"});
    EXPECT_EQ(ticked(), std::set<std::string>{});
}

TEST_F(Ricerca, NormalStations) {
    ASSERT_TRUE(layFile("Seggi.vbn", firstRecordBytes(216, 300)));
    open();
    search("Europee", "09-06-24");
    EXPECT_EQ(flags(), "1|300||||1|0|");
    EXPECT_EQ(lit(), (std::set<std::string>{"Check1", "Check3"}));
    EXPECT_EQ(ticked(), (std::set<std::string>{"Check1", "Check3"}));
}

TEST_F(Ricerca, SpecialStations) {
    ASSERT_TRUE(layFile("Speciale.vbn", firstRecordBytes(216, 2)));
    open();
    search("Europee", "09-06-24");
    EXPECT_EQ(flags(), "0||2|||1|0|");
    EXPECT_EQ(lit(), std::set<std::string>{"Check2"});
    EXPECT_EQ(ticked(), std::set<std::string>{});
}

TEST_F(Ricerca, AdjustmentStatementAndPaymentsLightNoneOfTheDocumentsThereAre) {
    ASSERT_TRUE(layFile("Congs.vbn", std::string(145, ' ')));
    ASSERT_TRUE(layFile("Rendi.vbn", std::string(152, ' ')));
    ASSERT_TRUE(layFile("Versum.vbn", std::string(95, ' ')));
    open();
    search("Europee", "09-06-24");
    EXPECT_EQ(lit(), std::set<std::string>{});
    EXPECT_EQ(flags(), "1|||||1|0|");
}

TEST_F(Ricerca, EmployeesLightTheCommitmentAndThreePeriods) {
    ASSERT_TRUE(layOvertime(files, "Europee", "09-06-24", 3));
    auto& stampe = open();
    search("Europee", "09-06-24");
    EXPECT_EQ(lit(), (std::set<std::string>{"Check5", "Check6", "Check7", "Check8", "cmdImpegno"}));
    EXPECT_EQ(ticked(), std::set<std::string>{"Check5"});
    EXPECT_EQ(stampe.form.focused(), &stampe.cmdImpegno);
}

TEST_F(Ricerca, EmployeesBefore2014LightFivePeriods) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    open();
    search("Europee_Comunali", "26-05-13");
    EXPECT_EQ(lit(),
              (std::set<std::string>{"Check5", "Check6", "Check7", "Check8", "Check9", "Check10", "cmdImpegno"}));
}

TEST_F(Ricerca, WithoutEmployeesTheLatePeriodsStayDark) {
    ASSERT_TRUE(layElection("Europee_Comunali", "26-05-13"));
    auto& stampe = open();
    search("Europee_Comunali", "26-05-13");
    EXPECT_TRUE(stampe.Check9.isVisible());
    EXPECT_EQ(lit(), std::set<std::string>{});
}

TEST_F(Ricerca, FolderThatIsNoDateIsSearchedLikeAnyOther) {
    ASSERT_TRUE(layElection("Europee", "vecchio"));
    auto& stampe = open();
    search("Europee", "vecchio");
    EXPECT_TRUE(stampe.cmdRiavvia.isEnabled());
    EXPECT_EQ(stampe.lbldata.text(), "");
}

TEST_F(Ricerca, FileThatCannotBeReadIsToldInWords) {
    ASSERT_THAT(files.makeFolder("Elezioni/Europee/09-06-24/Seggi.vbn"), Succeeds());
    auto& stampe = open();
    desktop.box("Errore",
                "Il file Elezioni/Europee/09-06-24/Seggi.vbn non può essere letto o scritto: controllare che non sia "
                "di sola lettura.");
    search("Europee", "09-06-24");
    EXPECT_FALSE(stampe.cmdRiavvia.isEnabled());
    EXPECT_TRUE(stampe.cmdAnteprima.isEnabled());
}

TEST_F(Ricerca, TakenBackPutsTheScreenBackAsAtLoad) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    for (const auto& [name, width] : {std::pair<const char*, std::size_t>{"Seggi.vbn", 216},
                                      {"SegSuf.vbn", 246},
                                      {"Speciale.vbn", 216},
                                      {"SpecSufr.vbn", 224}}) {
        ASSERT_TRUE(lay(files, std::string("Elezioni/Europee_Comunali/26-05-13/") + name, firstRecordBytes(width, 4)));
    }
    auto& stampe = open();
    search("Europee_Comunali", "26-05-13");
    EXPECT_EQ(flags(), "0|4|4|4|4|0|1|");
    tick(stampe.Check7);
    click(stampe.cmdRiavvia);
    EXPECT_EQ(lit(), std::set<std::string>{});
    EXPECT_EQ(ticked(), std::set<std::string>{});
    EXPECT_EQ(flags(), "|||||||");
    EXPECT_EQ(stampe.lblElezione.text() + stampe.lbldata.text() + stampe.lblAggio.text(), "");
    EXPECT_FALSE(stampe.Check9.isVisible());
    EXPECT_FALSE(stampe.Check10.isVisible());
    EXPECT_TRUE(stampe.Combo1.isEnabled());
    EXPECT_EQ(stampe.Combo1.text(), "");
    EXPECT_EQ(stampe.Combo1.items(), (Lines{"Europee", "Europee_Comunali"}));
    EXPECT_TRUE(stampe.Combo4.isEnabled());
    EXPECT_TRUE(stampe.Combo4.items().empty());
    EXPECT_TRUE(stampe.txtDataEle.isEnabled());
    EXPECT_EQ(stampe.txtDataEle.text(), "");
    EXPECT_TRUE(stampe.cmdAnteprima.isEnabled());
    EXPECT_FALSE(stampe.cmdRiavvia.isEnabled());
    EXPECT_EQ(stampe.form.focused(), &stampe.Combo1);
}

TEST_F(Ricerca, AnotherElectionCanBeSearchedAfterwards) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    auto& stampe = open();
    search("Europee_Comunali", "26-05-13");
    click(stampe.cmdRiavvia);
    search("Europee", "09-06-24");
    EXPECT_EQ(lit(), std::set<std::string>{});
    EXPECT_FALSE(stampe.Check9.isVisible());
}

TEST_F(Ricerca, PeriodBoxesExcludeEachOther) {
    ASSERT_TRUE(layOvertime(files, "Europee_Comunali", "26-05-13", 5));
    auto& stampe = open();
    search("Europee_Comunali", "26-05-13");
    for (CheckBox* box :
         {&stampe.Check6, &stampe.Check7, &stampe.Check8, &stampe.Check9, &stampe.Check10, &stampe.Check5}) {
        tick(*box);
        EXPECT_EQ(ticked(), std::set<std::string>{box->name()});
    }
    tick(stampe.Check5, false);
    EXPECT_EQ(ticked(), std::set<std::string>{});
}

/// Whether the screen shows a fourth and a fifth period for a type, before 2014.
struct Late {
    const char* type;
    bool fourth;
    bool fifth;
};
void PrintTo(const Late& late, std::ostream* out) { *out << late.type; }

class LatePeriodBoxes : public StampeDesk, public testing::WithParamInterface<Late> {};

TEST_P(LatePeriodBoxes, ShowByTypeBefore2014AndNeverAfter) {
    const Late& late = GetParam();
    for (const std::string date : {"09-06-13", "09-06-14", "09-06-99"}) ASSERT_TRUE(layElection(late.type, date));
    auto& stampe = open();
    search(late.type, "09-06-13");
    EXPECT_EQ(stampe.Check9.isVisible(), late.fourth);
    EXPECT_EQ(stampe.Check10.isVisible(), late.fifth);
    for (const std::string date : {"09-06-14", "09-06-99"}) {
        click(stampe.cmdRiavvia);
        search(late.type, date);
        EXPECT_FALSE(stampe.Check9.isVisible()) << date;
        EXPECT_FALSE(stampe.Check10.isVisible()) << date;
    }
}

INSTANTIATE_TEST_SUITE_P(ElevenTypes, LatePeriodBoxes,
                         testing::Values(Late{"Europee", true, false}, Late{"Europee_Comunali", true, true},
                                         Late{"Provinciali", true, false}, Late{"Comunali", false, false},
                                         Late{"Referendum", true, false}, Late{"Politiche", false, false},
                                         Late{"Regionali", true, false}, Late{"Provinciali_Comunali", true, false},
                                         Late{"Politiche_Comunali", true, false},
                                         Late{"Politiche_Regionali", true, true},
                                         Late{"Referendum_Comunali", true, false}),
                         [](const auto& one) { return std::string(one.param.type); });

}  // namespace
}  // namespace vorbano::test
