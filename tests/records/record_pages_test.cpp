// The pages in docs/file are held against the tables of fields that the program works with, so that they cannot say
// anything else: files, widths, every row, and an example record that must be read as the page reads it.

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <vector>

#include "record_page.h"
#include "records/adjustment_records.h"
#include "records/overtime_records.h"
#include "records/payment_records.h"
#include "records/statement_records.h"
#include "records/station_records.h"
#include "records/station_tariff_records.h"
#include "records/tariff_records.h"
#include "storage/list_files.h"
#include "support/bytes.h"

namespace vorbano {
namespace {

using test::PageRow;
using test::RecordPage;
using ::testing::HasSubstr;

/// A page, the files it is about, the record that they hold.
struct PageCase {
    std::string page;
    std::vector<std::string> files;
    std::size_t width;
    std::span<const FieldInfo> fields;
};

void PrintTo(const PageCase& each, std::ostream* out) { *out << each.page; }

const std::vector<PageCase>& pages() {
    static const std::vector<PageCase> all = {
        {"ente.md", {"Ente.dat"}, sizeof(NameRecord), nameFields},
        {"comuni.md", {"Comuni.dat"}, sizeof(NameRecord), nameFields},
        {"dipend.md", {"Dipend.dat"}, sizeof(NameRecord), nameFields},
        {"pmdip.md", {"PmDip.dat", "NewPmDip.dat", "OldPmDip.dat"}, sizeof(TariffTable), tariffTableFields()},
        {"pmdipc.md", {"PmDipc.dat"}, sizeof(DatedTariffRow), datedTariffFields},
        {"pmseg.md", {"PmSeg.dat"}, sizeof(SecretaryTariff), secretaryFields()},
        {"conprev.md", {"Conprev.dat"}, sizeof(ContribRates), contribFields},
        {"tarseg.md", {"Tarseg.dat"}, sizeof(NormalTariff), tarsegFields},
        {"tarspec.md", {"TarSpec.dat"}, sizeof(SpecialTariff), tarSpecFields},
        {"tarmag.md", {"Tarmag.dat"}, sizeof(NormalTariff), tarmagFields},
        {"tarmagsp.md", {"Tarmagsp.dat"}, sizeof(SpecialTariff), tarmagspFields},
        {"data.md", {"<data>.vbn"}, sizeof(EmployeeRecord), employeeFields},
        {"quartum.md", {std::string(quartumFile)}, sizeof(LatePeriodRecord), quartumFields},
        {"pentium.md", {std::string(pentiumFile)}, sizeof(LatePeriodRecord), pentiumFields},
        {"meirin.md", {std::string(meirinFile)}, sizeof(MeirinRecord), meirinFields},
        {"duedate.md", {std::string(duedateFile)}, sizeof(DuedateRecord), duedateFields},
        {"seggi.md", {"Seggi.vbn", "Speciale.vbn", "SeggiRev.vbn"}, sizeof(MemberRecord), memberFields},
        {"sosseggi.md",
         {"SosSeggi.vbn", "SosSpec.vbn", "RevSosSeggi.vbn", "RevSosSpec.vbn"},
         sizeof(SubstituteRecord),
         substituteFields},
        {"segsuf.md", {"SegSuf.vbn"}, sizeof(SegSufRecord), segSufFields},
        {"sossegsuf.md", {"SosSegSuf.vbn"}, sizeof(SosSegSufRecord), sosSegSufFields},
        {"specsufr.md", {"SpecSufr.vbn"}, sizeof(SpecSufrRecord), specSufrFields},
        {"sspecsufr.md", {"SspecSufr.vbn"}, sizeof(SspecSufrRecord), sspecSufrFields},
        {"rendi.md", {std::string(rendiFile)}, sizeof(RendiRecord), rendiFields},
        {"divst.md", {std::string(divStFile)}, sizeof(DivStRecord), divStFields},
        {"tprov.md", {std::string(tprovFile)}, sizeof(TprovRecord), tprovFields},
        {"versum.md", {"Versum.vbn", "Versumc.vbn", "Reversum.vbn"}, sizeof(PaymentRecord), paymentFields},
        {"meirinc.md", {std::string(meirincFile)}, sizeof(MeirincRecord), meirincFields},
        {"congs.md", {"Congs.vbn", "Congs1.vbn"}, sizeof(AdjustmentRecord), adjustmentFields},
    };
    return all;
}

std::string typeName(FieldType type) {
    switch (type) {
        case FieldType::text:
            return "text";
        case FieldType::integer:
            return "integer";
        case FieldType::longInteger:
            return "long";
        case FieldType::currency:
            return "currency";
        case FieldType::date:
            return "date";
    }
    return "";
}

class RecordPageOf : public ::testing::TestWithParam<PageCase> {};

TEST_P(RecordPageOf, NamesItsFilesAndTheirRecordLength) {
    const RecordPage page = test::readRecordPage(GetParam().page);
    EXPECT_EQ(page.files, GetParam().files);
    EXPECT_EQ(page.recordLength, std::to_string(GetParam().width));
}

TEST_P(RecordPageOf, HasARowForEachField) {
    const RecordPage page = test::readRecordPage(GetParam().page);
    EXPECT_EQ(page.trouble, "");
    const auto fields = GetParam().fields;
    ASSERT_EQ(page.rows.size(), fields.size());
    for (std::size_t at = 0; at < fields.size(); ++at) {
        const FieldInfo& field = fields[at];
        const PageRow& row = page.rows[at];
        EXPECT_EQ(row.field, field.name);
        EXPECT_EQ(row.offset, std::to_string(field.offset)) << field.name;
        EXPECT_EQ(row.width, std::to_string(field.width)) << field.name;
        EXPECT_EQ(row.type, typeName(field.type)) << field.name;
        EXPECT_EQ(row.screenName, field.screenName) << field.name;
        EXPECT_NE(row.meaning, "") << field.name;
    }
}

TEST_P(RecordPageOf, HasAnExampleThatReadsAsItSays) {
    const RecordPage page = test::readRecordPage(GetParam().page);
    const std::string record = page.record();
    ASSERT_EQ(record.size(), GetParam().width);
    const auto fields = GetParam().fields;
    ASSERT_EQ(page.rows.size(), fields.size());
    for (std::size_t at = 0; at < fields.size(); ++at) {
        EXPECT_EQ(page.rows[at].bytes.size(), fields[at].width) << fields[at].name;
        EXPECT_EQ(page.rows[at].example, fieldText(fields[at], std::as_bytes(std::span(record)))) << fields[at].name;
    }
}

TEST_P(RecordPageOf, StandsInTheList) {
    const PageCase& each = GetParam();
    const std::string list = test::recordPageText("README.md");
    for (const std::string& file : each.files) EXPECT_THAT(list, HasSubstr("`" + file + "`"));
    EXPECT_THAT(list, HasSubstr("| " + std::to_string(each.width) + " |"));
    EXPECT_THAT(list, HasSubstr("[" + each.page + "](" + each.page + ")"));
}

INSTANTIATE_TEST_SUITE_P(Docs, RecordPageOf, ::testing::ValuesIn(pages()),
                         [](const auto& each) { return each.param.page.substr(0, each.param.page.find('.')); });

TEST(RecordPages, AreAllHeldAgainstTheirFields) {
    std::vector<std::string> expected = {"README.md"};
    for (const PageCase& each : pages()) expected.push_back(each.page);
    EXPECT_THAT(test::recordPageNames(), ::testing::UnorderedElementsAreArray(expected));
}

/// The page of the rates, read by the type that the program reads them with.
TEST(RecordPageOfTheRates, LaysTheLabelsOfAllRowsAsTheyAreStored) {
    const auto table = test::recordFrom<TariffTable>(test::readRecordPage("pmdip.md").record());
    for (int row = 0; row < tariffRowCount; ++row) {
        const TariffRow& layout = tariffRows[static_cast<std::size_t>(row)];
        EXPECT_EQ(trimRight(table.grade(row)), layout.grade) << layout.key;
        EXPECT_EQ(table.mark(row), "/") << layout.key;
    }
}

}  // namespace
}  // namespace vorbano
