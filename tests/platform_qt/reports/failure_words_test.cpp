#include "platform/qt/failure_words.h"

#include <gmock/gmock.h>

namespace vorbano::test {

using ::testing::HasSubstr;

TEST(FailureWords, NameTheFileWhateverHappened) {
    for (const Failure kind : {Failure::notFound, Failure::missingFolder, Failure::refused, Failure::device,
                               Failure::badName, Failure::damaged, Failure::full}) {
        EXPECT_THAT(describe(Error{kind, "impstr.rpt"}), HasSubstr("impstr.rpt"));
    }
}

TEST(FailureWords, TellADatabaseOfAnOlderInstallationFromABrokenLayout) {
    EXPECT_THAT(describe(Error{Failure::damaged, "DBSTAMPA.MDB"}), HasSubstr("installazione precedente"));
    EXPECT_EQ(describe(Error{Failure::damaged, "impstr.rpt:12: sezione sconosciuta: [tabel]"}),
              "Errore nel modello di stampa: impstr.rpt:12: sezione sconosciuta: [tabel].");
}

TEST(FailureWords, SayWhatToDoWithADatabaseOfAnOlderInstallation) {
    const std::string words = describe(DatabaseKind::older, "dbStampa.mdb");
    EXPECT_THAT(words, HasSubstr("dbStampa.mdb"));
    EXPECT_THAT(words, HasSubstr("Spostarlo in un'altra cartella"));
    EXPECT_EQ(describe(DatabaseKind::ours, "dbStampa.mdb"), "");
    EXPECT_THAT(describe(DatabaseKind::missing, "dbStampa.mdb"), HasSubstr("Non è stato trovato"));
    EXPECT_THAT(describe(DatabaseKind::unreadable, "dbStampa.mdb"), HasSubstr("sola lettura"));
    EXPECT_THAT(describe(DatabaseKind::foreign, "dbStampa.mdb"), HasSubstr("non è un archivio"));
}

}  // namespace vorbano::test
