// The desk of a test tells what did not come as it was laid down.

#include "platform/scripted_desktop.h"

#include <gmock/gmock.h>

#include "watcher.h"

using testing::ElementsAre;
using testing::IsEmpty;
using namespace vorbano;

namespace {

using Answer = ScriptedDesktop::Answer;

struct Script : testing::Test {
    ScriptedDesktop desk;
    Form form{"frmX", "Prova"};
};

TEST_F(Script, WhatComesAsLaidDownIsNoMistake) {
    desk.box("Errore", "Data non esatta")
        .box("Domanda", "Salvare?", Answer::yes)
        .box("Domanda", "Salvare?", Answer::no);
    desk.tell({"Data non esatta", "Errore"});
    EXPECT_TRUE(desk.ask({"Salvare?", "Domanda"}));
    EXPECT_FALSE(desk.ask({"Salvare?", "Domanda"}));
    EXPECT_THAT(desk.finish(), IsEmpty());
}

TEST_F(Script, AnotherTextOrTitleIsAMistake) {
    desk.box("Errore", "Data non esatta").box("Errore", "Data non esatta");
    desk.tell({"Data non esatta.", "Errore"});
    desk.tell({"Data non esatta", "Attenzione"});
    EXPECT_THAT(desk.finish(),
                ElementsAre("expected \"Errore\" \"Data non esatta\", came \"Errore\" \"Data non esatta.\"",
                            "expected \"Errore\" \"Data non esatta\", came \"Attenzione\" \"Data non esatta\""));
}

TEST_F(Script, ABoxThatNobodyExpectedIsAMistake) {
    EXPECT_FALSE(desk.ask({"Salvare?", "Domanda"}));
    EXPECT_THAT(desk.finish(), ElementsAre("nobody expected the box \"Domanda\" \"Salvare?\""));
}

TEST_F(Script, AQuestionInPlaceOfAMessageIsAMistake) {
    desk.box("Domanda", "Salvare?").box("Errore", "No", Answer::yes);
    EXPECT_FALSE(desk.ask({"Salvare?", "Domanda"}));
    desk.tell({"No", "Errore"});
    EXPECT_EQ(desk.finish().size(), 2U);
}

TEST_F(Script, WhatNeverCameIsAMistake) {
    desk.box("Errore", "Data non esatta").form("frmY", nullptr);
    EXPECT_THAT(desk.finish(), ElementsAre("this box never came: Data non esatta", "this form never came: frmY"));
    EXPECT_THAT(desk.finish(), IsEmpty());
}

TEST_F(Script, AFormIsPlayedWhileItIsInFrontAndClosedAfterwards) {
    const Form* front = nullptr;
    desk.form("frmX", [&](Form& shown) {
        front = desk.front();
        EXPECT_TRUE(shown.isOpen());
    });
    desk.show(form);
    EXPECT_EQ(front, &form);
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(desk.front(), nullptr);
    EXPECT_THAT(desk.finish(), IsEmpty());
}

TEST_F(Script, AnotherFormIsAMistake) {
    desk.form("frmY", nullptr);
    desk.show(form);
    EXPECT_THAT(desk.finish(), ElementsAre("expected the form frmY, came frmX"));
}

TEST_F(Script, AFormThatNobodyExpectedIsAMistake) {
    desk.show(form);
    EXPECT_THAT(desk.finish(), ElementsAre("nobody expected the form frmX"));
    EXPECT_FALSE(form.isOpen());
}

TEST_F(Script, AnOpenedFormStaysUntilItIsShut) {
    desk.open(form);
    EXPECT_TRUE(form.isOpen());
    EXPECT_EQ(desk.front(), &form);
    desk.shut(form);
    EXPECT_FALSE(form.isOpen());
    EXPECT_EQ(desk.front(), nullptr);
}

TEST_F(Script, TodayIsWhatWasSet) {
    const std::chrono::year_month_day day = std::chrono::year(2019) / 5 / 26;
    desk.setToday(day);
    EXPECT_EQ(desk.today(), day);
}

TEST_F(Script, TheRecordingPrinterLetsATestLookWhileTheTablesAreFull) {
    RecordingPrintEngine printing;
    std::string seen;
    printing.whileTablesAreFull = [&](const PrintJob& job) { seen = job.layout; };
    EXPECT_TRUE(printing.run({"impstr.rpt", "IMPEGNO DI SPESA", Destination::printer}).ok());
    EXPECT_EQ(seen, "impstr.rpt");
    ASSERT_EQ(printing.jobs.size(), 1U);
    EXPECT_EQ(printing.jobs.front().title, "IMPEGNO DI SPESA");
}

TEST_F(Script, TheRecordingPrinterKeepsPlainPages) {
    RecordingPrintEngine printing;
    EXPECT_TRUE(printing.printPage({"Resoconto", "Comune di Lesa", {"uno", "due"}}).ok());
    ASSERT_EQ(printing.pages.size(), 1U);
    EXPECT_EQ(printing.pages.front().lines, (std::vector<std::string>{"uno", "due"}));
    EXPECT_TRUE(printing.jobs.empty());
}

}  // namespace
