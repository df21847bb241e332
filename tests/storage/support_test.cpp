// The helpers that lay out expected bytes must be right themselves.

#include <gmock/gmock.h>

#include <string>

#include "storage/memory_file_system.h"
#include "support/bytes.h"

namespace vorbano::test {
namespace {

TEST(ExpectedBytes, AreWrittenInHex) {
    EXPECT_EQ(fromHex("41 42 20"), "AB ");
    EXPECT_EQ(fromHex("4142fF"), "AB\xFF");
    EXPECT_EQ(toHex("AB\xFF"), "41 42 ff");
    EXPECT_EQ(fromHex("4"), "HALF A BYTE: 4");
    EXPECT_EQ(fromHex("4g"), "NOT HEX: 4g");
}

TEST(ExpectedBytes, OfNumbersAreLittleEndian) {
    EXPECT_EQ(toHex(le16(258)), "02 01");
    EXPECT_EQ(toHex(le16(-2)), "fe ff");
    EXPECT_EQ(toHex(le32(70'000)), "70 11 01 00");
    EXPECT_EQ(toHex(le64(-2)), "fe ff ff ff ff ff ff ff");
}

TEST(ExpectedBytes, OfAmountsAreInTenThousandths) {
    EXPECT_EQ(toHex(amount(170, 5)), "94 f2 19 00 00 00 00 00");
    EXPECT_EQ(amount(-1, 50), le64(-15'000));
    EXPECT_EQ(amount(14, 14, 17), le64(141'417));
    EXPECT_EQ(amount(1), le64(10'000));
}

TEST(ExpectedBytes, OfTextsArePadded) {
    EXPECT_EQ(padded("Roma", 6), "Roma  ");
    EXPECT_EQ(padded("Roma", 3), "Roma") << "a mistake of the test, which must not be hidden";
    EXPECT_EQ(nuls(2), std::string("\0\0", 2));
}

TEST(Files, AreLaidWithTheirFoldersAndLookedAt) {
    MemoryFileSystem files;
    EXPECT_TRUE(lay(files, "Elezioni/Europee/09-06-24/x.vbn", "x"));
    EXPECT_EQ(contentOf(files, "Elezioni/Europee/09-06-24/x.vbn"), "x");
    EXPECT_EQ(contentOf(files, "Elezioni/y"), noFile);
    EXPECT_FALSE(lay(files, "../x", "x"));
}

}  // namespace
}  // namespace vorbano::test
