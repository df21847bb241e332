#include "records/statement_records.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "election_files.h"
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

/// No two lines hold the same; the difference is negative.
std::string rendiBytes() {
    return Sheet(152)
        .amountsAt(0, {1234001, 456702, 98703, 12304, 23405, 34506, 87607, 65408, 5409, 150010})
        .amountsAt(80, {7611, 3212, 2179413, 2200014})
        .amountsAt(112, {-20601})
        .amountsAt(120, {43216, 53017, 3818, 3819})
        .bytes();
}

RendiRecord rendi() {
    RendiRecord record{};
    record.Onorari = cent(1234001);
    record.Straordinario = cent(456702);
    record.Speciali = cent(98703);
    record.Carico = cent(12304);
    record.Indennita = cent(23405);
    record.TotStato = cent(34506);
    record.Stampanti = cent(87607);
    record.Trasporti = cent(65408);
    record.Disciplina = cent(5409);
    record.Assunzioni = cent(150010);
    record.Postali = cent(7611);
    record.Missioni = cent(3212);
    record.Totale = cent(2179413);
    record.Acconti = cent(2200014);
    record.Differenza = cent(-20601);
    record.Necessita = cent(43216);
    record.TotComune = cent(53017);
    record.CartRegione = cent(3818);
    record.CartStato = cent(3819);
    return record;
}

std::string divStBytes() { return Sheet(16).amountsAt(0, {34561, 53093}).bytes(); }
std::string tprovBytes() { return Sheet(16).amountsAt(0, {250075, 6180}).bytes(); }

template <class Record>
std::string storedAlone(std::string_view name, const Record& record) {
    MemoryFileSystem files;
    if (!test::lay(files, pathOf(name), "")) return "the folder could not be laid";
    if (!storeOnlyRecord(files, pathOf(name), record)) return "the record could not be written";
    return test::contentOf(files, pathOf(name));
}

template <class Record>
Record readAlone(std::string_view name, std::string_view content) {
    MemoryFileSystem files;
    EXPECT_TRUE(test::lay(files, pathOf(name), content));
    const auto record = onlyRecord<Record>(files, pathOf(name));
    EXPECT_THAT(record, test::Succeeds());
    return record && *record ? **record : Record{};
}

TEST(RendiFile, IsWrittenByteByByteAsLaidOut) {
    EXPECT_EQ(toHex(storedAlone(rendiFile, rendi())), toHex(rendiBytes()));
}

TEST(RendiFile, LaidOutByHandIsRead) {
    const auto record = readAlone<RendiRecord>(rendiFile, rendiBytes());
    const std::vector<Currency> lines = {record.Onorari,    record.Straordinario, record.Speciali,   record.Carico,
                                         record.Indennita,  record.TotStato,      record.Stampanti,  record.Trasporti,
                                         record.Disciplina, record.Assunzioni,    record.Postali,    record.Missioni,
                                         record.Totale,     record.Acconti,       record.Differenza, record.Necessita,
                                         record.TotComune,  record.CartRegione,   record.CartStato};
    const std::vector<int> expected = {1234001, 456702, 98703,   12304,   23405,  34506, 87607, 65408, 5409, 150010,
                                       7611,    3212,   2179413, 2200014, -20601, 43216, 53017, 3818,  3819};
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t at = 0; at < lines.size(); ++at) EXPECT_EQ(lines[at], cent(expected[at])) << at;
    EXPECT_EQ(test::bytesOf(record), test::bytesOf(rendi()));
}

/// What fills the places of the lines is known by the names of the screen.
TEST(RendiFile, IsKnownByTheFieldsOfTheScreen) {
    const auto offsetOf = [](std::string_view name) {
        const FieldInfo* field = findField(rendiFields, name);
        return field == nullptr ? -1 : static_cast<int>(field->offset);
    };
    EXPECT_EQ(offsetOf("txtStraordinario"), 8);
    EXPECT_EQ(offsetOf("Text1"), 72);
    EXPECT_EQ(offsetOf("txtAssunzioni"), 80);
    EXPECT_EQ(offsetOf("txtDifferenza"), 112);
    EXPECT_EQ(offsetOf("txtNecessità"), 120);
    EXPECT_EQ(offsetOf("txtCartStato"), 144);
}

TEST(DivStFile, IsTwoAmounts) {
    EXPECT_EQ(toHex(storedAlone(divStFile, DivStRecord{.TotStato = cent(34561), .TotComune = cent(53093)})),
              toHex(divStBytes()));
    const auto record = readAlone<DivStRecord>(divStFile, divStBytes());
    EXPECT_EQ(record.TotStato, cent(34561));
    EXPECT_EQ(record.TotComune, cent(53093));
}

TEST(TprovFile, IsTwoAmounts) {
    EXPECT_EQ(toHex(storedAlone(tprovFile, TprovRecord{.TotProv = cent(250075), .MagMis = cent(6180)})),
              toHex(tprovBytes()));
    const auto record = readAlone<TprovRecord>(tprovFile, tprovBytes());
    EXPECT_EQ(record.TotProv, cent(250075));
    EXPECT_EQ(record.MagMis, cent(6180));
}

TEST(StatementFiles, OfAnElectionWithoutAStatementHaveNoRecord) {
    MemoryFileSystem files;
    ASSERT_TRUE(test::lay(files, pathOf("09-06-24.vbn"), ""));
    const auto record = onlyRecord<RendiRecord>(files, pathOf(rendiFile));
    ASSERT_THAT(record, test::Succeeds());
    EXPECT_FALSE(record->has_value());
    EXPECT_EQ(test::contentOf(files, pathOf(rendiFile)), "");
}

}  // namespace
}  // namespace vorbano
