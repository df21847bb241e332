#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "reports/heading.h"
#include "reports/overtime_rows.h"
#include "reports/station_documents.h"
#include "screens/workplace.h"

namespace vorbano {

/// "Stampe": the election is chosen and searched for, and what its files hold decides which documents can be asked for.
/// Each family of documents has its own file; this is only the screen.
struct frmTutteStampe {
    Form form{"frmTutteStampe", "Stampe"};
    MenuEntry mnuEsci{form, "mnuEsci", "Esci"};

    ComboBox Combo1{form, "Combo1"};  ///< types, as the folders tell them
    ComboBox Combo4{form, "Combo4"};  ///< dates of the type
    TextBox txtDataEle{form, "txtDataEle", 10};
    Button cmdAnteprima{form, "cmdAnteprima", "Ricerca"};
    Button cmdRiavvia{form, "cmdRiavvia", "Annulla Ricerca"};

    CheckBox Check5{form, "Check5", "Tutti"};
    CheckBox Check6{form, "Check6", "1° periodo"};
    CheckBox Check7{form, "Check7", "2° periodo"};
    CheckBox Check8{form, "Check8", "3° periodo"};
    CheckBox Check9{form, "Check9", "4° periodo"};    ///< visible: the election has a fourth period
    CheckBox Check10{form, "Check10", "5° periodo"};  ///< visible: the election has a fifth period

    Button cmdImpegno{form, "cmdImpegno", "IMPEGNO DI SPESA"};
    Button cmdDetermina{form, "cmdDetermina", "LIQUIDAZIONE PER DETERMINAZIONE"};
    Button cmdLRendiconto{form, "cmdLRendiconto", "LIQUIDAZIONE PER RENDICONTO"};
    Button cmdRendiconto{form, "cmdRendiconto", "RENDICONTO"};
    Button cmdContributi{form, "cmdContributi", "CONTRIBUTI E RITENUTE (allegato A)"};

    /// What an adjustment of rates adds; there when the election has one.
    Frame Frame3{form, "Frame3", "Conguaglio"};
    Button cmdConguaglio{Frame3, "cmdConguaglio", "CONGUAGLIO"};
    Button cmdCongA{Frame3, "cmdCongA", "Contributi e ritenute conguaglio (Allegato A)"};
    Button cmdCongRend{Frame3, "cmdCongRend", "CONGUAGLIO RENDICONTO"};

    /// Stations and round of the documents of the stations: two pairs, in each of which one clears the other.
    CheckBox Check1{form, "Check1", "Normali"};
    CheckBox Check2{form, "Check2", "Speciali"};
    CheckBox Check3{form, "Check3", "1° Turno"};
    CheckBox Check4{form, "Check4", "Ballottaggio"};
    TextBox txtSeggiSu{form, "txtSeggiSu"};    ///< number of normal stations in the round chosen
    TextBox txtSpeciali{form, "txtSpeciali"};  ///< number of special ones

    Button cmdRSeggi{form, "cmdRSeggi", "RIEPILOGO SEGGI"};
    Button cmdSSeggio{form, "cmdSSeggio", "ANTEPRIMA SINGOLO SEGGIO"};
    Button cmdTSeggi{form, "cmdTSeggi", "STAMPA TUTTI I SEGGI"};
    /// The panels of one station: which one, of those on file.
    Frame Frame1{form, "Frame1", "Seggio normale"};
    ComboBox Combo3{Frame1, "Combo3"};
    Button cmdStampa{Frame1, "cmdStampa", "Anteprima"};
    Frame Frame2{form, "Frame2", "Seggio speciale"};
    ComboBox Combo2{Frame2, "Combo2"};
    Button cmdStampaSpeciali{Frame2, "cmdStampaSpeciali", "Anteprima"};

    HiddenLabel lblElezione{form, "lblElezione"};  ///< heading of the documents: election
    HiddenLabel lbldata{form, "lbldata"};          ///< date
    HiddenLabel lblAggio{form, "lblAggio"};        ///< edition of the program
    HiddenLabel Label7{form, "Label7"};            ///< "1": no special stations
    HiddenLabel Label8{form, "Label8"};            ///< number of normal stations
    HiddenLabel Label9{form, "Label9"};            ///< number of special stations
    HiddenLabel Label10{form, "Label10"};          ///< number of normal stations of the run-off
    HiddenLabel Label11{form, "Label11"};          ///< number of special stations of the run-off
    HiddenLabel Label12{form, "Label12"};          ///< "1": no normal stations in the run-off
    HiddenLabel Label13{form, "Label13"};          ///< "1": special stations in the run-off

    explicit frmTutteStampe(const Workplace& workplace);

    void Combo1_Click();
    void Combo4_Click();
    void cmdAnteprima_Click();
    void cmdRiavvia_Click();
    void cmdImpegno_Click();
    void cmdDetermina_Click();
    void cmdLRendiconto_Click();
    void cmdRendiconto_Click();
    void cmdContributi_Click();
    void cmdConguaglio_Click();
    void cmdCongA_Click();
    void cmdCongRend_Click();
    void cmdRSeggi_Click();
    void cmdSSeggio_Click();
    void cmdTSeggi_Click();
    void cmdStampa_Click();
    void cmdStampaSpeciali_Click();
    void mnuEsci_Click();

  private:
    /// One file of the election that the search looks into, and what it says and lights.
    struct SearchedFile {
        std::string_view name;            ///< "" is the employee record file
        std::size_t width = 0;            ///< record length in bytes
        HiddenLabel* stations = nullptr;  ///< takes the number of stations in the first record
        HiddenLabel* flag = nullptr;      ///< says whether the file is empty, with these two values
        std::string_view empty = {};
        std::string_view filled = {};
        std::vector<Control*> lights = {};  ///< enabled when the file is not empty
        std::vector<CheckBox*> ticks = {};  ///< ticked when the file is not empty
        std::vector<Control*> shows = {};   ///< visible when the file is not empty
    };
    /// What the first record of a searched file says.
    struct Seen {
        bool filled = false;
        int stations = 0;
    };

    void asAtLoad();
    void TipoElezioni();
    void Elezioni();
    void onlyPeriod(const CheckBox& ticked);
    void hangStations();
    void stationsAsAtLoad();
    void stationBoxTicked(const CheckBox& box);
    /// The numbers of stations in the round chosen; the panels go, as what they offer belonged to another choice.
    void showStationCounts();
    /// What the two pairs of boxes say; tells the clerk when one of them says nothing.
    std::optional<StationChoice> chosenStations();
    void ElencaSeggi(StationChoice choice);
    void ElencaSpeciali(StationChoice choice);
    void listStations(ComboBox& list, StationChoice choice);
    void printChosenStation(StationKind kind, ComboBox& list, const TextBox& count);
    [[nodiscard]] std::vector<SearchedFile> searchedFiles();
    /// What is shown for an election with an adjustment.
    [[nodiscard]] std::vector<Control*> adjustmentCommands();
    [[nodiscard]] Result<Seen> lookInto(const SearchedFile& file);
    void show(const SearchedFile& file, const Seen& seen);
    void showLatePeriods();
    void tellMissing(const Error& error);
    /// Whether kind and date are there; tells the clerk when not.
    bool electionGiven();
    /// The period whose box is ticked, 1 to 5; `allPeriods` when none is.
    [[nodiscard]] int chosenPeriod() const;
    [[nodiscard]] Election election() const;
    [[nodiscard]] LatePeriods latePeriods() const { return {Check9.visible(), Check10.visible()}; }
    [[nodiscard]] Heading heading() const { return {lblElezione.text(), lbldata.text(), lblAggio.text()}; }

    Workplace desk_;
    /// Documents made from the overtime; they light together.
    std::array<Button*, 3> overtimeCommands_{&cmdImpegno, &cmdDetermina, &cmdLRendiconto};
    std::array<CheckBox*, 6> periodBoxes_{&Check5, &Check6, &Check7, &Check8, &Check9, &Check10};
    std::array<CheckBox*, 4> stationBoxes_{&Check1, &Check2, &Check3, &Check4};
    std::array<Button*, 3> stationCommands_{&cmdRSeggi, &cmdSSeggio, &cmdTSeggi};
};

}  // namespace vorbano
