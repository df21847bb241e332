#include "storage/record_fields.h"

#include <gmock/gmock.h>

#include <string>

#include "support/bytes.h"

namespace vorbano {
namespace {

using test::amount;
using test::fromHex;
using test::le16;
using test::le32;
using test::nuls;
using test::padded;

constexpr FieldInfo fields[] = {
    {"Nome", "txtNome", 0, 10, FieldType::text},         {"NumDip", "", 10, 2, FieldType::integer},
    {"Numero", "", 12, 4, FieldType::longInteger},       {"Postali", "Assunzioni", 16, 8, FieldType::currency},
    {"Assunzioni", "Text1", 24, 8, FieldType::currency}, {"Dal", "", 32, 8, FieldType::date},
};
constexpr std::size_t recordWidth = 40;

std::string shown(std::string_view name, std::string_view record) {
    const FieldInfo* field = findField(fields, name);
    return field == nullptr ? "(no field)" : fieldText(*field, std::as_bytes(std::span(record)));
}

TEST(FieldTable, CoversTheRecordWithoutAGap) {
    static_assert(coversWhole(fields, recordWidth));
    static_assert(!coversWhole(fields, recordWidth + 1));
    static_assert(!coversWhole(std::span(fields).subspan(1), recordWidth));
    static_assert(coversWhole({}, 0));
}

TEST(FieldTable, IsSearchedByNameAndByScreenName) {
    EXPECT_EQ(findField(fields, "NumDip"), &fields[1]);
    EXPECT_EQ(findField(fields, "txtNome"), &fields[0]);
    EXPECT_EQ(findField(fields, "Text1"), &fields[4]);
    EXPECT_EQ(findField(fields, "numdip"), nullptr) << "names are exact";
    EXPECT_EQ(findField(fields, ""), nullptr) << "no screen name is no name";
}

TEST(FieldTable, PutsANameBeforeTheScreenNameOfAnother) { EXPECT_EQ(findField(fields, "Assunzioni"), &fields[4]); }

TEST(FieldText, IsWhatTheClerkReads) {
    const std::string record = padded(fromHex("20 46 6f 72 6c ec"), 10) + le16(-40) + le32(70'000) + amount(1234, 50) +
                               amount(-170, 5) + padded("//", 8);
    ASSERT_EQ(record.size(), recordWidth);
    EXPECT_EQ(shown("Nome", record), "Forlì");
    EXPECT_EQ(shown("NumDip", record), "-40");
    EXPECT_EQ(shown("Numero", record), "70000");
    EXPECT_EQ(shown("Postali", record), "1.234,50");
    EXPECT_EQ(shown("Assunzioni", record), "-170,05");
    EXPECT_EQ(shown("Dal", record), "//");
}

TEST(FieldText, ShowsFourDecimalsWhereTheyAreNotZero) {
    const auto shownAmount = [](std::string_view bytes) { return shown("Postali", nuls(16) + std::string(bytes)); };
    EXPECT_EQ(shownAmount(amount(14, 14, 17)), "14,1417");
    EXPECT_EQ(shownAmount(amount(1234, 56, 70)), "1.234,5670");
    EXPECT_EQ(shownAmount(amount(0, 0, 1)), "0,0001");
    EXPECT_EQ(shownAmount(test::le64(-50)), "-0,0050");
    EXPECT_EQ(shownAmount(test::le64(-12'345)), "-1,2345");
    EXPECT_EQ(shownAmount(amount(0, 99, 99)), "0,9999") << "the cents are not rounded";
}

TEST(FieldText, OfAFieldNeverAssignedIsEmptyOrZero) {
    EXPECT_EQ(shown("Nome", nuls(recordWidth)), "");
    EXPECT_EQ(shown("NumDip", nuls(recordWidth)), "0");
    EXPECT_EQ(shown("Postali", nuls(recordWidth)), "0,00");
    EXPECT_EQ(shown("Dal", nuls(recordWidth)), "");
}

TEST(FieldText, TakesWhatAShortRecordDoesNotHoldAsZeros) {
    const std::string record = "Roma";
    EXPECT_EQ(shown("Nome", record), "Roma");
    EXPECT_EQ(shown("NumDip", record), "0");
    EXPECT_EQ(shown("Postali", nuls(16) + fromHex("10 27")), "1,00");
    EXPECT_EQ(shown("Dal", record), "");
}

}  // namespace
}  // namespace vorbano
