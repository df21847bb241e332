// The boxes of a document and the amounts that are typed.

#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

const char* const voiceBoxes[] = {"Check1", "Check2", "Check3", "Check4", "Check5", "Check11", "Check17"};

class VersamentiDocumento : public VersamentiTest {
  protected:
    void begin(int irpef = 123456, int inail = 7890, int inps = 4500) {
        layPayments(files);
        EXPECT_TRUE(lay(files, paymentPath("Meirin.vbn"), laidMeirin(irpef, inail, inps)));
        open();
        identify();
        click("cmdAnteprima");
        click("cmdInserire");
    }
    void expectOperable(const std::vector<const char*>& names, bool expected) {
        for (const char* name : names) EXPECT_EQ(operable(name), expected) << name;
    }
};

TEST_F(VersamentiDocumento, TheEntryOffersTheVoicesAndNothingElse) {
    begin();
    for (const char* name : voiceBoxes) EXPECT_TRUE(operable(name)) << name;
    EXPECT_TRUE(operable("cmdAnnulla2"));
    expectOperable(
        {"cmdVideo",    "cmdStampa", "cmdSoloElenco", "Check15",  "Check16",     "cmdVisualizza", "cmdRiavvia",
         "cmdInserire", "Check6",    "Check7",        "Check8",   "Check9",      "Check10",       "Check12",
         "Check13",     "Check14",   "Check18",       "cmdSalva", "cmdAggiungi", "cmdNuovo"},
        false);
}

TEST_F(VersamentiDocumento, AVoiceIsAloneAndOpensTheBoxesOfItsDocument) {
    begin();
    struct Case {
        const char* voice;
        std::vector<const char*> opens;
        std::vector<const char*> keepsShut;
    };
    const std::vector<const char*> all = {"Check6", "Check7", "Check8", "Check9", "Check10"};
    const std::vector<Case> cases = {
        {"Check1", all, {"Check12"}},
        {"Check2", all, {"Check12"}},
        {"Check3", all, {"Check12"}},
        {"Check4", all, {"Check12"}},
        {"Check5", all, {"Check12"}},
        {"Check11", {"Check12"}, all},
        {"Check17", {"Check7", "Check8", "Check9", "Check10"}, {"Check6", "Check12"}},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.voice);
        tick(one.voice);
        for (const char* name : voiceBoxes) EXPECT_EQ(operable(name), std::string_view(name) == one.voice) << name;
        expectOperable(one.opens, true);
        expectOperable(one.keepsShut, false);
        EXPECT_FALSE(operable("cmdSalva"));
        tick(one.voice, false);
        for (const char* name : voiceBoxes) EXPECT_TRUE(operable(name)) << name;
        expectOperable(one.opens, false);
    }
}

TEST_F(VersamentiDocumento, KindAndCopiesExcludeEachOtherAndOpenTheirFields) {
    begin();
    tick("Check1");
    expectOperable({"txtMnumero", "txtMdata", "txtDataf24"}, false);
    tick("Check6");
    expectOperable({"txtMnumero", "txtMdata"}, true);
    EXPECT_FALSE(operable("txtDataf24"));
    tick("Check7");
    EXPECT_FALSE(ticked("Check6"));
    expectOperable({"txtMnumero", "txtMdata"}, false);
    EXPECT_TRUE(operable("txtDataf24"));
    EXPECT_FALSE(operable("cmdSalva"));
    tick("Check8");
    EXPECT_TRUE(operable("cmdSalva"));
    tick("Check9");
    EXPECT_FALSE(ticked("Check8"));
    EXPECT_TRUE(operable("cmdSalva"));
    tick("Check9", false);
    EXPECT_FALSE(operable("cmdSalva"));
    tick("Check8");
    tick("Check1", false);
    for (const char* name : {"Check6", "Check7", "Check8", "Check9"}) EXPECT_FALSE(ticked(name)) << name;
}

TEST_F(VersamentiDocumento, AVoiceWithoutAmountIsRefusedAndTheAmountCanBeTyped) {
    struct Case {
        const char* voice;
        const char* message;
        const char* title;
        const char* typing;
        const char* field;
    };
    const Case cases[] = {{"Check5", "Inserire l'mporto dell'IRPEF", "IRPEF", "Check13", "txtIrpef"},
                          {"Check11", "Inserire l'mporto dell'INAIL", "INAIL", "Check14", "txtInail"},
                          {"Check17", "Inserire l'mporto dell'INPS", "INAIL", "Check18", "txtInps"}};
    begin(0, 0, 0);
    for (const Case& one : cases) {
        SCOPED_TRACE(one.voice);
        EXPECT_FALSE(operable(one.typing));
        box(one.title, one.message);
        tick(one.voice);
        EXPECT_FALSE(ticked(one.voice));
        EXPECT_TRUE(operable(one.typing));
        EXPECT_EQ(focused(), one.typing);
        EXPECT_FALSE(operable(one.field));
        tick(one.typing);
        EXPECT_TRUE(operable(one.field));
        EXPECT_EQ(focused(), one.field);
        EXPECT_FALSE(operable(one.voice)) << "not before the amount is stored";
        type(one.field, "1234,567");
        click("cmdSalvaII");
        EXPECT_EQ(text(one.field), "1.234,57");
        EXPECT_FALSE(operable(one.field));
        EXPECT_FALSE(ticked(one.typing));
        EXPECT_FALSE(operable("cmdSalvaII"));
        EXPECT_EQ(focused(), one.voice);
        tick(one.voice);
        EXPECT_TRUE(ticked(one.voice));
        tick(one.voice, false);
    }
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(laidMeirin(123457, 123457, 123457)));
}

TEST_F(VersamentiDocumento, AWrongAmountCanBeTypedAnew) {
    begin();
    tick("Check17");
    EXPECT_TRUE(operable("Check18"));
    tick("Check18");
    EXPECT_FALSE(operable("Check7")) << "no document while an amount is typed";
    type("txtInps", "45,10");
    click("cmdSalvaII");
    EXPECT_TRUE(operable("Check7"));
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(laidMeirin(123456, 7890, 4510)));
}

TEST_F(VersamentiDocumento, AnAmountGivenUpIsTheStoredOneAgain) {
    begin();
    tick("Check5");
    tick("Check13");
    type("txtIrpef", "9");
    tick("Check13", false);
    EXPECT_EQ(text("txtIrpef"), "1.234,56");
    EXPECT_FALSE(operable("txtIrpef"));
    tick("Check13");
    type("txtIrpef", "9");
    click("cmdAnnulla2");
    EXPECT_EQ(text("txtIrpef"), "1.234,56");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(laidMeirin(123456, 7890, 4500)));
}

TEST_F(VersamentiDocumento, AnAmountThatIsNoNumberIsNotStored) {
    begin();
    tick("Check11");
    tick("Check14");
    type("txtInail", "sette");
    box("INAIL", "Inserire l'mporto dell'INAIL");
    click("cmdSalvaII");
    EXPECT_EQ(focused(), "txtInail");
    EXPECT_EQ(text("txtInail"), "sette");
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(laidMeirin(123456, 7890, 4500)));
}

TEST_F(VersamentiDocumento, TheDatesKeptInMeirinAreProposed) {
    layPayments(files);
    ASSERT_TRUE(lay(files, paymentPath("Meirin.vbn"), laidMeirin(0, 7890, 4500, "16-08-24", "17-08-24")));
    open();
    identify();
    click("cmdAnteprima");
    click("cmdInserire");
    tick("Check11");
    tick("Check12");
    EXPECT_EQ(text("txtDatainail"), "16-08-24");
    tick("Check11", false);
    tick("Check17");
    tick("Check10");
    EXPECT_EQ(text("txtDataf24"), "");
    tick("Check7");
    EXPECT_EQ(text("txtDataf24"), "17-08-24");
    type("txtDataf24", "1/9/24");
    tick("Check10", false);
    tick("Check10");
    EXPECT_EQ(text("txtDataf24"), "01-09-24") << "what was typed stays";
}

TEST_F(VersamentiDocumento, DatesAreReformattedAndRefuseOtherSigns) {
    begin();
    tick("Check1");
    tick("Check6");
    type("txtMdata", "1/7/2024");
    leave();
    EXPECT_EQ(text("txtMdata"), "01-07-24");
    box("formato data", "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
    type("txtMdata", "1.");
    EXPECT_EQ(text("txtMdata"), "1");
}

}  // namespace
}  // namespace vorbano::test
