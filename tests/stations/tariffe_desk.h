#pragma once

// The tariff screen on a desk of its own, and its files laid out row by row.

#include <string>
#include <string_view>
#include <vector>

#include "stations/frmTariffeSeggi.h"
#include "support/bytes.h"
#include "support/screen_desk.h"

namespace vorbano::test {

inline constexpr const char* askFees = "Bisogna inserire le tariffe. Attivare l'inserimento?";
inline constexpr const char* askQuota = "Bisogna inserire la quota a carico dello Stato. Attivare l'inserimento?";

/// A row on paper, amounts in cents.
[[nodiscard]] inline std::string tariffRow(std::string_view type, std::initializer_list<int> cents) {
    std::string row = padded(type, 20);
    for (const int each : cents) row += amount(0, each);
    return row;
}

class TariffeSeggiTest : public ScreenDesk<frmTariffeSeggi> {
  protected:
    TariffeSeggiTest() { EXPECT_TRUE(files.makeFolder("Params").ok()); }

    /// Fees and quotas of two types in each file.
    void openWithTariffs() {
        layTariffs();
        open();
    }
    void layTariffs() {
        ASSERT_TRUE(lay(files, "Params/Tarseg.dat", comunaliFees + europeeFees));
        ASSERT_TRUE(lay(files, "Params/Tarmag.dat", comunaliQuotas + europeeQuotas));
        ASSERT_TRUE(lay(files, "Params/TarSpec.dat", comunaliSpecial + europeeSpecial));
        ASSERT_TRUE(lay(files, "Params/Tarmagsp.dat", comunaliSpecialQuotas + europeeSpecialQuotas));
    }
    std::string file(std::string_view name) { return contentOf(files, "Params/" + std::string(name)); }

    void expectTexts(const std::vector<std::string>& names, const std::vector<std::string>& texts) {
        ASSERT_EQ(names.size(), texts.size());
        for (std::size_t at = 0; at < names.size(); ++at) EXPECT_EQ(text(names[at]), texts[at]) << names[at];
    }
    /// Of all amounts of the screen, only these are open.
    void expectOpen(const std::vector<std::string>& open) {
        for (const char* name :
             {"txtPresOne", "txtSegrOne", "txtScrutOne", "txtMagPres", "txtMagSesc", "txtPresSpecOne",
              "txtScrutSpecOne", "txtMagPresSp", "txtMagSescSp", "txtPresAnd", "txtSegrAnd", "txtScrutAnd"}) {
            const bool wanted = std::find(open.begin(), open.end(), name) != open.end();
            EXPECT_EQ(operable(name), wanted) << name;
        }
    }

    const std::vector<std::string> normalFields = {"txtPresOne", "txtSegrOne", "txtScrutOne", "txtMagPres",
                                                   "txtMagSesc"};
    const std::vector<std::string> specialFields = {"txtPresSpecOne", "txtScrutSpecOne", "txtMagPresSp",
                                                    "txtMagSescSp"};
    const std::string comunaliFees = tariffRow("Comunali", {15'000, 12'000, 11'000});
    const std::string europeeFees = tariffRow("Europee", {13'800, 11'040, 9'600});
    /// The middle amounts are nobody's, and must survive.
    const std::string comunaliQuotas = tariffRow("Comunali", {5'000, 777, 3'000});
    const std::string europeeQuotas = tariffRow("Europee", {4'500, 1'234'567, 2'500});
    const std::string comunaliSpecial = tariffRow("Comunali", {9'000, 6'100});
    const std::string europeeSpecial = tariffRow("Europee", {8'280, 5'520});
    const std::string comunaliSpecialQuotas = tariffRow("Comunali", {2'000, 1'000});
    const std::string europeeSpecialQuotas = tariffRow("Europee", {1'500, 1'025});
};

}  // namespace vorbano::test
