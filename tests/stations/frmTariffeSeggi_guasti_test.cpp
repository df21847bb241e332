// The disk fails or stops at every operation: each file is whole afterwards, old or new, and the clerk is told.

#include "support/fault_stage.h"
#include "tariffe_desk.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::IsEmpty;
using ::testing::Not;

/// One half: how it is changed and saved, and its two files before and after.
struct HalfCase {
    const char *type, *all, *save, *firstFee, *lastQuota;
    const char *feeFile, *quotaFile;
};
void PrintTo(const HalfCase& each, std::ostream* out) { *out << each.save; }

class TariffFaults : public TariffeSeggiTest, public ::testing::WithParamInterface<HalfCase> {
  protected:
    [[nodiscard]] bool isNormal() const { return std::string_view(GetParam().save) == "cmdSalva"; }
    [[nodiscard]] std::string feesBefore() const {
        return isNormal() ? comunaliFees + europeeFees : comunaliSpecial + europeeSpecial;
    }
    [[nodiscard]] std::string feesAfter() const {
        return isNormal() ? comunaliFees + tariffRow("Europee", {14'000, 11'040, 9'600})
                          : comunaliSpecial + tariffRow("Europee", {14'000, 5'520});
    }
    [[nodiscard]] std::string quotasBefore() const {
        return isNormal() ? comunaliQuotas + europeeQuotas : comunaliSpecialQuotas + europeeSpecialQuotas;
    }
    [[nodiscard]] std::string quotasAfter() const {
        return isNormal() ? comunaliQuotas + tariffRow("Europee", {4'500, 1'234'567, 3'000})
                          : comunaliSpecialQuotas + tariffRow("Europee", {1'500, 3'000});
    }

    /// The files as before, the half on the failing disk with two changed amounts.
    void prepare() {
        failing.failOnce(0);
        layTariffs();
        openOn(failing);
        choose(GetParam().type, "Europee");
        tick(GetParam().all);
        type(GetParam().firstFee, "140");
        type(GetParam().lastQuota, "30");
    }
    int operationsOfASave() {
        prepare();
        return operationsOf(failing, [&] { click(GetParam().save); });
    }
    static FaultCase inTable() { return {std::string("frmTariffeSeggi.") + GetParam().save, "two amounts"}; }
    void expectWhole() {
        EXPECT_THAT(toHex(file(GetParam().feeFile)), AnyOf(toHex(feesBefore()), toHex(feesAfter())));
        EXPECT_THAT(toHex(file(GetParam().quotaFile)), AnyOf(toHex(quotasBefore()), toHex(quotasAfter())));
    }
    void expectSaved() {
        EXPECT_EQ(toHex(file(GetParam().feeFile)), toHex(feesAfter()));
        EXPECT_EQ(toHex(file(GetParam().quotaFile)), toHex(quotasAfter()));
    }

    FailingFileSystem failing{files};
};

TEST_P(TariffFaults, ASaveThatFailsAtOneOperationIsToldStaysOpenAndCanBeRepeated) {
    const int operations = operationsOfASave();
    expectSaved();
    // Of each file: opened, searched, written, flushed.
    EXPECT_GE(operations, 8);
    atEveryOperation(inTable(), operations, [&](int n) {
        prepare();
        failingOnce(failing, n, [&] { click(GetParam().save); });
        EXPECT_THAT(desktop.finish(), onlyAnError());
        expectWhole();
        EXPECT_TRUE(ticked(GetParam().all));
        EXPECT_TRUE(enabled(GetParam().save));
        EXPECT_EQ(text(GetParam().firstFee), "140,00");
        EXPECT_EQ(text(GetParam().lastQuota), "30,00");
        click(GetParam().save);
        EXPECT_THAT(desktop.finish(), IsEmpty());
        expectSaved();
        EXPECT_FALSE(ticked(GetParam().all));
    });
}

TEST_P(TariffFaults, ASaveThatStopsAndLosesThePowerLeavesWholeFiles) {
    const int operations = operationsOfASave();
    atEveryOperation(inTable(), operations, [&](int n) {
        prepare();
        cuttingPower(failing, files, n, [&] { click(GetParam().save); });
        EXPECT_THAT(desktop.finish(), Not(IsEmpty()));
        expectWhole();
    });
}

TEST_P(TariffFaults, AChoiceThatFailsIsToldAndNothingIsChosen) {
    prepare();
    click(GetParam().save);
    const int operations = operationsOf(failing, [&] { choose(GetParam().type, "Europee"); });
    EXPECT_GE(operations, 4);
    atEveryOperation({std::string("frmTariffeSeggi.") + GetParam().type, "reads"}, operations, [&](int n) {
        failing.failOnce(0);
        choose(GetParam().type, "Comunali");
        failing.failOnce(n);
        choose(GetParam().type, "Europee");
        EXPECT_THAT(desktop.finish(), onlyAnError());
        EXPECT_EQ(text(GetParam().type), "");
        EXPECT_EQ(text(isNormal() ? "Frame1" : "Frame3"), "TARIFFE");
        for (const auto& name : isNormal() ? normalFields : specialFields) EXPECT_EQ(text(name), "") << name;
        // What the files hold is not known, so nothing can be opened and written over it.
        tick(GetParam().all);
        EXPECT_FALSE(ticked(GetParam().all));
        EXPECT_FALSE(enabled(GetParam().save));
    });
}

TEST_P(TariffFaults, AReadOnlyFileIsTold) {
    prepare();
    files.makeReadOnly("Params/" + std::string(GetParam().quotaFile));
    box("Errore", "Il file Params/" + std::string(GetParam().quotaFile) +
                      " non può essere letto o scritto: controllare che non sia di sola lettura.");
    click(GetParam().save);
    EXPECT_EQ(toHex(file(GetParam().feeFile)), toHex(feesAfter()));
    EXPECT_EQ(toHex(file(GetParam().quotaFile)), toHex(quotasBefore()));
    EXPECT_TRUE(ticked(GetParam().all));
}

TEST_P(TariffFaults, AMissingFolderIsTold) {
    open();
    ASSERT_TRUE(files.removeFolder("Params").ok());
    box("Errore", "Manca la cartella del file Params/" + std::string(GetParam().feeFile) + ".");
    choose(GetParam().type, "Europee");
    EXPECT_EQ(text(GetParam().type), "");
}

INSTANTIATE_TEST_SUITE_P(All, TariffFaults,
                         ::testing::Values(HalfCase{"Combo1", "Check7", "cmdSalva", "txtPresOne", "txtMagSesc",
                                                    "Tarseg.dat", "Tarmag.dat"},
                                           HalfCase{"Combo2", "Check10", "cmdSalva2", "txtPresSpecOne", "txtMagSescSp",
                                                    "TarSpec.dat", "Tarmagsp.dat"}),
                         [](const auto& each) { return std::string(each.param.save); });

}  // namespace
}  // namespace vorbano::test
