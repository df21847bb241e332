#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "reports/heading.h"
#include "reports/overtime_rows.h"
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

    /// Stations and round of the documents of the stations; they show with the commands of those documents.
    CheckBox Check1{form, "Check1", "Seggi normali"};
    CheckBox Check2{form, "Check2", "Seggi speciali"};
    CheckBox Check3{form, "Check3", "1° turno"};
    CheckBox Check4{form, "Check4", "2° turno"};

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
    [[nodiscard]] std::vector<SearchedFile> searchedFiles();
    [[nodiscard]] Result<Seen> lookInto(const SearchedFile& file);
    void show(const SearchedFile& file, const Seen& seen);
    void showLatePeriods();
    void tellMissing(const Error& error);
    [[nodiscard]] Election election() const;
    [[nodiscard]] LatePeriods latePeriods() const { return {Check9.visible(), Check10.visible()}; }
    [[nodiscard]] Heading heading() const { return {lblElezione.text(), lbldata.text(), lblAggio.text()}; }

    Workplace desk_;
    std::array<CheckBox*, 6> periodBoxes_{&Check5, &Check6, &Check7, &Check8, &Check9, &Check10};
    std::array<CheckBox*, 4> stationBoxes_{&Check1, &Check2, &Check3, &Check4};
};

}  // namespace vorbano
