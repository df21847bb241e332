#include "reports/rendiconto_layout.h"

#include <gtest/gtest.h>

#include <string>

namespace vorbano::test {
namespace {

using enum RendicontoPath;

struct LayoutChoice {
    std::string kind;
    std::string date;
    RendicontoPath path;
    std::string layout;
};
void PrintTo(const LayoutChoice& one, std::ostream* out) { *out << one.kind << " " << one.date; }

class RendicontoChoice : public testing::TestWithParam<LayoutChoice> {};

TEST_P(RendicontoChoice, GoesByKindAndDate) {
    const LayoutChoice& expected = GetParam();
    EXPECT_EQ(rendicontoPath(expected.kind), expected.path);
    EXPECT_EQ(rendicontoLayout(expected.path, {expected.kind, expected.date}), expected.layout);
}

INSTANTIATE_TEST_SUITE_P(Kinds, RendicontoChoice,
                         testing::Values(LayoutChoice{"Europee", "09-06-24", common, "rendstamp.rpt"},
                                         LayoutChoice{"Politiche", "25-09-22", common, "rendstamp.rpt"},
                                         LayoutChoice{"Referendum", "12-06-22", common, "rendstamp.rpt"},
                                         LayoutChoice{"Regionali_Comunali", "20-09-20", common, "rendstamp.rpt"},
                                         LayoutChoice{"Europee_Regionali", "20-09-20", common, "rendripe.rpt"},
                                         LayoutChoice{"comunali", "06-05-12", common, "rendstamp.rpt"},
                                         LayoutChoice{"Provinciali_Comunali", "06-05-12", ProvSub, "rendprocom.rpt"},
                                         LayoutChoice{"Provinciali_Comunali", "14-05-23", ProvSub, "rendprocom.rpt"},
                                         LayoutChoice{"Politiche_Comunali", "13-04-08", ProvSub, "rendripp.rpt"},
                                         LayoutChoice{"Provinciali", "07-06-09", ProvSub, "rendprov.rpt"},
                                         LayoutChoice{"Politiche_Regionali", "24-02-13", PolRegSub, "rendripr.rpt"},
                                         LayoutChoice{"Politiche_Regionali", "25-06-23", PolRegSub, "rendripr.rpt"},
                                         LayoutChoice{"Europee_Comunali", "26-05-19", EuroCom, "rendripe.rpt"},
                                         LayoutChoice{"Referendum_Comunali", "12-06-22", EuroCom, "rendrippcong.rpt"},
                                         LayoutChoice{"Referendum_Comunali", "20-09-20", EuroCom, "rendrippcong.rpt"}));

/// Days with a layout of their own, and the days beside them, also of the other kind.
INSTANTIATE_TEST_SUITE_P(Days, RendicontoChoice,
                         testing::Values(LayoutChoice{"Comunali", "05-05-12", ProvSub, "rendprovC.rpt"},
                                         LayoutChoice{"Comunali", "06-05-12", ProvSub, "rendcom.rpt"},
                                         LayoutChoice{"Comunali", "07-05-12", ProvSub, "rendprovC.rpt"},
                                         LayoutChoice{"Comunali", "06-05-13", ProvSub, "rendprovC.rpt"},
                                         LayoutChoice{"Comunali", "13-05-23", ProvSub, "rendprovC.rpt"},
                                         LayoutChoice{"Comunali", "14-05-23", ProvSub, "rendcomc19.rpt"},
                                         LayoutChoice{"Comunali", "15-05-23", ProvSub, "rendprovC.rpt"},
                                         LayoutChoice{"Comunali", "25-06-23", ProvSub, "rendprovC.rpt"},
                                         LayoutChoice{"Comunali", "", ProvSub, "rendprovC.rpt"},
                                         LayoutChoice{"Regionali", "24-06-23", ProvSub, "rendreg.rpt"},
                                         LayoutChoice{"Regionali", "25-06-23", ProvSub, "rendregc19.rpt"},
                                         LayoutChoice{"Regionali", "26-06-23", ProvSub, "rendreg.rpt"},
                                         LayoutChoice{"Regionali", "14-05-23", ProvSub, "rendreg.rpt"},
                                         LayoutChoice{"Regionali", "06-05-12", ProvSub, "rendreg.rpt"},
                                         LayoutChoice{"Provinciali", "06-05-12", ProvSub, "rendprov.rpt"}));

/// The tables of the procedures also have lines for kinds that go elsewhere.
TEST(RendicontoLayout, EachTableIsKeptWhole) {
    EXPECT_EQ(rendicontoLayout(common, {"Europee_Comunali", "26-05-19"}), "rendripe.rpt");
    EXPECT_EQ(rendicontoLayout(common, {"Politiche_Comunali", "13-04-08"}), "rendrip.rpt");
    EXPECT_EQ(rendicontoLayout(common, {"Provinciali_Comunali", "06-05-12"}), "rendrip.rpt");
    EXPECT_EQ(rendicontoLayout(common, {"Referendum_Comunali", "12-06-22"}), "rendstamp.rpt");
    EXPECT_EQ(rendicontoLayout(ProvSub, {"Politiche_Regionali", "24-02-13"}), "rendripr.rpt");
    EXPECT_EQ(rendicontoLayout(EuroCom, {"Politiche_Comunali", "13-04-08"}), "rendrip.rpt");
    EXPECT_EQ(rendicontoLayout(EuroCom, {"Provinciali_Comunali", "06-05-12"}), "rendrip.rpt");
    EXPECT_EQ(rendicontoLayout(EuroCom, {"Europee", "09-06-24"}), "rendstamp.rpt");
}

TEST(RendicontoLayout, ProvSubHasNoneForOtherKinds) {
    EXPECT_EQ(rendicontoLayout(ProvSub, {"Europee", "09-06-24"}), std::nullopt);
    EXPECT_EQ(rendicontoLayout(ProvSub, {"", ""}), std::nullopt);
}

TEST(RendicontoLayout, EuropeanWithOthersBeginsWithAnEAndIsTwo) {
    EXPECT_TRUE(europeanWithOthers("Europee_Comunali"));
    EXPECT_FALSE(europeanWithOthers("Europee"));
    EXPECT_FALSE(europeanWithOthers("Politiche_Comunali"));
    EXPECT_FALSE(europeanWithOthers("_Europee"));
}

}  // namespace
}  // namespace vorbano::test
