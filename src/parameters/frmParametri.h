#pragma once

#include <array>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "parameters/rate_entry.h"
#include "platform/form.h"
#include "records/tariff_records.h"
#include "screens/workplace.h"

namespace vorbano {

/// The one screen where rates and percentages are entered: a tab each for the staff, the municipal secretaries and the
/// contributions. A tab is locked until the clerk opens a row, or all; saving the staff's rates locks them again.
struct frmParametri {
    /// One percentage: the box that opens it, and its field.
    struct Percentage {
        CheckBox box;
        TextBox field;

        Percentage(Container& page, std::string_view boxName, std::string_view caption, std::string_view fieldName)
            : box(page, std::string(boxName), std::string(caption)), field(page, std::string(fieldName)) {
            field.enabled = false;
        }
    };

    Form form{"frmParametri", "Vorbano   Parametri di riferimento"};
    Label Label26{form, "Label26"};        ///< the banner: which version of the tariffs is in force
    HiddenLabel Label28{form, "Label28"};  ///< "N" keeps cmdSalva off when a row is opened
    HiddenLabel Label30{form, "Label30"};  ///< mark of the version last loaded by a version command
    HiddenLabel Label31{form, "Label31"};  ///< mark of the table on show
    TabPanel SSTab1{form, "SSTab1"};
    TabPage staffPage{SSTab1, 0};
    TabPage secretariesPage{SSTab1, 1};
    TabPage contributionsPage{SSTab1, 2};

    CheckBox Check20{staffPage, "Check20", "Attiva modifiche di tutti i parametri"};
    std::deque<RateRow> rows;  ///< the 32 rows in record order
    Button cmdSalva{staffPage, "cmdSalva", "Salva modifiche"};
    Button cmdStampa{staffPage, "cmdStampa", "Stampa"};

    CheckBox Check21{secretariesPage, "Check21", "Attiva modifiche di tutti i parametri"};
    std::deque<RateRow> secretaries;  ///< the five rows in record order
    Button cmdSalva1{secretariesPage, "cmdSalva1", "Salva modifiche"};
    Button cmdStampa1{secretariesPage, "cmdStampa1", "Stampa"};

    CheckBox Check26{contributionsPage, "Check26", "Attivazione modifica di tutti i contributi"};
    std::deque<Percentage> percentages;  ///< the four of the record, in its order
    Button cmdSalva2{contributionsPage, "cmdSalva2", "Salva modifiche"};

    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    explicit frmParametri(const Workplace& workplace);

    void Form_Activate();
    void SSTab1_Click();
    void Label31_Change();
    void mnuEsci_Click();

    void Check20_Click();
    void cmdSalva_Click();
    void cmdStampa_Click();

    void Check21_Click();
    void cmdSalva1_Click();
    void cmdStampa1_Click();

    void Check26_Click();
    void cmdSalva2_Click();

    /// The screen to NewPmDip.dat, with the mark "/" in all rows; to OldPmDip.dat, with "\". They tell a failure.
    void salvanuove();
    void salvavecchie();

  private:
    void makeStaffPage();
    void makeSecretariesPage();
    void makeContributionsPage();

    void loadStaff();
    void loadSecretaries();
    void loadContributions();

    void openStaffRow(RateRow& row);
    void openSecretaryRow(RateRow& row);
    void openPercentage(Percentage& percentage);
    void lockStaff();

    /// The rates typed in a row, to cents; nothing when a text is no number, which the clerk has then been told.
    std::optional<Rates> ratesOf(RateRow& row);
    /// The 32 rows as shown, with the mark; nothing as for `ratesOf`.
    std::optional<TariffTable> tableOnScreen(std::string_view mark);
    /// `where` names the place of the field.
    void refuse(const std::string& where, CheckBox& box, TextBox& field);
    void say(std::string_view text);

    /// Fills a staging table, runs the layout over it, and empties the table whatever happened.
    void print(std::string_view table, const std::vector<Row>& lines, std::string_view layout);
    /// The three fields of a row as a printed line under the names of `columns`; nothing when a text is no number.
    std::optional<Row> printedLine(RateRow& row, const std::array<std::string_view, 3>& columns);

    Workplace desk_;
    bool opened_ = false;
};

}  // namespace vorbano
