#include "records/overtime_records.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "election_files.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::bytesOf;
using test::pathOf;
using test::toHex;

/// Fourteen amounts in cents, in the order of the record.
Pay payOf(const std::array<int, 14>& cents) {
    std::array<Currency, 14> amounts{};
    for (std::size_t at = 0; at < cents.size(); ++at) amounts[at] = Currency::fromCents(cents[at]);
    const auto& [df, nof, nef, dovuto, aliCpStato, cpStato, aliIrap, irap, spesa, aliCpDip, cpDip, aliFonCre, fonCre,
                 contr] = amounts;
    Pay pay;
    pay.rates = {df, nof, nef};
    pay.Dovuto = dovuto;
    pay.AliCpStato = aliCpStato;
    pay.CpStato = cpStato;
    pay.AliIrap = aliIrap;
    pay.Irap = irap;
    pay.TotaleSpesa = spesa;
    pay.AliCpDip = aliCpDip;
    pay.CpDip = cpDip;
    pay.AliFonCre = aliFonCre;
    pay.FonCre = fonCre;
    pay.TotaleContr = contr;
    return pay;
}

EmployeeRecord employee() {
    EmployeeRecord record{};
    record.pools = {.MonteOre = 40, .MoUtil = 95, .MoGlob = 280, .Globo = 373, .SonoDip = 2, .NumDip = 7};
    record.name = "DE LUCÀ MARIA";
    record.periods[0] = {.from = Text<8>("15-04-24"),
                         .to = Text<8>("14-05-24"),
                         .authorised = {20, 11, 3},
                         .paid = {18, 10, 1},
                         .totalPaid = 29};
    record.periods[1] = {.from = Text<8>("15-05-24"),
                         .to = Text<8>("24-05-24"),
                         .authorised = {8, 4, 2},
                         .paid = {7, 5, 0},
                         .totalPaid = 12};
    record.periods[2] = {.from = Text<8>("//"), .to = Text<8>("//"), .authorised = {}, .paid = {}, .totalPaid = 0};
    record.totAut = 48;
    record.executed = {25, 15, 1};
    record.totEseg = 41;
    record.lblCat = "G    B6";
    record.lblCat2 = "-";
    record.pay = payOf({1234, 1555, 1790, 55965, 2380, 13320, 850, 4757, 18077, 880, 4925, 35, 196, 5121});
    return record;
}

LatePeriodRecord latePeriod() {
    LatePeriodRecord record{};
    record.pools = {.MonteOre = 60, .MoUtil = 120, .MoGlob = 300, .Globo = 420, .SonoDip = 3, .NumDip = 5};
    record.name = "ROSSI MARIO";
    record.from = "13-05-13";
    record.to = "27-05-13";
    record.authorised = {14, 6, 2};
    record.paid = {13, 5, 1};
    record.totalPaid = 19;
    record.totalAuthorised = 22;
    record.executed = {71, 32, 4};
    record.totalExecuted = 107;
    record.lblCat = "D3";
    record.lblCat2 = "-";
    record.pay = payOf({1592, 1799, 2075, 178900, 2381, 42596, 851, 15224, 57820, 881, 15761, 36, 644, 16405});
    return record;
}

MeirinRecord meirin() {
    MeirinRecord record{};
    record.irpef = Currency::fromCents(123456);
    record.inailDate = "16-07-13";
    record.inail = Currency::fromCents(7890);
    record.average = {40, 13, 27};
    record.pool = {240, 93, 187};
    record.state = {1, 0, 1};
    record.average4 = 15;
    record.pool4 = 103;
    record.state4 = 1;
    record.inailUno = Currency::fromCents(4321);
    record.average5 = 22;
    record.pool5 = 154;
    record.state5 = 0;
    record.inps = Currency::fromCents(98765);
    record.inpsDate = "16-08-13";
    record.inailDue = Currency::fromCents(3569);
    return record;
}

/// What `record` leaves on disk when it is the first of its file.
template <class Record>
std::string written(std::string_view name, const Record& record) {
    MemoryFileSystem files;
    if (!test::lay(files, pathOf(name), "")) return "the folder could not be laid";
    {
        auto file = RecordFile<Record>::open(files, pathOf(name));
        if (!file || !file->append(record)) return "the record could not be written";
    }
    return test::contentOf(files, pathOf(name));
}

/// Record `number` of a file that holds `content`.
template <class Record>
Record readFrom(std::string_view name, std::string_view content, int number = 1) {
    MemoryFileSystem files;
    EXPECT_TRUE(test::lay(files, pathOf(name), content));
    const auto file = RecordFile<Record>::open(files, pathOf(name));
    EXPECT_THAT(file, test::Succeeds());
    if (!file) return {};
    const auto record = file->read(number);
    EXPECT_THAT(record, test::Succeeds());
    return record ? *record : Record{};
}

TEST(EmployeeFile, IsWrittenByteByByteAsLaidOut) {
    EXPECT_EQ(toHex(written("09-06-24.vbn", employee())), toHex(test::employeeBytes()));
}

TEST(LatePeriodFiles, AreWrittenByteByByteAsLaidOut) {
    for (const std::string_view name : {quartumFile, pentiumFile}) {
        EXPECT_EQ(toHex(written(name, latePeriod())), toHex(test::latePeriodBytes())) << name;
    }
}

TEST(MeirinFile, IsWrittenByteByByteAsLaidOut) {
    EXPECT_EQ(toHex(written(meirinFile, meirin())), toHex(test::meirinBytes()));
}

TEST(DuedateFile, IsWrittenByteByByteAsLaidOut) {
    EXPECT_EQ(
        toHex(written(duedateFile, DuedateRecord{.decreto = Text<8>("12-04-24"), .determina = Text<8>("15-04-24")})),
        toHex(test::duedateBytes()));
}

TEST(EmployeeFile, LaidOutByHandIsRead) {
    // Two employees before this one, so that the width of a record counts.
    const std::string others(std::size_t{2} * 301, ' ');
    const auto record = readFrom<EmployeeRecord>("09-06-24.vbn", others + test::employeeBytes(), 3);
    EXPECT_EQ(record.pools.MonteOre, 40);
    EXPECT_EQ(record.pools.SonoDip, 2);
    EXPECT_EQ(record.pools.NumDip, 7);
    EXPECT_EQ(record.name.trimmed(), "DE LUCÀ MARIA");
    EXPECT_EQ(record.periods[0].from.trimmed(), "15-04-24");
    EXPECT_EQ(record.periods[0].authorised[2], 3);
    EXPECT_EQ(record.periods[1].paid[1], 5);
    EXPECT_EQ(record.periods[1].totalPaid, 12);
    EXPECT_EQ(record.periods[2].to.trimmed(), "//");
    EXPECT_EQ(record.executed[0], 25);
    EXPECT_EQ(record.lblCat.trimmed(), "G    B6");
    EXPECT_EQ(record.pay.rates[1], Currency::fromCents(1555));
    EXPECT_EQ(record.pay.Dovuto, Currency::fromCents(55965));
    EXPECT_EQ(record.pay.TotaleContr, Currency::fromCents(5121));
    EXPECT_EQ(bytesOf(record), bytesOf(employee()));
}

TEST(LatePeriodFiles, LaidOutByHandAreRead) {
    for (const std::string_view name : {quartumFile, pentiumFile}) {
        const auto record = readFrom<LatePeriodRecord>(name, std::string(241, ' ') + test::latePeriodBytes(), 2);
        EXPECT_EQ(record.pools.Globo, 420);
        EXPECT_EQ(record.from.trimmed(), "13-05-13");
        EXPECT_EQ(record.totalAuthorised, 22);
        EXPECT_EQ(record.totalExecuted, 107);
        EXPECT_EQ(record.lblCat.trimmed(), "D3");
        EXPECT_EQ(record.pay.FonCre, Currency::fromCents(644));
        EXPECT_EQ(bytesOf(record), bytesOf(latePeriod()));
    }
}

TEST(MeirinFile, LaidOutByHandIsRead) {
    const auto record = readFrom<MeirinRecord>(meirinFile, test::meirinBytes());
    EXPECT_EQ(record.irpef, Currency::fromCents(123456));
    EXPECT_EQ(record.pool[2], 187);
    EXPECT_EQ(record.state[1], 0);
    EXPECT_EQ(record.average4, 15);
    EXPECT_EQ(record.pool5, 154);
    EXPECT_EQ(record.inailDue, Currency::fromCents(3569));
    EXPECT_EQ(bytesOf(record), bytesOf(meirin()));
}

TEST(DuedateFile, LaidOutByHandIsRead) {
    const auto record = readFrom<DuedateRecord>(duedateFile, test::duedateBytes());
    EXPECT_EQ(record.decreto.trimmed(), "12-04-24");
    EXPECT_EQ(record.determina.trimmed(), "15-04-24");
}

/// As the removal of an employee leaves it.
TEST(MeirinFile, CutToSixtyTwoBytesCountsOneAndReadsZerosBehind) {
    MemoryFileSystem files;
    ASSERT_TRUE(test::lay(files, pathOf(meirinFile), test::meirinBytes().substr(0, 62)));
    auto file = RecordFile<MeirinRecord>::open(files, pathOf(meirinFile));
    ASSERT_THAT(file, test::Succeeds());
    EXPECT_THAT(file->count(), test::Gives(1));
    const auto record = file->read(1);
    ASSERT_THAT(record, test::Succeeds());
    EXPECT_EQ(toHex(bytesOf(*record)), toHex(test::meirinBytes().substr(0, 62) + test::nuls(24)));
    EXPECT_EQ(record->inps, Currency{});
    EXPECT_EQ(record->inpsDate.trimmed(), "");
    EXPECT_EQ(record->inailDue, Currency{});
    EXPECT_EQ(record->pool5, 154) << "the fifth period is the last that is kept";

    ASSERT_THAT(file->write(1, *record), test::Succeeds());
    EXPECT_EQ(test::contentOf(files, pathOf(meirinFile)).size(), 86U) << "a write of the whole record completes it";
}

TEST(MeirinFile, StaysAtOneRecordHoweverOftenItIsWritten) {
    MemoryFileSystem files;
    ASSERT_TRUE(test::lay(files, pathOf(meirinFile), ""));
    auto file = RecordFile<MeirinRecord>::open(files, pathOf(meirinFile));
    ASSERT_THAT(file, test::Succeeds());
    EXPECT_THAT(file->count(), test::Gives(0));
    for (int employees = 1; employees <= 3; ++employees) {
        ASSERT_THAT(file->write(1, meirin()), test::Succeeds());
        EXPECT_THAT(file->count(), test::Gives(1)) << employees;
    }
}

TEST(ExcludedPeriod, IsStoredAsTheMarkAndZeros) {
    const std::string bytes = bytesOf(employee());
    EXPECT_EQ(toHex(bytes.substr(132, 30)),
              "2f 2f 20 20 20 20 20 20 2f 2f 20 20 20 20 20 20 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

struct FieldCase {
    std::string_view field;
    std::string_view text;
};

void expectTexts(std::span<const FieldInfo> fields, const std::string& record, const std::vector<FieldCase>& cases) {
    const auto bytes = std::as_bytes(std::span(record));
    for (const auto& [name, text] : cases) {
        const FieldInfo* field = findField(fields, name);
        ASSERT_NE(field, nullptr) << name;
        EXPECT_EQ(fieldText(*field, bytes), text) << name;
    }
}

TEST(FieldsByName, OfAnEmployee) {
    expectTexts(employeeFields, test::employeeBytes(),
                {{"txtMonteOre", "40"},
                 {"MoUtil", "95"},
                 {"MoGlob", "280"},
                 {"Globo", "373"},
                 {"SonoDip", "2"},
                 {"txtNumDip", "7"},
                 {"Nome", "DE LUCÀ MARIA"},
                 {"txtPrimoDal", "15-04-24"},
                 {"PrimoAl", "14-05-24"},
                 {"AutFer1Per", "20"},
                 {"AutFes1Per", "11"},
                 {"Nf1Per", "3"},
                 {"Pag1Df", "18"},
                 {"Pag1Nf", "10"},
                 {"Pag1NeF", "1"},
                 {"Totale1", "29"},
                 {"SecDal", "15-05-24"},
                 {"SecAl", "24-05-24"},
                 {"AutFer2Per", "8"},
                 {"AutFes2Per", "4"},
                 {"Nf2Per", "2"},
                 {"Pag2Df", "7"},
                 {"Pag2Nf", "5"},
                 {"Pag2NeF", "0"},
                 {"Totale2", "12"},
                 {"TerDal", "//"},
                 {"TerAl", "//"},
                 {"AutFer3Per", "0"},
                 {"txtTotAut", "48"},
                 {"EsegDf", "25"},
                 {"EsegNof", "15"},
                 {"EsegNef", "1"},
                 {"txtTotEseg", "41"},
                 {"lblCat", "G    B6"},
                 {"lblCat2", "-"},
                 {"txtCompDf", "12,34"},
                 {"txtCompNof", "15,55"},
                 {"txtCompNef", "17,90"},
                 {"txtDovuto", "559,65"},
                 {"Label37", "23,80"},
                 {"txtCpStato", "133,20"},
                 {"Label38", "8,50"},
                 {"txtIrap", "47,57"},
                 {"txtTotaleSpesa", "180,77"},
                 {"Label43", "8,80"},
                 {"txtCpDip", "49,25"},
                 {"Label47", "0,35"},
                 {"txtFonCre", "1,96"},
                 {"txtTotaleContr", "51,21"}});
}

TEST(FieldsByName, OfTheFourthAndTheFifthPeriod) {
    const std::string record = test::latePeriodBytes();
    expectTexts(quartumFields, record,
                {{"txtQuartusDal", "13-05-13"},
                 {"txtQuartusAl", "27-05-13"},
                 {"txtAutFer4Per", "14"},
                 {"AutFes4Per", "6"},
                 {"Nf4Per", "2"},
                 {"Pag4Df", "13"},
                 {"Pag4Nf", "5"},
                 {"Pag4NeF", "1"},
                 {"Totale4", "19"}});
    expectTexts(pentiumFields, record,
                {{"txtPentiumDal", "13-05-13"},
                 {"txtPentiumAl", "27-05-13"},
                 {"txtAutFer5Per", "14"},
                 {"AutFes5Per", "6"},
                 {"Nf5Per", "2"},
                 {"Pag5Df", "13"},
                 {"Pag5Nf", "5"},
                 {"Pag5NeF", "1"},
                 {"Totale5", "19"}});
    for (const std::span<const FieldInfo> fields :
         {std::span<const FieldInfo>(quartumFields), std::span<const FieldInfo>(pentiumFields)}) {
        expectTexts(fields, record,
                    {{"Nome", "ROSSI MARIO"},  {"TotAut", "22"},     {"EsegDf", "71"},       {"EsegNof", "32"},
                     {"EsegNef", "4"},         {"TotEseg", "107"},   {"lblCat", "D3"},       {"CompDf", "15,92"},
                     {"CompNof", "17,99"},     {"CompNef", "20,75"}, {"Dovuto", "1.789,00"}, {"AliCpStato", "23,81"},
                     {"CpStato", "425,96"},    {"AliIrap", "8,51"},  {"Irap", "152,24"},     {"TotaleSpesa", "578,20"},
                     {"AliCpDip", "8,81"},     {"CpDip", "157,61"},  {"AliFonCre", "0,36"},  {"FonCre", "6,44"},
                     {"TotaleContr", "164,05"}});
    }
}

TEST(FieldsByName, OfMeirin) {
    expectTexts(meirinFields, test::meirinBytes(), {{"txtIrpef", "1.234,56"},    {"insdatainail", "16-07-13"},
                                                    {"txtInail", "78,90"},       {"Label52", "40"},
                                                    {"Label53", "13"},           {"Label54", "27"},
                                                    {"Label56", "240"},          {"Label65", "93"},
                                                    {"Label66", "187"},          {"lblPrimo", "1"},
                                                    {"lblSecondo", "0"},         {"lblTerzo", "1"},
                                                    {"Label108", "15"},          {"Label106", "103"},
                                                    {"lblQuarto", "1"},          {"txtInailUno", "43,21"},
                                                    {"Label123", "22"},          {"Label125", "154"},
                                                    {"lblQuinto", "0"},          {"txtInps", "987,65"},
                                                    {"insdatainps", "16-08-13"}, {"txtInailDue", "35,69"}});
}

TEST(FieldsByName, OfDuedate) {
    expectTexts(duedateFields, test::duedateBytes(),
                {{"txtDataDecreto", "12-04-24"}, {"txtDataDetermina", "15-04-24"}});
}

}  // namespace
}  // namespace vorbano
