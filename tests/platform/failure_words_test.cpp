#include "platform/failure_words.h"

#include <gmock/gmock.h>

namespace vorbano::test {

using ::testing::HasSubstr;

TEST(FailureWords, NameTheFileWhateverHappened) {
    for (const Failure kind : {Failure::notFound, Failure::missingFolder, Failure::refused, Failure::device,
                               Failure::badName, Failure::damaged, Failure::full, Failure::diskFull}) {
        EXPECT_THAT(inItalian(Error{kind, "impstr.rpt"}), HasSubstr("impstr.rpt"));
    }
}

TEST(FailureWords, TellADatabaseOfAnOlderInstallationFromABrokenLayout) {
    EXPECT_THAT(inItalian(Error{Failure::damaged, "DBSTAMPA.MDB"}), HasSubstr("installazione precedente"));
    EXPECT_EQ(inItalian(Error{Failure::damaged, "impstr.rpt:12: sezione sconosciuta: [tabel]"}),
              "Errore nel modello di stampa: impstr.rpt:12: sezione sconosciuta: [tabel].");
    EXPECT_EQ(inItalian(Error{Failure::damaged, "Ente.dat"}),
              "Il file Ente.dat non è nel formato di questa versione del programma.");
}

}  // namespace vorbano::test
