// The disk fails once or stops for good at every operation of every command of the liquidation that stores: each file
// is whole afterwards, old or new; what failed is told, the screen stays, and the command given again ends it, nothing
// twice.

#include <map>

#include "liquidation_desk.h"
#include "support/fault_stage.h"

namespace vorbano::test {
namespace {

using ::testing::AnyOf;
using ::testing::Contains;

using Files = std::map<std::string, std::string>;

/// One fresh disk, desk and screen.
struct Bench : FaultStage<frmModStraord> {
    const std::string electionType;

    explicit Bench(const Files& files, const char* type = "Europee") : electionType(type) {
        for (const auto& [name, content] : files) EXPECT_TRUE(lay(disk, path(name), content));
        EXPECT_TRUE(lay(disk, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + amount(8, 80) + amount(0, 35)));
    }
    [[nodiscard]] std::string path(const std::string& name) const {
        return "Elezioni/" + electionType + "/07-06-09/" + name;
    }
    void open() {
        openScreen();
        choose("Combo1", electionType);
        type("txtDataEle", "07/06/09");
    }
    void callUp(const char* number) {
        open();
        type("txtSonoDip", number);
        click("cmdRicerca");
    }
    /// Employee `number` is paid ten hours and three, up to "Salva".
    void toSalva(const char* number) {
        callUp(number);
        press("Frame1");
        type("txtPag1Df", "10");
        type("txtPag1Nf", "3");
        enter("txtTotale1");
        leave();
        click("cmdRicalcola");
    }
    Files files(const Files& like) {
        Files now;
        for (const auto& each : like) now[each.first] = contentOf(disk, path(each.first));
        return now;
    }
};

Person oldStyle(Person person) {
    person.dates = {{{"15-04-09", "14-05-09"}, {"15-05-09", "24-05-09"}, {"//      ", "//      "}}};
    return person;
}
std::string fourth(const Person& person, const Person& paid) {
    return Sheet(241)
        .integersAt(0, {40, 0, 280, 373, person.number, 7})
        .at(12, padded(person.name, 60))
        .at(72, "01-06-09")
        .at(80, "07-06-09")
        .at(88, nuls(14))
        .integersAt(102, {total(person.authorised[0]) + total(person.authorised[1])})
        .at(104, threeLe16(paid.executed) + le16(paid.totEseg))
        .at(112, padded("D3", 7))
        .at(119, padded("-", 10))
        .at(129, paid.payBytes())
        .bytes();
}
std::string statement(int overtime, int total) {
    std::string bytes;
    for (int at = 0; at < 19; ++at) bytes += amount(0, at == 1 ? overtime : at == 12 || at == 14 ? total : 0);
    return bytes;
}

Files laid() {
    const Person one = oldStyle(first());
    const Person two = oldStyle(second());
    return {{"07-06-09.vbn", staffOf({one, two})},
            {"Meirin.vbn", limitsBytes()},
            {"Quartum.vbn", fourth(one, one) + fourth(two, two)},
            {"Rendi.vbn", statement(10000, 20000)}};
}
/// `who` of the two is liquidated. 170,05 + 40,47 + 14,45 are 224,97, and once more from the fourth period.
Files liquidated(int who) {
    const Person one = oldStyle(first());
    const Person two = oldStyle(second());
    Files files = laid();
    if (who == 1) {
        const Person paid = one.liquidated();
        files["07-06-09.vbn"] = staffOf({paid.withUsed(13), two.withUsed(13)});
        files["Quartum.vbn"] = fourth(one, paid) + fourth(two, two);
    } else {
        const Person paid = two.liquidated();
        files["07-06-09.vbn"] = staffOf({one, paid.withUsed(13)});
        files["Quartum.vbn"] = fourth(one, one) + fourth(two, paid);
    }
    files["Rendi.vbn"] = statement(44994, 54994);
    return files;
}

struct Command {
    const char* name;
    Files before;
    void (*prepare)(Bench&);
    const char* command;
    Files after;
    [[nodiscard]] FaultCase inTable() const { return {std::string("frmModStraord.") + command, name}; }
};
void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

Files withLimits(Files files, const std::string& limits) {
    files["Meirin.vbn"] = limits;
    return files;
}
Files withName(Files files) {
    files["07-06-09.vbn"].replace(301 + 12, 60, padded("VERDI ALDA", 60));
    return files;
}

const std::vector<Command>& commands() {
    static const std::vector<Command> all = {
        {"SalvaOfTheFirst", laid(), [](Bench& bench) { bench.toSalva("1"); }, "cmdSalva", liquidated(1)},
        {"SalvaOfTheLastWithIrpef", laid(),
         [](Bench& bench) {
             bench.toSalva("2");
             bench.type("txtIrpef", "100");
         },
         "cmdSalva", withLimits(liquidated(2), limitsBytes({1, 1, 1}, 1, 1, 10000))},
        {"SalvaModifica", laid(),
         [](Bench& bench) {
             bench.callUp("2");
             bench.tick("Check1");
             bench.type("txtNameDip", "VERDI ALDA");
         },
         "cmdSalva2", withName(laid())},
        {"Attiva", laid(),
         [](Bench& bench) {
             bench.open();
             bench.menu("mnuAutoriz");
             for (const char* box : {"Check8", "Check12"}) {
                 bench.tick(box);
             }
         },
         "cmdAttiva2", withLimits(laid(), limitsBytes({0, 1, 1}, 0))},
        {"Liquidazione", withLimits(laid(), limitsBytes({0, 1, 1}, 0)),
         [](Bench& bench) {
             bench.open();
             bench.menu("mnuLiqui");
             bench.tick("Check5");
         },
         "cmdAttiva", withLimits(laid(), limitsBytes({1, 1, 1}, 0))},
    };
    return all;
}

class GuastiLiquidazione : public ::testing::TestWithParam<Command> {
  protected:
    static int operations() {
        Bench bench(GetParam().before);
        GetParam().prepare(bench);
        EXPECT_EQ(hexOf(bench.files(GetParam().before)), hexOf(GetParam().before));
        const int seen = operationsOf(bench.failing, [&] { bench.click(GetParam().command); });
        EXPECT_EQ(hexOf(bench.files(GetParam().after)), hexOf(GetParam().after));
        EXPECT_FALSE(canAct(bench));
        return seen;
    }
    static bool canAct(Bench& bench) { return bench.control(GetParam().command).isOperable(); }
    static Files hexOf(Files files) {
        for (auto& each : files) each.second = toHex(each.second);
        return files;
    }
    static void expectWhole(Bench& bench) {
        for (const auto& [name, content] : bench.files(GetParam().before)) {
            EXPECT_THAT(toHex(content), AnyOf(toHex(GetParam().before.at(name)), toHex(GetParam().after.at(name))))
                << name;
        }
    }
};

TEST_P(GuastiLiquidazione, OneFailureIsToldAndTheCommandGivenAgainEndsIt) {
    const int all = operations();
    ASSERT_GE(all, 3);
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Bench bench(GetParam().before);
        GetParam().prepare(bench);
        bench.desk.told.clear();
        failingOnce(bench.failing, n, [&] { bench.click(GetParam().command); });
        expectWhole(bench);
        if (canAct(bench)) {
            EXPECT_THAT(bench.desk.told, Contains("Errore")) << "it failed without a word";
            bench.click(GetParam().command);
        }
        EXPECT_EQ(hexOf(bench.files(GetParam().after)), hexOf(GetParam().after));
        EXPECT_FALSE(canAct(bench));
    });
}

TEST_P(GuastiLiquidazione, AfterAPowerCutEachFileIsOldOrNewAndTheWorkIsDoneAgain) {
    const int all = operations();
    atEveryOperation(GetParam().inTable(), all, [&](int n) {
        Bench bench(GetParam().before);
        GetParam().prepare(bench);
        cuttingPower(bench.failing, bench.disk, n, [&] { bench.click(GetParam().command); });
        expectWhole(bench);
        if (hexOf(bench.files(GetParam().before)) == hexOf(GetParam().after)) return;
        GetParam().prepare(bench);
        bench.click(GetParam().command);
        EXPECT_EQ(hexOf(bench.files(GetParam().after)), hexOf(GetParam().after));
    });
}

INSTANTIATE_TEST_SUITE_P(Commands, GuastiLiquidazione, ::testing::ValuesIn(commands()),
                         [](const auto& command) { return std::string(command.param.name); });

/// A date that was missing: it is stored in every record when the field is left.
struct DateField {
    const char* name;
    const char* apri;
    const char* file;
    std::size_t width, offset;
};
void PrintTo(const DateField& field, std::ostream* out) { *out << field.name; }

Files withDate(Files files, const DateField& field, std::string_view date) {
    std::string& bytes = files[field.file];
    for (std::size_t at = field.offset; at < bytes.size(); at += field.width) bytes.replace(at, 8, date);
    return files;
}

const DateField dateFields[] = {
    {"txtPrimoDal", "cmdApri1", "07-06-09.vbn", 301, 72},  {"txtPrimoAl", "cmdApri1", "07-06-09.vbn", 301, 80},
    {"txtSecDal", "cmdApri2", "07-06-09.vbn", 301, 102},   {"txtSecAl", "cmdApri2", "07-06-09.vbn", 301, 110},
    {"txtTerDal", "cmdApri3", "07-06-09.vbn", 301, 132},   {"txtTerAl", "cmdApri3", "07-06-09.vbn", 301, 140},
    {"txtQuartusDal", "cmdApri4", "Quartum.vbn", 241, 72}, {"txtQuartusAl", "cmdApri4", "Quartum.vbn", 241, 80},
    {"txtPentiumDal", "cmdApri5", "Pentium.vbn", 241, 72}, {"txtPentiumAl", "cmdApri5", "Pentium.vbn", 241, 80}};

/// Five periods, each with its two dates.
Files allDates() {
    constexpr const char* dates[] = {"15-04-09", "14-05-09", "15-05-09", "24-05-09", "25-05-09",
                                     "31-05-09", "01-06-09", "07-06-09", "08-06-09", "12-06-09"};
    Files files = laid();
    files["Pentium.vbn"] = files["Quartum.vbn"];
    for (std::size_t at = 0; at < std::size(dates); ++at) files = withDate(files, dateFields[at], dates[at]);
    return files;
}

constexpr const char* withFivePeriods = "Europee_Comunali";

class GuastiDate : public ::testing::TestWithParam<DateField> {};

TEST_P(GuastiDate, TheFieldThatIsLeftStoresItsDateInAllRecordsOrInNone) {
    const DateField& field = GetParam();
    const Files after = allDates();
    const Files before = withDate(after, field, "        ");
    const std::string date = after.at(field.file).substr(field.offset, 8);
    const auto ready = [&](Bench& bench) {
        bench.callUp("1");
        bench.click(field.apri);
        bench.type(field.name, date.c_str());
        bench.desk.told.clear();
    };
    int all = 0;
    {
        Bench bench(before, withFivePeriods);
        ready(bench);
        all = operationsOf(bench.failing, [&] { bench.leave(); });
        EXPECT_EQ(toHex(bench.files(after).at(field.file)), toHex(after.at(field.file)));
        EXPECT_EQ(bench.files(after), after);
    }
    ASSERT_GE(all, 6);
    for (const Fault fault : bothFaults) {
        atEveryOperation({std::string("frmModStraord.") + field.name, "a missing date"}, all, [&](int n) {
            Bench bench(before, withFivePeriods);
            ready(bench);
            strike(bench.failing, fault, n);
            bench.leave();
            bench.failing.failOnce(0);
            if (fault == Fault::forGood) bench.disk.cutPower();
            const Files now = bench.files(after);
            EXPECT_THAT(now.at(field.file), AnyOf(before.at(field.file), after.at(field.file)));
            EXPECT_EQ(withDate(now, field, date), after) << "no other file changes";
            if (now == after) return;
            EXPECT_THAT(bench.desk.told, Contains("Errore"));
            bench.enter(field.name);
            bench.leave();
            EXPECT_EQ(bench.files(after), after);
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Fields, GuastiDate, ::testing::ValuesIn(dateFields),
                         [](const auto& field) { return std::string(field.param.name); });

/// A command that only reads: every failure is told and the command can be given again.
struct Reading {
    const char* name;
    const char* command;
    void (*prepare)(Bench&);
    void (*act)(Bench&);
    bool (*isDone)(Bench&);
};
void PrintTo(const Reading& reading, std::ostream* out) { *out << reading.name; }

class GuastiComandi : public ::testing::TestWithParam<Reading> {};

TEST_P(GuastiComandi, AFailureIsToldAndTheCommandGivenAgainEndsIt) {
    int all = 0;
    {
        Bench bench(laid());
        GetParam().prepare(bench);
        all = operationsOf(bench.failing, [&] { GetParam().act(bench); });
        EXPECT_TRUE(GetParam().isDone(bench));
    }
    EXPECT_GE(all, 2);
    atEveryOperation({std::string("frmModStraord.") + GetParam().command, "reads"}, all, [&](int n) {
        Bench bench(laid());
        GetParam().prepare(bench);
        bench.desk.told.clear();
        failingOnce(bench.failing, n, [&] { GetParam().act(bench); });
        EXPECT_THAT(bench.desk.told, Contains("Errore"));
        EXPECT_FALSE(GetParam().isDone(bench));
        GetParam().act(bench);
        EXPECT_TRUE(GetParam().isDone(bench));
    });
}

const Reading readings[] = {
    {"Search", "cmdRicerca",
     [](Bench& bench) {
         bench.open();
         bench.type("txtSonoDip", "1");
     },
     [](Bench& bench) { bench.click("cmdRicerca"); },
     [](Bench& bench) { return bench.screen->txtNameDip.text() == "BIANCHI ANNA"; }},
    {"Conferma", "cmdRicalcola",
     [](Bench& bench) {
         bench.callUp("1");
         bench.press("Frame1");
         bench.type("txtPag1Df", "10");
         bench.enter("txtTotale1");
         bench.leave();
     },
     [](Bench& bench) { bench.click("cmdRicalcola"); }, [](Bench& bench) { return bench.screen->cmdSalva.enabled(); }},
    {"Names", "Check11", [](Bench& bench) { bench.open(); }, [](Bench& bench) { bench.tick("Check11"); },
     [](Bench& bench) { return bench.screen->Check11.checked() && bench.screen->cmbNome.items().size() == 2; }},
    {"List", "cmdRicerca2", [](Bench& bench) { bench.open(); }, [](Bench& bench) { bench.click("cmdRicerca2"); },
     [](Bench& bench) { return bench.screen->MSFlexGrid1.rows() == 3; }},
    {"Rates", "cmdTariffe", [](Bench& bench) { bench.callUp("1"); }, [](Bench& bench) { bench.click("cmdTariffe"); },
     [](Bench& bench) { return bench.screen->Frame26.visible(); }},
    {"States", "mnuAutoriz", [](Bench& bench) { bench.open(); }, [](Bench& bench) { bench.menu("mnuAutoriz"); },
     [](Bench& bench) { return bench.screen->Frame24.visible(); }},
    {"AuthorisedHours", "txtNf1Per",
     [](Bench& bench) {
         EXPECT_TRUE(lay(bench.disk, bench.path("Meirin.vbn"), limitsBytes({0, 0, 0})));
         bench.callUp("1");
         bench.press("Frame1");
     },
     [](Bench& bench) {
         bench.enter("txtNf1Per");
         bench.leave();
     },
     [](Bench& bench) { return bench.screen->cmdRicalcola.enabled(); }},
};

INSTANTIATE_TEST_SUITE_P(Commands, GuastiComandi, ::testing::ValuesIn(readings),
                         [](const auto& reading) { return std::string(reading.param.name); });

}  // namespace
}  // namespace vorbano::test
