// What is stored, case by case, and what is refused.

#include <array>
#include <ostream>

#include "versamenti_desk.h"

namespace vorbano::test {
namespace {

/// A way through the boxes, and the record that it stores.
struct Save {
    const char* voice;
    const char* document;  ///< Check6, Check7, Check12
    const char* copies;    ///< Check8, Check9, or none
    LaidDocument stored;
    PaymentSet set = PaymentSet::liquidation;
};
void PrintTo(const Save& one, std::ostream* out) {
    *out << one.voice << " " << one.document << " " << one.copies << " " << documentsFile(one.set);
}

struct Voice {
    const char* box;
    const char* key;
    const char* percent;
    int cents;
};
/// The four voices with a rate, then IRPEF, INAIL, INPS.
using Voices = std::array<Voice, 7>;
constexpr Voices voicesOfLiquidation = {{{"Check1", "Coprdi", "8,85%", 1903},
                                         {"Check2", "Cofocrdi", "0,3%", 75},
                                         {"Check3", "Copren", "24,2%", 15015},
                                         {"Check4", "Coirap", "8,5%", 6007},
                                         {"Check5", "Irpef", "", 123456},
                                         {"Check11", "Inail", "", 7890},
                                         {"Check17", "Inps", "", 4500}}};
constexpr Voices voicesOfAdjustment = {{{"Check1", "Coprdi", "8,9%", 444},
                                        {"Check2", "Cofocrdi", "0,4%", 15},
                                        {"Check3", "Copren", "23,9%", 1616},
                                        {"Check4", "Coirap", "8,6%", 606},
                                        {"Check5", "Irpef", "", 32100},
                                        {"Check11", "Inail", "", 650},
                                        {"Check17", "Inps", "", 410}}};

/// By mandate and by form, in both ways of copies; INAIL by its date, INPS by form.
std::vector<Save> allSaves(PaymentSet set = PaymentSet::liquidation) {
    std::vector<Save> saves;
    for (const Voice& voice : set == PaymentSet::adjustment ? voicesOfAdjustment : voicesOfLiquidation) {
        const std::string_view key = voice.key;
        const auto add = [&](const char* document, const char* copies, std::string_view text) {
            const bool mandate = std::string_view(document) == "Check6";
            saves.push_back({voice.box,
                             document,
                             copies,
                             {key, mandate ? "Mandato di pagamento" : "Mod. F24", voice.percent, voice.cents,
                              mandate ? 70001 : 0, mandate ? "03-07-24" : "16-07-24", text},
                             set});
        };
        if (key == "Inail") {
            saves.push_back({voice.box, "Check12", "", {key, "", "", voice.cents, 0, "20-08-24", ""}, set});
            continue;
        }
        if (key != "Inps") {
            add("Check6", "Check8", "in originale e copia autenticata");
            add("Check6", "Check9", key == "Coirap" ? "in duplice copia autentica" : "in duplice copia autenticata");
        }
        add("Check7", "Check8", "in originale e copia autenticata");
        add("Check7", "Check9", "in duplice copia autenticata");
    }
    return saves;
}

class VersamentiSalva : public VersamentiTest {
  protected:
    void begin(const std::vector<LaidDocument>& documents = {}) {
        layPayments(files, documents);
        EXPECT_TRUE(lay(files, paymentPath("Meirin.vbn"), laidMeirin(123456, 7890, 4500)));
        open();
        identify();
        click("cmdAnteprima");
        click("cmdInserire");
    }
    void beginAdjustment(const std::vector<LaidDocument>& documents) {
        searchAdjustment(documents);
        click("cmdInserire");
    }
    void fill(const Save& one) {
        tick(one.voice);
        tick(one.document);
        const std::string_view document = one.document;
        if (document == "Check6") {
            type("txtMnumero", "70001");
            type("txtMdata", "3/7/24");
        } else if (document == "Check7") {
            type("txtDataf24", "16/7/24");
        } else {
            type("txtDatainail", "20/8/24");
        }
        if (*one.copies != '\0') tick(one.copies);
    }
    void save(const Save& one) {
        fill(one);
        EXPECT_FALSE(operable("cmdAggiungi"));
        click("cmdSalva");
        EXPECT_TRUE(operable("cmdAggiungi"));
        EXPECT_TRUE(operable("cmdNuovo"));
        EXPECT_FALSE(operable("cmdSalva")) << "it is stored";
    }
};

/// The dates that are kept beside the amounts of INAIL and of INPS after a save.
const char* inailDateAfter(const Save& one) {
    return std::string_view(one.voice) == "Check11" ? "20-08-24" : "        ";
}
const char* inpsDateAfter(const Save& one) {
    return std::string_view(one.voice) == "Check17" ? "16-07-24" : "        ";
}

class VersamentiSalvaOgni : public VersamentiSalva, public ::testing::WithParamInterface<Save> {};
TEST_P(VersamentiSalvaOgni, IsAppendedByteByByte) {
    begin({mandate1});
    save(GetParam());
    expectDocuments({mandate1, GetParam().stored});
    EXPECT_EQ(toHex(stored("Meirin.vbn")),
              toHex(laidMeirin(123456, 7890, 4500, inailDateAfter(GetParam()), inpsDateAfter(GetParam()))));
}
INSTANTIATE_TEST_SUITE_P(All, VersamentiSalvaOgni, ::testing::ValuesIn(allSaves()));

class ConguaglioSalvaOgni : public VersamentiSalvaOgni {};
TEST_P(ConguaglioSalvaOgni, IsAppendedByteByByteToTheDocumentsOfTheAdjustment) {
    beginAdjustment({adjusted1});
    save(GetParam());
    expectDocuments({adjusted1, GetParam().stored}, versumcFile);
    EXPECT_EQ(toHex(stored("Meirinc.vbn")),
              toHex(laidMeirinc(32100, 650, 410, inailDateAfter(GetParam()), inpsDateAfter(GetParam()))));
    expectLiquidationUntouched();
}
INSTANTIATE_TEST_SUITE_P(All, ConguaglioSalvaOgni, ::testing::ValuesIn(allSaves(PaymentSet::adjustment)));

TEST_F(VersamentiSalva, TheFirstDocumentIsRecordOne) {
    begin();
    fill(allSaves().front());
    click("cmdSalva");
    expectDocuments({allSaves().front().stored});
}

TEST_F(VersamentiSalva, WhatIsMissingIsTold) {
    begin();
    tick("Check1");
    tick("Check6");
    tick("Check8");
    box("Salva", "Dati insufficienti per il mandato di pagamento");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtMnumero");
    type("txtMnumero", "12");
    box("Salva", "Dati insufficienti per il mandato di pagamento");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtMdata");
    type("txtMdata", "3/7/24");
    type("txtMnumero", "dodici");
    box("Salva", "Dati insufficienti per il mandato di pagamento");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtMnumero");
    tick("Check7");
    box("Salva", "Inserire la data del modello F24");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtDataf24");
    tick("Check1", false);
    tick("Check11");
    tick("Check12");
    box("Salva", "Inserire la data");
    click("cmdSalva");
    EXPECT_EQ(focused(), "txtDatainail");
    EXPECT_EQ(stored("Versum.vbn"), "");
}

TEST_F(VersamentiSalva, TheNumberIsAWholeNumberOfThirtyTwoBits) {
    begin();
    const std::pair<const char*, int> numbers[] = {
        {"2147483647", 2147483647}, {"1.204", 1204}, {"12,5", 12}, {"13,5", 14}, {"7,51", 8}};
    std::vector<LaidDocument> expected;
    tick("Check1");
    tick("Check6");
    tick("Check8");
    for (const auto& [words, number] : numbers) {
        type("txtMnumero", words);
        type("txtMdata", "01/07/24");
        click("cmdSalva");
        LaidDocument document = mandate1;
        document.number = number;
        expected.push_back(document);
    }
    type("txtMnumero", "2147483648");
    box("Salva", "Dati insufficienti per il mandato di pagamento");
    click("cmdSalva");
    expectDocuments(expected);
}

TEST_F(VersamentiSalva, AnotherDocumentOfTheVoiceBeginsWithEmptyFields) {
    begin();
    fill(allSaves().front());
    click("cmdSalva");
    click("cmdAggiungi");
    EXPECT_EQ(text("txtMnumero"), "");
    EXPECT_EQ(text("txtMdata"), "");
    EXPECT_TRUE(ticked("Check1") && ticked("Check6") && ticked("Check8"));
    EXPECT_EQ(focused(), "txtMnumero");
    EXPECT_FALSE(operable("cmdAggiungi"));
    type("txtMnumero", "102");
    type("txtMdata", "2/7/24");
    click("cmdSalva");
    LaidDocument second = mandate1;
    second.number = 102;
    second.date = "02-07-24";
    expectDocuments({allSaves().front().stored, second});
}

TEST_F(VersamentiSalva, ANewDocumentBeginsWithoutABox) {
    begin();
    fill(allSaves()[2]);
    click("cmdSalva");
    click("cmdNuovo");
    for (const char* name : {"Check1", "Check6", "Check7", "Check8", "Check9"}) EXPECT_FALSE(ticked(name)) << name;
    EXPECT_EQ(text("txtDataf24"), "");
    EXPECT_EQ(focused(), "Check1");
    EXPECT_TRUE(operable("Check17"));
    EXPECT_FALSE(operable("cmdNuovo"));
}

TEST_F(VersamentiSalva, LeavingThePanelOffersTheListOfWhatWasEntered) {
    begin();
    click("cmdAnnulla2");
    EXPECT_FALSE(operable("Check16"));
    click("cmdInserire");
    fill(allSaves().front());
    click("cmdSalva");
    click("cmdAnnulla2");
    EXPECT_TRUE(operable("Check16"));
    EXPECT_TRUE(operable("cmdInserire"));
    EXPECT_TRUE(operable("cmdRiavvia"));
    EXPECT_FALSE(ticked("Check1"));
    EXPECT_EQ(text("txtMnumero"), "");
}

}  // namespace
}  // namespace vorbano::test
