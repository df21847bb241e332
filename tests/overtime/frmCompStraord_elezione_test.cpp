// Type, date and number: what opens an election, what takes it up again, what varies its number.

#include "authorisation_desk.h"

namespace vorbano::test {
namespace {

class Elezione : public AuthorisationTest {
  protected:
    void expectRefused(const char* cursor) {
        EXPECT_EQ(focused(), cursor);
        EXPECT_EQ(text("cmdAttiva"), "Attiva");
        EXPECT_FALSE(visible("Frame9"));
    }
    /// An election with employees 1 to `count`, of six.
    void storeEmployees(int count) {
        toName();
        for (int number = 1; number <= count; ++number) {
            if (number > 1) click("cmdAggiungi");
            saveEmployee(("IMPIEGATO " + std::to_string(number)).c_str());
        }
    }
    /// Varies the number of a stored election; the question about the stored election comes first.
    void vary(int count, const char* number) {
        menu("mnuNumero");
        type("txtNumDip", number);
        box("Inserimento Dipendenti", alreadyStored(count, "IMPIEGATO " + std::to_string(count)), Answer::yes);
    }
};

TEST_F(Elezione, WithoutTypeIsRefused) {
    open();
    type("txtDataEle", "09/06/24");
    type("txtNumDip", "6");
    box("Errore", incomplete);
    click("cmdAttiva");
    expectRefused("Combo1");
}

TEST_F(Elezione, WithoutDateIsRefused) {
    open();
    choose("Combo1", "Europee");
    type("txtNumDip", "6");
    box("Errore", incomplete);
    click("cmdAttiva");
    expectRefused("txtDataEle");
}

TEST_F(Elezione, WithoutNumberIsRefused) {
    open();
    choose("Combo1", "Europee");
    type("txtDataEle", "09/06/24");
    box("Errore", incomplete);
    click("cmdAttiva");
    expectRefused("txtNumDip");
}

TEST_F(Elezione, WithANumberThatIsNoneIsRefused) {
    for (const char* number : {"abc", "0", "-3", "1.000", "13,5", "32768", "99999", " ", "6a"}) {
        SCOPED_TRACE(number);
        open();
        identify("Europee", "09/06/24", number);
        box("Errore", incomplete);
        click("cmdAttiva");
        expectRefused("txtNumDip");
    }
    EXPECT_EQ(contentOf(files, pathOf("09-06-24.vbn")), noFile);
}

TEST_F(Elezione, WithADateThatIsNoneIsRefused) {
    for (const char* date : {"31/02/24", "9/6", "aa", "//", "0/0/24", "09/13/24", "../..", "09-06-2", "€😀"}) {
        SCOPED_TRACE(date);
        open();
        choose("Combo1", "Europee");
        // Pasted, so that nothing is taken out key by key; a point is still refused.
        if (std::string_view(date).find('.') != std::string_view::npos) {
            for (int n = 0; n < 4; ++n) {
                box("formato data", "Il formato ( . ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ");
            }
        }
        EXPECT_EQ(clerk().edit(control("txtDataEle"), date), Refusal::none);
        type("txtNumDip", "6");
        box("Errore", "Data di Elezione inesistente!");
        click("cmdAttiva");
        expectRefused("txtDataEle");
    }
}

TEST_F(Elezione, OfAnyWritingOfADateIsTheSame) {
    for (const char* date : {"9/6/24", "09-06-24", "9-6-2024", "09/06/2024", " 9/6/24"}) {
        SCOPED_TRACE(date);
        open();
        activate("Europee", date);
        EXPECT_EQ(text("txtDataEle"), "09-06-24");
        EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
    }
}

TEST_F(Elezione, TextsOfAnyLengthAndSizeDoNoHarm) {
    const std::string longText(200, '7');
    for (const std::string& words :
         {longText, std::string("9999999999"), std::string("-9999999999"), std::string("😀😀"), std::string("1e400")}) {
        SCOPED_TRACE(words);
        open();
        choose("Combo1", "Europee");
        type("txtDataEle", "09/06/24");
        EXPECT_EQ(clerk().edit(control("txtNumDip"), words), Refusal::none);
        box("Errore", incomplete);
        click("cmdAttiva");
        expectRefused("txtNumDip");
    }
}

TEST_F(Elezione, MakesTheFolderOfTheElectionsAndNoMore) {
    open();
    activate();
    EXPECT_TRUE(files.list("Elezioni").ok());
    EXPECT_THAT(files.list("Elezioni").valueOr({}), ::testing::IsEmpty());
}

TEST_F(Elezione, HoursPerEmployeeFollowFromTheNumber) {
    struct Case {
        const char* number;
        const char* monteOre;
        const char* moGlob;
    };
    for (const Case& each : {Case{"1", "60", "60"}, Case{"4", "60", "240"}, Case{"5", "60", "300"},
                             Case{"6", "40", "240"}, Case{"7", "40", "280"}, Case{"12", "40", "480"}}) {
        SCOPED_TRACE(each.number);
        open();
        type("txtNumDip", each.number);
        leave();
        EXPECT_EQ(text("txtMonteOre"), each.monteOre);
        EXPECT_EQ(text("txtMoGlob"), each.moGlob);
    }
}

TEST_F(Elezione, AnEmptyNumberChangesNothing) {
    open();
    type("txtNumDip", "6");
    leave();
    type("txtNumDip", "");
    leave();
    EXPECT_EQ(text("txtMonteOre"), "40");
    EXPECT_EQ(text("txtMoGlob"), "240");
}

TEST_F(Elezione, InAFolderWithoutEmployeesIsNew) {
    ASSERT_TRUE(lay(files, pathOf("Seggi.vbn"), "x"));
    open();
    activate();
    EXPECT_TRUE(visible("Frame9"));
    EXPECT_EQ(stored("09-06-24.vbn"), "") << "opening creates the file";
}

TEST_F(Elezione, ThatCannotBeReadIsNotTakenForANewOne) {
    toName();
    saveEmployee();
    files.makeReadOnly(pathOf("09-06-24.vbn"));
    open();
    identify("Europee", "09/06/24", "6");
    box("Errore",
        "Il file Elezioni/Europee/09-06-24/09-06-24.vbn non può essere letto o scritto: controllare che non "
        "sia di sola lettura.");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_FALSE(visible("Frame9"));
    EXPECT_EQ(toHex(stored("09-06-24.vbn")), toHex(authorisedBytes(1, "ROSSI MARIA")));
}

TEST_F(Elezione, AlreadyStoredIsAsked) {
    storeEmployees(1);
    open();
    identify("Europee", "09/06/24", "6");
    box("Inserimento Dipendenti",
        "Questo tipo di Elezione già è in memoria! Se si desidera continuare ad aggiungere altri dati scegliere SI. "
        "Per "
        "questo tipo di elezione sono stati inseriti  n. 1 Dipendenti. L'ultimo nominativo inserito è IMPIEGATO 1",
        Answer::no);
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_TRUE(operable("cmdAttiva"));
    EXPECT_TRUE(operable("txtNumDip"));
    EXPECT_EQ(text("txtSonoDip"), "");
    EXPECT_EQ(text("txtPrimoDal"), "");
}

TEST_F(Elezione, TakenUpAgainAtEveryEmployee) {
    for (int count = 1; count <= 6; ++count) {
        SCOPED_TRACE(count);
        if (count == 1) {
            toName();
        } else {
            resume(count - 1, ("IMPIEGATO " + std::to_string(count - 1)).c_str());
        }
        EXPECT_EQ(text("txtSonoDip"), std::to_string(count));
        EXPECT_EQ(text("txtPrimoDal") + " " + text("txtPrimoAl"), "20-04-24 19-05-24");
        EXPECT_EQ(text("txtSecDal") + " " + text("txtSecAl"), "20-05-24 29-05-24");
        EXPECT_EQ(text("txtTerDal") + " " + text("txtTerAl"), "// //");
        EXPECT_EQ(text("Label93") + " " + text("Label94"), "15-04-24 18-04-24");
        EXPECT_EQ(figures(1), "60 240 40");
        EXPECT_EQ(figures(2), "20 80 13");
        EXPECT_EQ(text("txtGlobo"), "320");
        EXPECT_EQ(text("txtRestante"), "320");
        EXPECT_EQ(text("Label26"), std::to_string(16 * (count - 1)));
        EXPECT_EQ(text("Label27"), std::to_string(9 * (count - 1)));
        const std::string name = "IMPIEGATO " + std::to_string(count);
        saveEmployee(name.c_str());
        EXPECT_EQ(toHex(employee(count)), toHex(authorisedBytes(count, name)));
        EXPECT_EQ(stored("09-06-24.vbn").size(), 301U * static_cast<unsigned>(count));
    }
    EXPECT_EQ(text("Label64"), "Calcolo Terminato");
}

TEST_F(Elezione, UsedHoursAreCarriedOn) {
    storeEmployees(1);
    std::string record = employee(1);
    record.replace(2, 2, le16(95));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), record));
    resume(1, "IMPIEGATO 1");
    EXPECT_EQ(text("txtMoUtil"), "95");
    EXPECT_EQ(text("txtRestante"), "225") << "320 - 95";
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(toHex(employee(2)), toHex(authorisedBytes(2, "IMPIEGATO 2", 6, 95)));
}

TEST_F(Elezione, UsedHoursBelowZeroStartAgainAtZero) {
    storeEmployees(1);
    std::string record = employee(1);
    record.replace(2, 2, le16(-7));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), record));
    resume(1, "IMPIEGATO 1");
    saveEmployee("IMPIEGATO 2");
    EXPECT_EQ(toHex(employee(2)), toHex(authorisedBytes(2, "IMPIEGATO 2")));
}

TEST_F(Elezione, UsedHoursAboveThePoolsAreWarnedOfAndStopNothing) {
    storeEmployees(1);
    std::string record = employee(1);
    record.replace(2, 2, le16(321));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), record));
    open();
    identify("Europee", "09/06/24", "6");
    box("Inserimento Dipendenti", alreadyStored(1, "IMPIEGATO 1"), Answer::yes);
    box("Attenzione!",
        "E' Stato superato il monte ore! I dati verranno comunque inseriti e memorizzati. Dopo aver Finito di inserire "
        "i dati lanciare una stampa dal menu principale 'File'>'Stampa'>Compenso straordinario. Aprite poi la finestra "
        "dal menu principale 'Straordinario' > 'Modifica' per le rettifiche.");
    click("cmdAttiva");
    EXPECT_EQ(text("txtRestante"), "-1");
    EXPECT_TRUE(operable("txtNameDip"));
}

TEST_F(Elezione, UsedHoursEqualToThePoolsAreNotWarnedOf) {
    storeEmployees(1);
    std::string record = employee(1);
    record.replace(2, 2, le16(320));
    ASSERT_TRUE(lay(files, pathOf("09-06-24.vbn"), record));
    resume(1, "IMPIEGATO 1");
    EXPECT_EQ(text("txtRestante"), "0");
}

// The number of employees.

TEST_F(Elezione, ANumberBelowTheStoredEmployeesIsRefused) {
    storeEmployees(3);
    vary(3, "1");
    box("Inserimento dipendenti",
        "Impossibile eliminare n. 2 record. Il numero dei dipendenti inserito è inferiore a quello già memorizzato");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_TRUE(operable("txtNumDip"));
    EXPECT_EQ(toHex(employee(1)), toHex(authorisedBytes(1, "IMPIEGATO 1")));
}

TEST_F(Elezione, ANumberEqualToTheStoredEmployeesIsRefused) {
    storeEmployees(2);
    vary(2, "2");
    box("Inserimento dipendenti",
        "Impossibile aggiungere record. Il numero dei dipendenti inserito è uguale a quello già memorizzato");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "Attiva");
    EXPECT_EQ(toHex(employee(2)), toHex(authorisedBytes(2, "IMPIEGATO 2")));
}

TEST_F(Elezione, ALowerNumberIsAskedForAndStored) {
    storeEmployees(3);
    vary(3, "5");
    box("Diminuzione numero dipendenti",
        "Il numero dei dipendenti su cui operare il calcolo è inferiore a quello già inserito di n. 1 unità. Si "
        "desidera "
        "decurtare il numero dei dipendenti?",
        Answer::yes);
    box("Fine inserimento", "    Records memorizzati n. 3");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
    EXPECT_EQ(text("Label67"), "");
    EXPECT_EQ(text("txtSonoDip"), "4");
    // Five are still on the higher figure: 60 hours, 300 a month, 300 and 100 for thirty and ten days.
    EXPECT_EQ(text("txtMonteOre"), "60");
    EXPECT_EQ(text("txtGlobo"), "400");
    for (int number = 1; number <= 3; ++number) {
        const std::string name = "IMPIEGATO " + std::to_string(number);
        EXPECT_EQ(toHex(employee(number)), toHex(authorisedBytes(number, name, 5)));
    }
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(freshMeirin({60, 20, 0}, {300, 100, 0})));
}

TEST_F(Elezione, AHigherNumberIsAskedForAndStored) {
    storeEmployees(3);
    vary(3, "9");
    box("Inserimento dipendenti",
        "Il numero dei dipendenti su cui operare il calcolo è superiore a quello già inserito di n. 3 unità. Si "
        "desidera "
        "aggiungere altri dipendenti?",
        Answer::yes);
    box("Fine inserimento", "    Records memorizzati n. 3");
    click("cmdAttiva");
    EXPECT_EQ(text("txtMoGlob"), "360");
    EXPECT_EQ(text("txtGlobo"), "480");
    for (int number = 1; number <= 3; ++number) {
        const std::string name = "IMPIEGATO " + std::to_string(number);
        EXPECT_EQ(toHex(employee(number)), toHex(authorisedBytes(number, name, 9)));
    }
    EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(freshMeirin({40, 13, 0}, {360, 120, 0})));
    EXPECT_EQ(text("txtNameDip"), "") << "who is stored makes room for the next";
    EXPECT_EQ(focused(), "txtNameDip");
    saveEmployee("IMPIEGATO 4");
    EXPECT_EQ(toHex(employee(4)), toHex(authorisedBytes(4, "IMPIEGATO 4", 9)));
}

TEST_F(Elezione, ANewNumberThatIsNotWantedChangesNothing) {
    storeEmployees(3);
    const std::string before = stored("09-06-24.vbn");
    for (const char* number : {"5", "9"}) {
        SCOPED_TRACE(number);
        vary(3, number);
        const bool lower = number[0] == '5';
        box(lower ? "Diminuzione numero dipendenti" : "Inserimento dipendenti",
            std::string("Il numero dei dipendenti su cui operare il calcolo è ") + (lower ? "inferiore" : "superiore") +
                " a quello già inserito di n. " + (lower ? "1" : "3") + " unità. Si desidera " +
                (lower ? "decurtare il numero dei dipendenti?" : "aggiungere altri dipendenti?"),
            Answer::no);
        click("cmdAttiva");
        EXPECT_EQ(text("cmdAttiva"), "Attiva");
        EXPECT_EQ(stored("09-06-24.vbn"), before);
        EXPECT_EQ(toHex(stored("Meirin.vbn")), toHex(freshMeirin()));
    }
}

TEST_F(Elezione, TheStoredNumberIsNotAskedFor) {
    storeEmployees(3);
    vary(3, "6");
    click("cmdAttiva");
    EXPECT_EQ(text("cmdAttiva"), "ATTIVATO");
    EXPECT_EQ(text("txtGlobo"), "320");
    EXPECT_EQ(text("txtSonoDip"), "4");
}

TEST_F(Elezione, TheQuestionAboutTheStoredElectionComesBeforeTheComparison) {
    storeEmployees(2);
    menu("mnuNumero");
    type("txtNumDip", "1");
    box("Inserimento Dipendenti", alreadyStored(2, "IMPIEGATO 2"), Answer::no);
    click("cmdAttiva");
    EXPECT_EQ(text("Label67"), "N") << "the number can be varied again";
}

TEST_F(Elezione, ANumberVariedBeforeTheFirstIsStoredGoesBackToTheName) {
    toName();
    type("txtNameDip", "ROSSI MARIA");
    menu("mnuNumero");
    type("txtNumDip", "7");
    click("cmdAttiva");
    EXPECT_EQ(focused(), "txtNameDip");
    EXPECT_EQ(text("txtSonoDip"), "1");
    EXPECT_EQ(text("txtNameDip"), "ROSSI MARIA");
    EXPECT_EQ(text("txtMoGlob"), "280");
    EXPECT_EQ(figures(2), "20 93 13");
}

TEST_F(Elezione, ANumberVariedWhileAnEmployeeIsEnteredKeepsWhatWasTyped) {
    storeEmployees(1);
    click("cmdAggiungi");
    type("txtNameDip", "BIANCHI ADA");
    hours(1, "10", "4", "2");
    vary(1, "7");
    box("Inserimento dipendenti",
        "Il numero dei dipendenti su cui operare il calcolo è superiore a quello già inserito di n. 1 unità. Si "
        "desidera "
        "aggiungere altri dipendenti?",
        Answer::yes);
    box("Fine inserimento", "    Records memorizzati n. 1");
    click("cmdAttiva");
    EXPECT_EQ(text("txtSonoDip"), "2");
    EXPECT_EQ(text("txtNameDip"), "BIANCHI ADA");
    EXPECT_TRUE(operable("txtAutFer1Per")) << "the hours are checked again against the new pools";
    EXPECT_FALSE(operable("txtAutFer2Per"));
}

TEST_F(Elezione, CalcoloTerminatoGoesWhenTheNumberRises) {
    open();
    activate("Europee", "09/06/24", "1");
    confirmActs();
    confirmPeriods();
    saveEmployee("IMPIEGATO 1");
    EXPECT_EQ(text("Label64"), "Calcolo Terminato");
    vary(1, "6");
    box("Inserimento dipendenti",
        "Il numero dei dipendenti su cui operare il calcolo è superiore a quello già inserito di n. 5 unità. Si "
        "desidera "
        "aggiungere altri dipendenti?",
        Answer::yes);
    box("Fine inserimento", "    Records memorizzati n. 1");
    click("cmdAttiva");
    EXPECT_EQ(text("Label64"), "");
}

TEST_F(Elezione, APoolBeyondSixteenBitsKeepsTheOldOneOnFile) {
    storeEmployees(1);
    vary(1, "820");
    box("Inserimento dipendenti",
        "Il numero dei dipendenti su cui operare il calcolo è superiore a quello già inserito di n. 814 unità. Si "
        "desidera aggiungere altri dipendenti?",
        Answer::yes);
    box("Fine inserimento", "    Records memorizzati n. 1");
    click("cmdAttiva");
    EXPECT_EQ(text("txtMoGlob"), "32800") << "820 x 40";
    EXPECT_EQ(text("txtGlobo"), "43733") << "32800 and 10933";
    EXPECT_EQ(employee(1).substr(0, 12), le16(40) + le16(0) + le16(240) + le16(320) + le16(1) + le16(820));
}

}  // namespace
}  // namespace vorbano::test
