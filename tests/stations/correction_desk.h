#pragma once

// The correction screens on a desk of their own, and their files laid out record by record.

#include <string>
#include <string_view>
#include <vector>

#include "stations/frmModSeggi.h"
#include "stations/frmModSpeciale.h"
#include "support/bytes.h"
#include "support/laid_out_records.h"
#include "support/screen_desk.h"

namespace vorbano::test {

/// One person of a station, as the records have them.
struct Who {
    int station, composto, ordine;
    const char *cognome, *nome, *indirizzo, *qualifica, *codice;
    int cents;
    const char* tariffa = "Europee";
    const char* siNo = "SI";
    int seggi = 3;
};

[[nodiscard]] inline std::string memberBytes(const Who& who) {
    return Sheet(216)
        .at(0, padded("Europee", 14))
        .at(14, "09-06-24")
        .integersAt(22, {who.seggi, who.station, who.composto})
        .at(28, padded(who.tariffa, 30))
        .integersAt(58, {who.ordine})
        .at(60, padded(who.cognome, 30))
        .at(90, padded(who.nome, 30))
        .at(120, padded(who.indirizzo, 60))
        .at(180, padded(who.qualifica, 10))
        .at(190, who.siNo)
        .at(192, padded(who.codice, 16))
        .at(208, amount(0, who.cents))
        .bytes();
}
/// `replaced`: the place of the member.
[[nodiscard]] inline std::string substituteBytes(const Who& who, int replaced) {
    return Sheet(218)
        .at(0, padded("Europee", 14))
        .at(14, "09-06-24")
        .integersAt(22, {who.seggi, who.station, replaced, who.composto})
        .at(30, padded(who.tariffa, 30))
        .integersAt(60, {who.ordine})
        .at(62, padded(who.cognome, 30))
        .at(92, padded(who.nome, 30))
        .at(122, padded(who.indirizzo, 60))
        .at(182, padded(who.qualifica, 10))
        .at(192, who.siNo)
        .at(194, padded(who.codice, 16))
        .at(210, amount(0, who.cents))
        .bytes();
}

inline constexpr Who bellini = {
    1, 4, 1, "BELLINI", "ANTONELLA", "Via Garibaldi 3", "Presidente", "BLLNNL60A41H501X", 13'800};
inline constexpr Who conti = {1, 4, 2, "CONTI", "RAFFAELE", "Via Roma 12", "Segretario", "CNTRFL71C05F205K", 11'040};
inline constexpr Who amico = {1,    4, 3, "D'AMICO", "NICOL\xD2", "Piazza Mazzini 7", "Scrutatore", "DMCNCL80E12F205Q",
                              9'600};
inline constexpr Who ferrari = {1,    4, 4, "FERRARI", "LUISA", "Via dei Tigli 24", "Scrutatore", "FRRLSU85H52H501W",
                                9'600};
inline constexpr Who galli = {2, 2, 1, "GALLI", "PIERO", "Via Verdi 1", "Presidente", "GLLPRI58B20H501Z", 13'800};
inline constexpr Who longo = {2, 2, 2, "LONGO", "TERESA", "Via Dante 40", "Segretario", "LNGTRS77D63F205J", 11'040};
inline constexpr Who neri = {3, 3, 1, "NERI", "ALDO", "Via Po 2", "Presidente", "NRELDA64L17F205M", 13'800};
inline constexpr Who orsini = {3, 3, 2, "ORSINI", "BIANCA", "Via Adige 9", "Segretario", "RSNBNC82R58H501P", 11'040};
inline constexpr Who pace = {3, 3, 3, "PACE", "CARLO", "Via Arno 31", "Scrutatore", "PCACRL93S03F205B", 9'600};
// Two who are not in the files yet.
inline constexpr Who sarti = {1, 4, 5, "SARTI", "DINA", "Via Nera 1", "Scrutatore", "SRTDNI79A41H501L", 4'800};
inline constexpr Who tosi = {1, 4, 6, "TOSI", "ELIO", "Via Bianca 2", "Segretario", "TSOLEI81B02H501T", 5'520};

inline const std::vector<Who> threeStations = {bellini, conti, amico, ferrari, galli, longo, neri, orsini, pace};

[[nodiscard]] inline std::string membersBytes(const std::vector<Who>& people) {
    std::string bytes;
    for (const Who& who : people) bytes += memberBytes(who);
    return bytes;
}

/// Amounts of a row of the tariff in cents.
[[nodiscard]] inline std::string feesBytes(std::string_view type, std::initializer_list<int> cents) {
    std::string row = padded(type, 20);
    for (const int each : cents) row += amount(0, each);
    return row;
}

inline const std::string folder = "Elezioni/Europee/09-06-24/";

/// What both screens are tested with.
template <class Screen>
class CorrectionTest : public ScreenDesk<Screen> {
  protected:
    std::string stored(std::string_view name) { return contentOf(this->files, folder + std::string(name)); }
    void layIn(std::string_view name, const std::string& bytes) {
        ASSERT_TRUE(lay(this->files, folder + std::string(name), bytes));
    }
    void name(std::string_view station) {
        this->choose("Combo1", "Europee");
        this->choose("Combo4", "09-06-24");
        this->type("txtSeggio", station);
    }
    void search(std::string_view station) {
        name(station);
        this->click("cmdRicerca");
    }
    void begin(std::string_view kind) {
        this->click("cmdAttiva");
        this->tick(kind);
    }
    void saved() { this->box("Componenti seggi", "Modifica effetuata"); }
    /// The row of the grid as one text, cells parted by "|".
    std::string row(int at) {
        std::string all;
        for (int column = 0; column < 7; ++column)
            all += (column == 0 ? "" : "|") + this->cell("MSFlexGrid1", at, column);
        return all;
    }
    int rows() { return dynamic_cast<Grid&>(this->control("MSFlexGrid1")).rows(); }
    std::vector<std::string> items(std::string_view list) {
        return dynamic_cast<ComboBox&>(this->control(list)).items();
    }
    /// The state after a search: nothing is being changed.
    void expectSearchState() {
        for (const char* frame : {"Frame1", "Frame2", "Frame3"}) {
            if (this->screen->form.find(frame) != nullptr) {
                EXPECT_FALSE(this->visible(frame)) << frame;
            }
        }
        EXPECT_TRUE(this->operable("cmdAttiva"));
        EXPECT_FALSE(this->visible("cmdDisattiva"));
        EXPECT_FALSE(this->operable("Check3"));
        EXPECT_FALSE(this->ticked("Check3"));
        EXPECT_FALSE(this->operable("cmdSalva"));
        EXPECT_FALSE(this->operable("cmdAnnulla1"));
    }
};

class ModSeggiTest : public CorrectionTest<frmModSeggi> {
  protected:
    ModSeggiTest() {
        EXPECT_TRUE(
            lay(files, "Params/Tarseg.dat",
                feesBytes("Comunali", {15'000, 12'000, 11'000}) + feesBytes("Europee", {13'800, 11'040, 9'600})));
        layIn("Seggi.vbn", membersBytes(threeStations));
    }
    void openAt(std::string_view station) {
        open();
        search(station);
    }
    /// The member of a row of station 1 in Frame1.
    void openMember(int at, std::string_view station = "1") {
        openAt(station);
        begin("Check3");
        pick("MSFlexGrid1", at, 1);
    }
};

}  // namespace vorbano::test
