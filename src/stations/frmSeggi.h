#pragma once

#include <array>
#include <string>

#include "stations/station_entry.h"

namespace vorbano {

/// "Componenti dei Seggi": the members of the normal polling stations, first round. A member of the station in the grid
/// can be called up again and corrected.
struct frmSeggi : StationEntry {
    TextBox& txtTariffe = tariff;
    CheckBox& Check2 = abroad;
    CheckBox Check1{form, "Check1", "Modifica"};
    Label lblSelezione{form, "lblSelezione", "SELEZIONARE IL COGNOME DEL COMPONENTE PER LE MODIFICHE"};
    Button cmdInserisci{form, "cmdInserisci", "Inserisci"};
    Button cmdAnnulla{form, "cmdAnnulla", "Annulla"};
    HiddenLabel Label63{form, "Label63"};  ///< "0" when the entry is complete, else empty

    explicit frmSeggi(const Workplace& workplace);

    void cmdInserisci_Click();
    void cmdAnnulla_Click();
    void Check1_Click();
    void MSFlexGrid1_Click();

  private:
    /// What stood in the fields of a member, to be put back.
    struct Draft {
        std::array<std::string, 9> fields;
        std::array<std::string, 8> hidden;
        bool abroad = false;
        bool woman = false;
        bool man = false;
        std::string tariff;
        int attempted = 0;
    };
    [[nodiscard]] std::array<TextBox*, 9> draftFields();
    [[nodiscard]] std::array<HiddenLabel*, 8> draftLabels();
    [[nodiscard]] Draft draft();
    void putBack(const Draft& draft);
    /// Number of the record of that place in the station of the grid; 0 when there is none.
    [[nodiscard]] int recordAt(const Members& members, int place) const;
    void riprendi();

    Label& Label64() override { return counter_; }
    void electionFound(const Members& members) override;
    void entryStarted() override;
    void entryResumed(bool newStation) override;
    [[nodiscard]] bool isLastStation() const override;
    void stationCompleted() override;
    void entryCompleted() override;
    void SalvaModifica() override;
    void updateEnabled() override;

    HiddenLabel counter_{form, "Label64"};
    bool mayCorrect_ = false;  ///< the entry was taken up again, or a station is complete
    int corrected_ = 0;        ///< place of the member who was called up
    Draft entered_;            ///< what the clerk was entering when the correction began
    int nextPlace_ = 0;        ///< and at which place
};

}  // namespace vorbano
