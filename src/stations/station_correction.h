#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "records/station_files.h"
#include "records/station_tariff_records.h"
#include "screens/workplace.h"
#include "stations/person_fields.h"

namespace vorbano {

/// In what the two correction screens differ. Files and tariffs follow from the kind of station.
struct CorrectionTerms {
    std::string_view form;
    std::string_view caption;
    StationKind kind;
    bool addsAndRemoves;  ///< the members of a special station are fixed at their entry
};

/// "Modifica Componenti dei Seggi": corrects the members of one station after the entry, gives them substitutes, who
/// take a part of the fee, and, where the members are not fixed, adds and removes them. The road: search -> "Attiva
/// modifiche" -> kind of change -> row of the grid -> change -> "Salva Modifiche"; then the station is on show as after
/// the search. While a change is open no other station can be called up.
///
/// Its procedures stand in files by theme: station_correction.cpp (loading, what is enabled when, kinds of change),
/// _ricerca (search, stations, grid), _componente (a member and the substitute, fee, code), _salva (storing).
struct StationCorrection {
    Form form;

    MenuEntry mnuCodFisc{form, "mnuCodFisc", "Codice Fiscale"};
    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};  ///< types, as the folders tell them
    ComboBox Combo4{form, "Combo4"};  ///< dates of the type
    TextBox txtDataEle{form, "txtDataEle", 10};
    TextBox txtSeggio{form, "txtSeggio", 5};  ///< "Seggio n."
    Button cmdRicerca{form, "cmdRicerca", "Ricerca"};
    Button cmdAnnulla{form, "cmdAnnulla", "Annulla Ricerca"};

    ComboBox Combo3{form, "Combo3"};  ///< the stations of the election
    Button cmdPrecedente{form, "cmdPrecedente", "Precedente"};
    Button cmdSuccessivo{form, "cmdSuccessivo", "Successivo"};
    TextBox txtSeggiSu{form, "txtSeggiSu"};    ///< "Seggi costituiti"
    TextBox txtComposto{form, "txtComposto"};  ///< members of the station
    ComboBox Combo2{form, "Combo2"};           ///< row of the tariff

    Button cmdAttiva{form, "cmdAttiva", "Attiva modifiche"};
    Button cmdDisattiva{form, "cmdDisattiva", "Disattiva modifiche"};
    CheckBox Check3{form, "Check3", "modifica componente"};
    std::optional<CheckBox> Check4;  ///< "aggiungi componente"
    std::optional<CheckBox> Check5;  ///< "cancella componente"
    Label lblSelezione{form, "lblSelezione"};
    Grid MSFlexGrid1{
        form, "MSFlexGrid1", {"Nr", "Cognome e Nome", "Indirizzo", "Componente", "S/N", "Codice Fiscale", "Importo"}};

    Frame Frame1{form, "Frame1", "Modifica componente"};
    PersonFields member{Frame1, memberNames};
    CheckBox Check1{Frame1, "Check1", "Compilare il sostituto del componente"};
    CheckBox Check2{Frame1, "Check2", "Rimuovere il sostituto del componente"};
    TextBox txtSostituto{Frame1, "txtSostituto", 30};
    TextBox txtNomeS{Frame1, "txtNomeS", 30};
    TextBox txtIndirizzo2{Frame1, "txtIndirizzo2", 60};
    TextBox txtFisc2{Frame1, "txtFisc2", 16};
    TextBox txtPercent{Frame1, "txtPercent", 6};
    TextBox txtImporto2{Frame1, "txtImporto2"};

    /// A new member, and a member on the way out, with the tariff.
    struct MemberPanel {
        Frame frame;
        PersonFields person;
        TextBox tariff;
        MemberPanel(Form& form, std::string name, std::string caption, const PersonNames& names,
                    std::string tariffName);
    };
    std::optional<MemberPanel> Frame2;  ///< "AGGIUNGI COMPONENTE"
    std::optional<MemberPanel> Frame3;  ///< "CANCELLA COMPONENTE"

    Button cmdSalva{form, "cmdSalva", "Salva Modifiche"};
    Button cmdAnnulla1{form, "cmdAnnulla1", "Annulla"};

    HiddenLabel Label9{form, "Label9"};    ///< `Ordine` of the member chosen
    HiddenLabel Text1{form, "Text1"};      ///< number of the member's record
    HiddenLabel Label19{form, "Label19"};  ///< which code is awaited: "1" the member's, "0" the substitute's

    /// `terms` outlives the screen.
    StationCorrection(const CorrectionTerms& terms, const Workplace& workplace);

    void mnuCodFisc_Click();
    void mnuEsci_Click();

    // Choice of the election, search, stations.
    void Combo1_Click();
    void Combo4_Click();
    void txtDataEle_Change();
    void txtSeggio_Change();
    void cmdRicerca_Click();
    void cmdAnnulla_Click();
    void Combo3_Click();
    void cmdPrecedente_Click();
    void cmdSuccessivo_Click();

    // Kinds of change, choice of a row.
    void cmdAttiva_Click();
    void cmdDisattiva_Click();
    void Check3_Click();
    void Check4_Click();
    void Check5_Click();
    void MSFlexGrid1_Click();
    void Combo2_Click();
    void cmdAnnulla1_Click();

    // A member and the substitute.
    void Check1_Click();
    void Check2_Click();
    void txtImporto_GotFocus();
    void Text8_GotFocus();
    void txtPercent_LostFocus();
    void txtImporto2_LostFocus();
    void txtFisc_LostFocus();
    void txtFisc2_LostFocus();
    void Text9_LostFocus();

    void cmdSalva_Click();

  private:
    /// A row of the grid: a member or a substitute, by its place among those that were read, from 0.
    struct Line {
        bool substitute;
        std::size_t at;
    };
    /// The station on show.
    struct Shown {
        Election election;
        int station;
    };

    void hangProcedures();
    void hangPerson();
    void followState();
    [[nodiscard]] bool changeIsOpen() const;
    [[nodiscard]] bool hasMembers() const;
    [[nodiscard]] bool isTicked(const std::optional<CheckBox>& box) const { return box && box->checked(); }
    void clearKinds();
    void closeFrames();
    void kindTicked(CheckBox& kind);

    [[nodiscard]] Election election() const;
    void electionChanged();
    void clearStation();
    [[nodiscard]] bool readStations();
    void callUp(int station);
    void showStation(int station);
    void SosComp(std::vector<Lines>& rows);
    void step(int by);
    void showTariff(const std::string& name);

    void CompSos(std::size_t at);
    void chooseForRemoval(std::size_t at);
    void memberOf(const SubstituteRecord& substitute);
    /// The fee of the tariff for the role. False when the disk fails, which is told; a missing row is told and no
    /// failure.
    bool propose(TextBox& fee, const TextBox& role);
    void share(Currency part);
    void Aggiungi();
    /// The field that has taken it, nullptr when none waits for a code.
    Control* takeCode(const std::string& code);

    void SalvaModifica();
    [[nodiscard]] bool SalvaSos();
    [[nodiscard]] bool EliminaSos();
    void AggiungiReverse();
    void EliminaComp();

    const CorrectionTerms& terms_;
    Workplace desk_;
    std::optional<Shown> shown_;
    std::vector<MemberRecord> members_;  ///< of the whole election, as last read
    std::vector<SubstituteRecord> substitutes_;
    std::vector<Line> lines_;  ///< of the grid
    bool active_ = false;      ///< the kinds of change can be ticked
    bool loading_ = false;     ///< the program itself fills the fields
};

}  // namespace vorbano
