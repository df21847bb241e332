#pragma once

#include <array>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "parameters/adjustment.h"
#include "parameters/dated_rates.h"
#include "parameters/election_rewrite.h"
#include "parameters/rate_entry.h"
#include "platform/form.h"
#include "records/tariff_records.h"
#include "screens/workplace.h"

namespace vorbano {

/// The one screen where rates and percentages are entered: a tab each for the staff, the municipal secretaries and the
/// contributions. A tab is locked until the clerk opens a row, or all; saving the staff's rates locks them again.
/// On the staff's tab stand also the two versions of the tariffs, with the rewriting of a stored election, and the
/// adjustment run.
///
/// Its procedures stand in files by theme: _tariffe (the staff's rates), _segretari, _contributi, _stampe, _elezione
/// (which election, and what is on show for it), _versioni (old and new tariffs), _conguaglio (the adjustment).
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
    std::deque<HiddenLabel>
        otherDay;  ///< the 32 `Day` rates of the other version, in record order; Label33 is the first
    Button cmdTarVecchie{staffPage, "cmdTarVecchie", "Vecchie tariffe"};
    Button cmdTarNuove{staffPage, "cmdTarNuove", "Nuove tariffe"};
    CheckBox Check45{staffPage, "Check45", "Aggiorna tariffe"};  ///< an election is to follow the other version
    CheckBox Check46{staffPage, "Check46", "Conguaglio"};        ///< an election is to be adjusted
    // How a version begins: as the table on show. Each is there only while its version was never saved.
    Button cmdSalvaVecchie{staffPage, "cmdSalvaVecchie", "Salva come vecchie tariffe"};
    Button cmdSalvaNuove{staffPage, "cmdSalvaNuove", "Salva come nuove tariffe"};
    Frame Frame2{staffPage, "Frame2", "Decorrenza"};  ///< on show for the adjustment
    ComboBox cboDeco{Frame2, "cboDeco", {"01/04/2008", "01/01/2009"}};
    Label lblDeco{Frame2, "lblDeco"};               ///< the date of effect in use
    Frame Frame1{staffPage, "Frame1", "Elezione"};  ///< on show while an election is chosen, or to be
    ComboBox Combo1{Frame1, "Combo1"};
    ComboBox Combo2{Frame1, "Combo2"};
    TextBox txtDataEle{Frame1, "txtDataEle", 10};
    Button cmdAggTar{Frame1, "cmdAggTar", "Aggiorna tariffe"};
    Button cmdCrea{Frame1, "cmdCrea", "Elabora conguaglio"};
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

    // The two versions of the tariffs.
    void cmdTarNuove_Click();
    void cmdTarVecchie_Click();
    void Check45_Click();
    void cmdAggTar_Click();
    /// The screen to PmDip.dat, with the mark of the version last loaded.
    void applica();
    /// The `Day` rates of OldPmDip.dat, or of NewPmDip.dat without its last ten rows, to the hidden labels. False when
    /// the disk failed, which the clerk has then been told.
    bool listaold();
    bool listanuove();
    /// The election named on the screen to the tariffs on show, when those are the new ones; when they are the old
    /// ones.
    void aggiorna();
    void aggiorna2();
    /// Deliberately does nothing.
    static void lista() {}

    // The election that is rewritten or adjusted.
    void Combo1_Click();
    void Combo2_Click();

    // The adjustment.
    void Check46_Click();
    void cboDeco_Click();
    void lblDeco_Change();
    void cmdCrea_Click();
    /// The screen's rates to PmDipc.dat as the block of the date of effect.
    void Conguagli();
    /// The block of the date of effect to the screen.
    void Conguaglia();
    /// The second run of a joint election; false when it came to nothing, which the clerk has then been told.
    bool Conguaglio1();

    void Check21_Click();
    void cmdSalva1_Click();
    void cmdStampa1_Click();

    void Check26_Click();
    void cmdSalva2_Click();

    /// The screen to NewPmDip.dat, with the mark "/" in all rows; to OldPmDip.dat, with "\". They tell a failure; with
    /// the version saved, the command that begins it goes.
    void salvanuove();
    void salvavecchie();

  private:
    void makeStaffPage();
    void makeVersions();
    void makeElectionPanels();
    void makeSecretariesPage();
    void makeContributionsPage();

    void loadStaff();
    void loadSecretaries();
    void loadContributions();

    /// Neither an update nor an adjustment keeps the tab from plain editing.
    [[nodiscard]] bool plainEditing() const { return !Check45.checked() && !Check46.checked(); }
    /// What is on show and enabled for the update, the adjustment, or neither.
    void showMode();
    /// The lists as for a first choice; nothing is chosen.
    void offerElections();
    void forgetElection();

    bool showVersion(std::string_view file, std::string_view mark);
    void offerFirstVersions();
    void enableVersions(bool enabled);
    bool electionIsNamed();
    bool listDayRates(std::string_view file, std::size_t count);
    void rewriteStored(const RewriteDirection& direction);

    void openStaffRow(RateRow& row);
    void openSecretaryRow(RateRow& row);
    void openPercentage(Percentage& percentage);
    void lockStaff();
    void closeStaff();
    void showStaff(const TariffTable& table);
    /// The rates on show to one of the three files of the table; false when that was not to be, which the clerk has
    /// been told.
    bool storeStaff(std::string_view file, std::string_view mark);

    /// The rates typed in a row, to cents; nothing when a text is no number, which the clerk has then been told.
    std::optional<Rates> ratesOf(RateRow& row);
    /// Those of the 32 rows, as typed.
    std::optional<RateTable> ratesOnScreen();
    /// The 32 rows as shown, with the mark; nothing as for `ratesOf`.
    std::optional<TariffTable> tableOnScreen(std::string_view mark);
    /// The rates on show are no longer those of a date of effect: neither the date nor the banner says so.
    void leaveDateOfEffect();
    /// One run over the election at the rates on the screen; false as for `Conguaglio1`.
    bool adjust(const AdjustmentRun& run);
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
