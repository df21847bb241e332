#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "storage/file_system.h"
#include "support/results.h"

namespace vorbano {
namespace {

using test::Fails;
using test::Gives;
using Names = std::vector<std::string>;

TEST(Path, IsTheNamesBetweenItsSlashes) {
    EXPECT_THAT(splitPath("Elezioni/Europee/09-06-24/Meirin.vbn"),
                Gives(Names{"Elezioni", "Europee", "09-06-24", "Meirin.vbn"}));
    EXPECT_THAT(splitPath("Params"), Gives(Names{"Params"}));
    EXPECT_THAT(splitPath("città/Forlì.dat"), Gives(Names{"città", "Forlì.dat"}));
}

TEST(Path, OfNoNamesIsTheRoot) { EXPECT_THAT(splitPath(""), Gives(Names{})); }

TEST(Path, DropsBlanksBehindEachName) {
    EXPECT_THAT(splitPath("Params/Comuni.dat "), Gives(Names{"Params", "Comuni.dat"}));
    EXPECT_THAT(splitPath("Elezioni/Europee  /Meirin.vbn"), Gives(Names{"Elezioni", "Europee", "Meirin.vbn"}));
    EXPECT_THAT(splitPath("a b/ c"), Gives(Names{"a b", " c"})) << "others stay";
}

TEST(Path, ThatLeavesTheRootOrNamesNothingIsRefused) {
    for (const char* path :
         {"..", "../x", "a/../b", "a/..", ".", "./a", "/", "/etc", "a//b", "a/", " ", "a/ /b", ".. ", "...", "a."}) {
        EXPECT_THAT(splitPath(path), Fails(Failure::badName)) << path;
    }
}

TEST(Path, WithACharacterThatWindowsRefusesIsRefused) {
    for (const char* path :
         {"a\\b", "C:", "C:/x", "a*", "a?", "a\"", "a<b", "a>b", "a|b", "a\tb", "a\nb", "a\x7F", "\\\\server/x"}) {
        EXPECT_THAT(splitPath(path), Fails(Failure::badName)) << path;
    }
    EXPECT_THAT(splitPath(std::string("a\0b", 3)), Fails(Failure::badName));
}

TEST(Path, WithANameLongerThanADiskTakesIsRefused) {
    EXPECT_THAT(splitPath(std::string(255, 'a')), Gives(Names{std::string(255, 'a')}));
    EXPECT_THAT(splitPath("a/" + std::string(256, 'a')), Fails(Failure::badName));
}

TEST(FileNames, AreTheSameWhateverTheirCase) {
    EXPECT_TRUE(sameName("Meirin.vbn", "meirin.VBN"));
    EXPECT_TRUE(sameName("Segsuf.vbn", "SegSuf.vbn"));
    EXPECT_TRUE(sameName("Forlì", "FORLÌ"));
    EXPECT_TRUE(sameName("Comuni.dat ", "comuni.dat"));
    EXPECT_FALSE(sameName("Meirin.vbn", "Meirin"));
    EXPECT_FALSE(sameName("perù", "peru"));
    EXPECT_FALSE(sameName(" a", "a"));
}

}  // namespace
}  // namespace vorbano
