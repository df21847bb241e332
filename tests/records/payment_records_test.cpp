#include "records/payment_records.h"

#include <gmock/gmock.h>

#include <string>

#include "election_files.h"
#include "records/payment_voices.h"
#include "storage/memory_file_system.h"
#include "storage/only_record.h"
#include "support/bytes.h"
#include "support/cent.h"
#include "support/laid_out_records.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::cent;
using test::pathOf;
using test::Sheet;
using test::toHex;

/// A mandate of IRAP in two copies, number 70,000 (more than 16 bits hold).
std::string mandateBytes() {
    return Sheet(95)
        .at(0, "Coirap    ")
        .at(10, "Mandato di pagamento       ")
        .at(37, "8,5%  ")
        .amountsAt(43, {35349})
        .at(51, test::le32(70000))
        .at(55, "14-06-24")
        .at(63, "in duplice copia autentica      ")
        .bytes();
}

PaymentRecord mandate() {
    PaymentRecord record{};
    record.Mother = "Coirap";
    record.Son = mandateKind;
    record.Percent = "8,5%";
    record.Importo = cent(35349);
    record.Numero = 70000;
    record.Data = "14-06-24";
    record.Sonocosi = "in duplice copia autentica";
    return record;
}

TEST(PaymentFiles, AreWrittenByteByByteAsLaidOut) {
    for (const std::string_view name : {versumFile, versumcFile, reversumFile}) {
        MemoryFileSystem files;
        ASSERT_TRUE(test::lay(files, pathOf(name), ""));
        auto file = RecordFile<PaymentRecord>::open(files, pathOf(name));
        ASSERT_THAT(file, test::Succeeds());
        EXPECT_THAT(file->append(mandate()), test::Succeeds());
        EXPECT_EQ(toHex(test::contentOf(files, pathOf(name))), toHex(mandateBytes())) << name;
    }
}

TEST(PaymentFiles, LaidOutByHandAreRead) {
    MemoryFileSystem files;
    ASSERT_TRUE(test::lay(files, pathOf(versumFile), mandateBytes()));
    const auto file = RecordFile<PaymentRecord>::open(files, pathOf(versumFile));
    ASSERT_THAT(file, test::Succeeds());
    const auto record = file->read(1);
    ASSERT_THAT(record, test::Succeeds());
    EXPECT_EQ(record->Mother.trimmed(), "Coirap");
    EXPECT_EQ(record->Son.trimmed(), "Mandato di pagamento");
    EXPECT_EQ(record->Percent.trimmed(), "8,5%");
    EXPECT_EQ(record->Importo, cent(35349));
    EXPECT_EQ(std::int32_t{record->Numero}, 70000);
    EXPECT_EQ(record->Data.trimmed(), "14-06-24");
    EXPECT_EQ(record->Sonocosi.trimmed(), "in duplice copia autentica");
}

TEST(MeirincFile, IsWrittenAndReadByteByByte) {
    const std::string bytes =
        Sheet(40).amountsAt(0, {12340}).at(8, "16-09-24").amountsAt(16, {567, 890}).at(32, "18-09-24").bytes();
    MeirincRecord record{};
    record.irpef = cent(12340);
    record.inailDate = "16-09-24";
    record.inail = cent(567);
    record.inps = cent(890);
    record.inpsDate = "18-09-24";
    MemoryFileSystem files;
    ASSERT_TRUE(test::lay(files, pathOf(meirincFile), ""));
    EXPECT_THAT(storeOnlyRecord(files, pathOf(meirincFile), record), test::Succeeds());
    EXPECT_EQ(toHex(test::contentOf(files, pathOf(meirincFile))), toHex(bytes));

    ASSERT_TRUE(test::lay(files, pathOf(meirincFile), bytes));
    const auto read = onlyRecord<MeirincRecord>(files, pathOf(meirincFile));
    ASSERT_THAT(read, test::Succeeds());
    ASSERT_TRUE(read->has_value());
    EXPECT_EQ((*read)->irpef, cent(12340));
    EXPECT_EQ((*read)->inailDate.trimmed(), "16-09-24");
    EXPECT_EQ((*read)->inail, cent(567));
    EXPECT_EQ((*read)->inps, cent(890));
    EXPECT_EQ((*read)->inpsDate.trimmed(), "18-09-24");
}

TEST(PaymentVoices, StandInTheOrderOfTheLists) {
    const std::pair<std::string_view, std::string_view> expected[] = {
        {"Coprdi", "Contributo Previdenziale a carico dipendente "},
        {"Cofocrdi", "Fondo Credito a carico dipendente  "},
        {"Copren", "Contributo Previdenziale a carico Ente  "},
        {"Coirap", "IRAP a carico Ente  "},
        {"Irpef", "IRPEF"},
        {"Inail", "INAIL"},
        {"Inps", "INPS"}};
    ASSERT_EQ(std::size(expected), paymentVoices.size());
    for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
        EXPECT_EQ(paymentVoices[at].key, expected[at].first);
        EXPECT_EQ(paymentVoices[at].words, expected[at].second);
        EXPECT_EQ(paymentVoiceOf(expected[at].first), at);
    }
    EXPECT_EQ(paymentVoiceOf("Irap"), paymentVoices.size());
}

TEST(PaymentVoices, HaveTheShorterTextOfTwoCopiesOnlyForAMandateOfIrap) {
    for (const PaymentVoice& voice : paymentVoices) {
        const bool irap = voice.key == "Coirap";
        for (const std::string_view kind : {mandateKind, formKind}) {
            EXPECT_EQ(copiesText(voice, kind, Copies::originalAndCopy), "in originale e copia autenticata");
            EXPECT_EQ(copiesText(voice, kind, Copies::duplicate),
                      irap && kind == mandateKind ? "in duplice copia autentica" : "in duplice copia autenticata")
                << voice.key << kind;
        }
    }
}

}  // namespace
}  // namespace vorbano
