#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fiscalcode/place_list.h"
#include "platform/form.h"
#include "records/station_files.h"
#include "screens/workplace.h"
#include "stations/fee_proposal.h"
#include "stations/member_grid.h"
#include "storage/election.h"

namespace vorbano {

/// In what the entry of the special stations differs from that of the normal ones. Every difference is deliberate: the
/// office knows its screens by them. Roles, record file and file of tariffs follow from the kind.
struct StationEntryRules {
    std::string_view form;
    std::string_view caption;
    StationKind kind;
    /// The clerk types the number of each station, and stations are counted; else they are numbered from 1, and the
    /// highest number counts.
    bool typesNumbers;
    std::string_view tariff;  ///< name of the field for the type whose tariff is applied
    std::string_view abroad;  ///< name of the box "Estero"
    std::string_view activated;
    /// A Yes to fewer stations opens the entry; else the command ends with the change.
    bool goesOnAfterReduction;
    /// The question about an election that is already in store: before the number of the last station. The list of the
    /// stations entered stands in it when their numbers are typed.
    std::string_view lastStation;
    std::string_view stationDoneTitle;
    std::string_view entryDone;
    std::string_view entryDoneTitle;
};
inline constexpr StationEntryRules normalEntry = {
    "frmSeggi",
    "Vorbano   Componenti dei Seggi",
    StationKind::normal,
    false,
    "txtTariffe",
    "Check2",
    "ATTIVATO",
    true,
    "l'ultimo seggio inserito è il n. ",
    "Inserimento seggi",
    "INSERIMENTO SEGGI TERMINATO",
    "Seggi normali 1° turno",
};
inline constexpr StationEntryRules specialEntry = {
    "frmSeggiSpeciali",
    "Vorbano   Componenti dei Seggi Speciali",
    StationKind::special,
    true,
    "Combo2",
    "Check1",
    "ATTIVO",
    false,
    "l'ultimo seggio Speciale inserito è il n. ",
    "Inserimento seggi Speciali",
    "Inserimento Componenti dei seggi terminato",
    "Inserimento seggi",
};

/// Entry of the members of polling stations, one after another and station after station, each stored at once: the
/// screens of the normal and of the special stations. The file is the only memory of how far the clerk has come, so an
/// entry can stop after any member and be taken up again. A screen adds what it alone has, and says what follows when a
/// station or the entry is complete.
///
/// Its procedures stand in files by theme: station_entry.cpp (loading, what is enabled when), _attiva (election, taking
/// up again), _componente (fields of a member), _salva (storing).
struct StationEntry {
    Form form;
    ComboBox Combo1{form, "Combo1"};
    TextBox txtDataEle{form, "txtDataEle", 10};
    TextBox txtSeggio{form, "txtSeggio", 5};  ///< stations of the election, or special stations to be entered
    Button cmdAttiva{form, "cmdAttiva", "Attiva"};
    TextBox txtSonoSeggio{form, "txtSonoSeggio", 5};  ///< number of the station in work
    TextBox txtComposto{form, "txtComposto", 5};      ///< its members
    TextBox tariff;                                   ///< type of election whose tariff is applied
    Label Label3{form, "Label3"};                     ///< place of the member in the station, from 1

    TextBox txtCompo1{form, "txtCompo1", 30};  ///< surname
    TextBox txtNome1{form, "txtNome1", 30};
    TextBox txtIndi1{form, "txtIndi1", 60};
    TextBox txtNasco1{form, "txtNasco1", 10};  ///< date of birth
    CheckBox abroad;                           ///< before the place: it decides where the place is looked for
    TextBox txtDove1{form, "txtDove1"};        ///< place of birth
    TextBox txtProvincia{form, "txtProvincia"};
    Option Option1{form, "Option1", "Femmina"};
    Option Option2{form, "Option2", "Maschio"};
    TextBox txtQualifica1{form, "txtQualifica1", 10};  ///< role, as the place tells
    TextBox txtSiNo1{form, "txtSiNo1", 2};             ///< took part
    TextBox txtCodFisc1{form, "txtCodFisc1", 16};
    TextBox txtOnor1{form, "txtOnor1", 15};  ///< fee
    Button cmdSalva{form, "cmdSalva", "Salva"};
    Grid MSFlexGrid1{form, "MSFlexGrid1", memberHeading()};

    HiddenLabel Label16{form, "Label16"};  ///< "INS" while the code in the field stands refused
    /// What the fiscal code is worked out from, as it was left in the fields; birth and sex are stored nowhere.
    HiddenLabel txtCognome{form, "txtCognome"};
    HiddenLabel txtNome{form, "txtNome"};
    HiddenLabel txtDataNascita{form, "txtDataNascita"};
    HiddenLabel txtSesso{form, "txtSesso"};
    HiddenLabel Text3{form, "Text3"};  ///< code of the place
    HiddenLabel Text2{form, "Text2"};  ///< its province
    HiddenLabel txtCodiceFiscale{form, "txtCodiceFiscale"};

    /// `rules` outlive the screen.
    StationEntry(const StationEntryRules& rules, const Workplace& workplace);
    StationEntry(const StationEntry&) = delete;
    StationEntry& operator=(const StationEntry&) = delete;
    virtual ~StationEntry() = default;

    void cmdAttiva_Click();
    void txtSonoSeggio_LostFocus();
    void txtComposto_LostFocus();
    void Label3_Change();
    void txtNasco1_LostFocus();
    void abroad_Click();
    void txtDove1_LostFocus();
    void txtSiNo1_LostFocus();
    void txtCodFisc1_GotFocus();
    void txtCodFisc1_LostFocus();
    void txtOnor1_GotFocus();
    void txtOnor1_LostFocus();
    void txtCodiceFiscale_Change();
    void cmdSalva_Click();

  protected:
    using Members = std::vector<MemberRecord>;
    enum class Stage : std::uint8_t {
        idle,         ///< no election
        entry,        ///< a station is being entered; at place 1 its size and tariff too
        stationDone,  ///< all its members are stored, and the next one has not begun
        finished,
    };
    /// A member of the grid is called up again; only the normal screen does so.
    enum class Correction : std::uint8_t { none, choosing, loaded };

    // What a screen does in its own way.
    virtual Label& Label64() = 0;  ///< the place, as the counter of the grid
    /// The file of an election has records, and they are these.
    virtual void electionFound(const Members& members) = 0;
    virtual void entryStarted() = 0;
    /// `newStation`: the last station of the file is complete, and the next one begins.
    virtual void entryResumed(bool newStation) = 0;
    [[nodiscard]] virtual bool isLastStation() const = 0;
    /// The last member of a station was stored, and nothing told yet.
    virtual void stationCompleted() = 0;
    virtual void entryCompleted() = 0;
    /// The member in the fields is one that was stored before, and goes back to its record.
    virtual void SalvaModifica() = 0;

    void go(Stage stage);
    virtual void updateEnabled();
    [[nodiscard]] Election election() const;
    /// Nobody when the election has no folder yet.
    [[nodiscard]] Result<Members> readFile() const;
    [[nodiscard]] Result<std::string> filePath() const;
    [[nodiscard]] int place() const;
    [[nodiscard]] int stationNumber() const;
    [[nodiscard]] int wantedStations() const;
    void beginStation();
    void emptyGrid(int station, int size);
    void fillGrid(const Members& members, int station, int size);
    void clearMember();
    [[nodiscard]] StationPerson personOnScreen() const;
    /// Everything of the record that is on the screen; the place is `Label3`.
    void fillRecord(MemberRecord& record) const;
    void Trecomp();
    void tellStationDone();

    const StationEntryRules& rules_;
    Workplace desk_;
    Stage stage_ = Stage::idle;
    Correction correction_ = Correction::none;
    FeeProposal fee_;
    bool tariffStands_ = false;  ///< it was chosen with the first member of the station
    int gridStation_ = 0;        ///< the station that the grid shows
    int attempted_ = 0;          ///< record number of the member in the fields, once the disk has failed to store it

  private:
    void hangProcedures();
    bool electionIsGiven();
    void startEntry();
    void resumeEntry(const Members& members);
    void reduceStations(const Members& members);
    bool wantsToGoOn(const Members& members);
    /// What a smaller number would reduce: the number of stations set, or, where they are typed, of those entered.
    [[nodiscard]] int storedStations(const Members& members) const;
    [[nodiscard]] bool isComplete(const Members& members) const;
    bool isWholeNumber(TextBox& field, std::string_view otherwise);
    bool stationIsGiven();
    Result<> store();
    [[nodiscard]] bool memberIsOpen() const;

    PlaceList places_;
    bool sentBack_ = false;  ///< the fee was left with a code that is too short
};

/// Numbers of stations as both questions list them: " n.4 -  n.7".
[[nodiscard]] std::string stationList(const std::vector<MemberRecord>& members);

}  // namespace vorbano
