#pragma once

// An authorised election laid out byte by byte, and a clerk who liquidates it.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "overtime/frmModStraord.h"
#include "support/expected_tariffs.h"
#include "support/laid_out_records.h"
#include "support/screen_desk.h"

namespace vorbano::test {

using Three = std::array<int, 3>;

inline std::string threeLe16(const Three& numbers) { return le16(numbers[0]) + le16(numbers[1]) + le16(numbers[2]); }
inline int total(const Three& numbers) { return numbers[0] + numbers[1] + numbers[2]; }

/// An employee on paper. Amounts in cents, in the order of the record from the amount due on, without the percentages.
struct Person {
    int number = 1;
    std::string name = "BIANCHI ANNA";
    std::array<Three, 3> authorised{{{20, 10, 2}, {8, 4, 0}, {0, 0, 0}}};
    std::array<Three, 3> paid{};
    int used = 0;
    Three executed{};
    int totEseg = 0;
    std::string grade = "D3";
    std::array<int, 3> rates{1234, 1555, 1790};
    std::array<int, 4> percentages{2380, 850, 880, 35};
    std::array<int, 7> amounts{};  ///< Dovuto, CpStato, Irap, TotaleSpesa, CpDip, FonCre, TotaleContr
    std::array<std::array<std::string, 2>, 3> dates{
        {{"15-04-24", "14-05-24"}, {"15-05-24", "24-05-24"}, {"//      ", "//      "}}};
    int authorisedLate = 0;  ///< hours of a fourth and fifth period in the total

    [[nodiscard]] std::string bytes() const {
        std::string record = le16(40) + le16(used) + le16(280) + le16(373) + le16(number) + le16(7) + padded(name, 60);
        int totAut = authorisedLate;
        for (std::size_t at = 0; at < 3; ++at) {
            record +=
                dates[at][0] + dates[at][1] + threeLe16(authorised[at]) + threeLe16(paid[at]) + le16(total(paid[at]));
            totAut += total(authorised[at]);
        }
        record += le16(totAut) + threeLe16(executed) + le16(totEseg);
        return record + padded(grade, 7) + padded("-", 10) + payBytes();
    }
    [[nodiscard]] std::string payBytes() const {
        const auto cents = [](int count) { return amount(0, count); };
        std::string pay;
        for (const int rate : rates) pay += cents(rate);
        return pay + cents(amounts[0]) + cents(percentages[0]) + cents(amounts[1]) + cents(percentages[1]) +
               cents(amounts[2]) + cents(amounts[3]) + cents(percentages[2]) + cents(amounts[4]) +
               cents(percentages[3]) + cents(amounts[5]) + cents(amounts[6]);
    }
    /// Ten weekday hours at 12,34 and three at 15,55 in the first period: 123,40 + 46,65 = 170,05, of which 23,80 % is
    /// 40,47, 8,50 % is 14,45, 8,80 % is 14,96 and 0,35 % is 0,60.
    [[nodiscard]] Person liquidated() const {
        Person done = *this;
        done.paid[0] = {10, 3, 0};
        done.executed = {10, 3, 0};
        done.totEseg = 13;
        done.amounts = {17005, 4047, 1445, 5492, 1496, 60, 1556};
        return done;
    }
    [[nodiscard]] Person withUsed(int hours) const {
        Person other = *this;
        other.used = hours;
        return other;
    }
};

inline Person first() { return {}; }
inline Person second() {
    return {.number = 2, .name = "ROSSI MARIO", .authorised = {{{15, 5, 0}, {5, 5, 2}, {0, 0, 0}}}};
}
/// Of the same name as the second.
inline Person third() {
    return {.number = 3, .name = "ROSSI MARIO", .authorised = {{{10, 0, 0}, {6, 3, 1}, {0, 0, 0}}}};
}
inline std::string staffOf(const std::vector<Person>& people) {
    std::string bytes;
    for (const Person& person : people) bytes += person.bytes();
    return bytes;
}

/// Averages 40, 13, 0 and pools 280, 93, 0 of the first three periods, 15 and 103, 22 and 154 of the others.
inline std::string limitsBytes(const Three& states = {1, 1, 1}, int state4 = 1, int state5 = 1, int irpef = 0,
                               int inail = 0, int uno = 0, int due = 0) {
    return amount(0, irpef) + "16-07-24" + amount(0, inail) + threeLe16({40, 13, 0}) + threeLe16({280, 93, 0}) +
           threeLe16(states) + le16(15) + le16(103) + le16(state4) + amount(0, uno) + le16(22) + le16(154) +
           le16(state5) + amount(98, 76) + "16-08-24" + amount(0, due);
}

class LiquidationTest : public ScreenDesk<frmModStraord> {
  protected:
    std::string type_ = "Europee";
    std::string date_ = "09-06-24";

    [[nodiscard]] std::string pathOf(const std::string& name) const {
        return "Elezioni/" + type_ + "/" + date_ + "/" + name;
    }
    std::string stored(const std::string& name) { return contentOf(files, pathOf(name)); }
    /// Record `number` of the employee file.
    std::string employee(int number) {
        return stored(date_ + ".vbn").substr(static_cast<std::size_t>(number - 1) * 301, 301);
    }

    void layStaff(const std::vector<Person>& people) {
        ASSERT_TRUE(lay(files, pathOf(date_ + ".vbn"), staffOf(people)));
    }
    void layLimits(const std::string& bytes) { ASSERT_TRUE(lay(files, pathOf("Meirin.vbn"), bytes)); }
    void layRates() {
        ASSERT_TRUE(lay(files, "Params/Conprev.dat", amount(23, 80) + amount(8, 50) + amount(8, 80) + amount(0, 35)));
        ASSERT_TRUE(lay(files, "Params/PmDip.dat", tariffBytes(" ", distinctCents)));
    }
    /// Three employees, two periods in liquidation.
    void layElection() {
        layStaff({first(), second(), third()});
        layLimits(limitsBytes());
        layRates();
    }
    void name() {
        choose("Combo1", type_);
        type("txtDataEle", date_);
    }
    /// The screen, with employee `number` called up.
    void callUp(const char* number = "1") {
        open();
        name();
        type("txtSonoDip", number);
        click("cmdRicerca");
    }
    void hours(const Three& numbers, const std::array<std::string, 3>& fields) {
        for (std::size_t kind = 0; kind < fields.size(); ++kind) type(fields[kind], std::to_string(numbers[kind]));
    }
    static std::array<std::string, 3> paidOf(int period) {
        const std::string stem = "txtPag" + std::to_string(period);
        return {stem + "Df", stem + "Nf", stem + "NeF"};
    }
    static std::array<std::string, 3> authorisedOf(int period) {
        const std::string of = std::to_string(period);
        return {"txtAutFer" + of + "Per", "txtAutFes" + of + "Per", "txtNf" + of + "Per"};
    }
    static std::string frameOf(int period) {
        return std::array{"Frame1", "Frame4", "Frame5", "Frame28", "Frame10"}.at(static_cast<std::size_t>(period - 1));
    }
    /// Opens the period, types the paid hours and leaves the total.
    void pay(int period, const Three& numbers) {
        press(frameOf(period));
        hours(numbers, paidOf(period));
        enter("txtTotale" + std::to_string(period));
        leave();
    }
    /// Opens the period, types the authorised hours and leaves the third field.
    void authorise(int period, const Three& numbers) {
        press(frameOf(period));
        hours(numbers, authorisedOf(period));
        leave();
    }
    /// Nobody else can be called up, and the election cannot be changed.
    void expectHeld(bool held) {
        for (const char* each :
             {"Combo1", "Combo2", "txtDataEle", "txtSonoDip", "cmdRicerca", "Check11", "cmdRicerca2", "cmdPrimo",
              "cmdPrecedente", "cmdSuccessivo", "cmdUltimo", "cmdInserimento", "cmdAnnulla3", "Check1"}) {
            EXPECT_EQ(enabled(each), !held) << each;
        }
        EXPECT_EQ(screen->cmbNome.enabled(), !held);
    }
    /// Fields of a period that the clerk can change.
    std::vector<std::string> openFields() {
        std::vector<std::string> names;
        for (int period = 1; period <= 5; ++period) {
            for (const auto& fields : {authorisedOf(period), paidOf(period)}) {
                for (const std::string& field : fields) {
                    if (operable(field)) names.push_back(field);
                }
            }
            if (operable("txtTotale" + std::to_string(period))) names.push_back("txtTotale" + std::to_string(period));
        }
        return names;
    }
};

}  // namespace vorbano::test
