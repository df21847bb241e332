// Lines, total, five sixths and difference of the entry.

#include "statement_desk.h"

namespace vorbano::test {
namespace {

class Lines : public Entry {};

TEST_F(Lines, LeftAreRewrittenAsAmounts) {
    callUp("Comunali");
    const std::pair<const char*, const char*> cases[] = {{"1234,5", "1.234,50"},
                                                         {"1.234,56", "1.234,56"},
                                                         {"0,01", "0,01"},
                                                         {"99999999,99", "99.999.999,99"},
                                                         {"99.999.999,99", "99.999.999,99"},
                                                         {"0,005", "0,01"},
                                                         {"0,0049", "0,00"},
                                                         {"-5", "-5,00"},
                                                         {"dodici", "0,00"},
                                                         {"12,3,4", "0,00"},
                                                         {" ", "0,00"},
                                                         {"", "0,00"},
                                                         {"7 ", "7,00"}};
    for (const auto& [typed, shown] : cases) {
        for (const char* name : typedLines) {
            line(name, typed);
            EXPECT_EQ(text(name), shown) << name << " " << typed;
        }
    }
}

TEST_F(Lines, OfThePartsAreRewrittenToo) {
    callUp("Politiche_Regionali");
    click("Option2");
    for (const char* name : {"txtTotStato", "txtTotComune", "txtCartRegione", "txtCartStato"}) {
        line(name, "1234,5");
        EXPECT_EQ(text(name), "1.234,50") << name;
        line(name, "");
        EXPECT_EQ(text(name), "0,00") << name;
    }
    click("cmdAnnulla");
    callUp("Provinciali_Comunali");
    for (const char* name : {"txtTotProv", "txtTotComune"}) {
        line(name, "1234,5");
        EXPECT_EQ(text(name), "1.234,50") << name;
    }
}

TEST_F(Lines, AreAddedUpOnLeavingTheFurtherExpenses) {
    callUp("Comunali");
    line("txtIndennità", "1");
    line("txtMagMis", "1000");
    line("txtStampanti", "2");
    line("txtTrasporti", "4");
    line("txtDisciplina", "8");
    line("Text1", "16");
    line("txtAssunzioni", "32");
    line("txtNecessità", "64");
    EXPECT_EQ(text("txtTotale"), "") << "the last line is not left yet";
    line("txtMissioni", "128");
    // 420,75 + 178,50 + 635,24 + 255,00, without the "Maggiorazione".
    EXPECT_EQ(text("txtTotale"), "1.489,49");
    EXPECT_EQ(text("txtFraz"), "");
}

TEST_F(Lines, ThatAreEmptyAreZeroAtTheSum) {
    callUp("Comunali");
    enter("txtMissioni");
    EXPECT_EQ(text("txtIndennità"), "");
    leave();
    EXPECT_EQ(text("txtIndennità"), "0,00");
    EXPECT_EQ(text("txtCarico"), "0,00");
    EXPECT_EQ(text("txtMissioni"), "0,00");
    EXPECT_EQ(text("txtTrasporti"), "") << "only three lines are filled";
    EXPECT_EQ(text("txtTotale"), "1.234,49");
}

TEST_F(Lines, OfTwoBodiesAreAllInTheSum) {
    callUp("Politiche_Regionali");
    click("Option2");
    line("txtTotStato", "500");
    line("txtTotComune", "500");
    line("txtCartRegione", "500");
    line("txtCartStato", "500");
    line("txtMissioni", "0,01");
    // 43,67 + 333,01 + 258,56 + 420,75 + 178,50 + 0,01: the parts add nothing.
    EXPECT_EQ(text("txtTotale"), "1.234,50");
}

TEST_F(Lines, ThatChangeAfterTheSumAreTold) {
    callUp("Comunali");
    line("txtMissioni", "1");
    line("txtAcconti", "0");
    EXPECT_EQ(text("lblAvviso"), "");
    type("txtTrasporti", "5");
    EXPECT_EQ(text("lblAvviso"), "Il totale si calcola lasciando il campo delle ulteriori spese");
    EXPECT_EQ(text("txtTotale"), "1.235,49");
    enter("txtMissioni");
    leave();
    EXPECT_EQ(text("txtTotale"), "1.240,49");
    EXPECT_EQ(text("lblAvviso"), "La differenza si calcola lasciando il campo degli acconti");
    enter("txtAcconti");
    leave();
    EXPECT_EQ(text("txtDifferenza"), "1.240,49");
    EXPECT_EQ(text("lblAvviso"), "");
}

class Difference : public Entry {};

TEST_F(Difference, IsTakenFromTheTotal) {
    callUp("Comunali");
    line("txtMissioni", "0,51");
    EXPECT_EQ(text("txtTotale"), "1.235,00");
    EXPECT_EQ(text("Label15"), "Differenza");
    line("txtAcconti", "1234,99");
    EXPECT_EQ(text("txtDifferenza"), "0,01");
    EXPECT_EQ(text("Label15"), "Differenza a credito");
    line("txtAcconti", "1235,01");
    EXPECT_EQ(text("txtDifferenza"), "-0,01");
    EXPECT_EQ(text("Label15"), "Differenza a debito");
    line("txtAcconti", "1235");
    EXPECT_EQ(text("txtDifferenza"), "0,00");
    EXPECT_EQ(text("Label15"), "Differenza a credito") << "equal is a credit";
    line("txtAcconti", "99.999.999,99");
    EXPECT_EQ(text("txtDifferenza"), "-99.998.764,99");
    EXPECT_EQ(text("Label15"), "Differenza a debito");
    line("txtAcconti", "");
    EXPECT_EQ(text("txtAcconti"), "0,00");
    EXPECT_EQ(text("txtDifferenza"), "1.235,00");
}

TEST_F(Difference, WithoutATotalIsTheAdvances) {
    callUp("Comunali");
    line("txtAcconti", "10");
    EXPECT_EQ(text("txtTotale"), "0,00");
    EXPECT_EQ(text("txtDifferenza"), "-10,00");
    EXPECT_EQ(text("Label15"), "Differenza a debito");
}

TEST_F(Difference, OfTheReferendumOf2022IsTakenFromFiveSixths) {
    callUp("Referendum_Comunali", referendum2022);
    line("txtCarico", "0,03");
    line("txtIndennità", "0,09");
    line("txtStampanti", "6");
    line("txtTrasporti", "12");
    line("txtDisciplina", "0,03");
    line("Text1", "0,03");
    line("txtAssunzioni", "100");
    line("txtNecessità", "50,01");
    line("txtMissioni", "0,06");
    // 635,24 + 420,75 + 178,50 + 0,03 + 0,09 + 6 + 12 + 0,03 + 0,03 + 100 + 50,01 + 0,06
    EXPECT_EQ(text("txtTotale"), "1.402,74");
    // 529,37 (529,3667) + 350,63 (350,625) + 148,75 + 0,03 + 0,08 + 5 + 10 + 0,03 + 0,03 + 0,05, and 100 + 50,01 whole
    EXPECT_EQ(text("txtFraz"), "1.193,98");
    line("txtAcconti", "1193,99");
    EXPECT_EQ(text("txtDifferenza"), "-0,01");
    EXPECT_EQ(text("Label15"), "Differenza a debito");
    line("txtAcconti", "1193,98");
    EXPECT_EQ(text("Label15"), "Differenza a credito");
    EXPECT_EQ(text("txtDifferenza"), "0,00");
}

TEST_F(Difference, OfTheDayAfterIsTakenFromTheTotal) {
    callUp("Referendum_Comunali", "13-06-22");
    line("txtMissioni", "1");
    EXPECT_EQ(text("txtFraz"), "");
    line("txtAcconti", "1235,49");
    EXPECT_EQ(text("txtDifferenza"), "0,00");
}

}  // namespace
}  // namespace vorbano::test
