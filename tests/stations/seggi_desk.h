#pragma once

// The entry screens of polling stations on a desk of their own: tariffs, places, and the records of members laid out
// byte by byte.

#include <string>
#include <string_view>
#include <vector>

#include "stations/frmSeggi.h"
#include "stations/frmSeggiSpeciali.h"
#include "support/laid_out_records.h"
#include "support/screen_desk.h"

namespace vorbano::test {

/// A member on paper.
struct MemberOnPaper {
    int station = 1;
    int size = 1;
    int place = 1;
    std::string_view role = "Presidente";
    std::string_view surname = "Rossi";
    std::string_view name = "Mario";
    std::string_view address = "Via Roma, 1";
    std::string_view code = "RSSMRA80A01H501U";
    int fee = 14'900;  ///< cents
    int stations = 3;
    std::string_view tookPart = "SI";
    std::string_view tariff = "Europee";
    std::string_view type = "Europee";
};

[[nodiscard]] inline std::string memberBytes(const MemberOnPaper& member) {
    return Sheet(216)
        .at(0, padded(member.type.substr(0, 14), 14))
        .at(14, "09-06-24")
        .integersAt(22, {member.stations, member.station, member.size})
        .at(28, padded(member.tariff, 30))
        .integersAt(58, {member.place})
        .at(60, padded(member.surname, 30))
        .at(90, padded(member.name, 30))
        .at(120, padded(member.address, 60))
        .at(180, padded(member.role, 10))
        .at(190, member.tookPart)
        .at(192, padded(member.code, 16))
        .amountsAt(208, {member.fee})
        .bytes();
}

inline constexpr const char* seggiPath = "Elezioni/Europee/09-06-24/Seggi.vbn";
inline constexpr const char* specialePath = "Elezioni/Europee/09-06-24/Speciale.vbn";
inline constexpr const char* codeTooShort = "Codice Fiscale inesatto. Sono stati inseriti meno di 16 caratteri";
inline constexpr const char* notEnough = "Dati insufficienti per attivare il processo!";

[[nodiscard]] inline std::string fewerStations(int stored) {
    return "Il numero dei Seggi inserito è inferiore a quello già memorizzato (seggi n. " + std::to_string(stored) +
           "), si desidera diminuire il numero dei seggi da inserire? ";
}
[[nodiscard]] inline std::string alreadyStored(int station, int place) {
    return "Questo tipo di Elezione già è in memoria! Se si desidera continuare ad aggiungere altri dati scegliere SI. "
           "Per questo tipo di elezione l'ultimo seggio inserito è il n. " +
           std::to_string(station) + " , ed è stato inserito Fino al " + std::to_string(place) + "° componente";
}
[[nodiscard]] inline std::string specialAlreadyStored(int count, const std::string& list, int station, int place) {
    return "Questo tipo di Elezione già è in memoria!\nSeggi Speciali inseriti n. " + std::to_string(count) +
           " e sono i seggi: " + list +
           "\nSe si desidera continuare ad aggiungere altri dati scegliere SI. Per questo tipo di elezione l'ultimo "
           "seggio Speciale inserito è il n. " +
           std::to_string(station) + " , ed è stato inserito Fino al " + std::to_string(place) + "° componente";
}

/// Type, date and number are 09-06-24 of the Europee unless a test says otherwise.
template <class Screen>
class SeggiDesk : public ScreenDesk<Screen> {
  protected:
    SeggiDesk() {
        fillPlaces(this->places);
        EXPECT_TRUE(lay(this->files, "Params/Tarseg.dat",
                        padded("Comunali", 20) + amount(130) + amount(110) + amount(100) + padded("Europee", 20) +
                            amount(149) + amount(119) + amount(96, 50)));
        EXPECT_TRUE(
            lay(this->files, "Params/TarSpec.dat",
                padded("Comunali", 20) + amount(80) + amount(55) + padded("Europee", 20) + amount(90) + amount(61)));
    }

    void chooseElection(std::string_view stations = "3") {
        this->choose("Combo1", "Europee");
        this->type("txtDataEle", "9/6/24");
        this->type("txtSeggio", stations);
        this->leave();
    }
    /// Surname, name, address and a code typed by hand; the fee is the proposed one, and the cursor behind it.
    void typeMember(const MemberOnPaper& member) {
        this->type("txtCompo1", member.surname);
        this->type("txtNome1", member.name);
        this->type("txtIndi1", member.address);
        this->type("txtCodFisc1", member.code);
        this->enter("txtOnor1");
        this->leave();
    }
    std::string readyMember() { return this->text("Label3") + " " + this->text("txtQualifica1"); }
    std::vector<std::string> row(int number) {
        std::vector<std::string> cells;
        for (int column = 0; column < 8; ++column) cells.push_back(this->cell("MSFlexGrid1", number, column));
        return cells;
    }
    int rows() { return this->screen->MSFlexGrid1.rows(); }
    std::string file(std::string_view path) { return contentOf(this->files, path); }
};

class SeggiTest : public SeggiDesk<frmSeggi> {
  protected:
    /// A new entry, the cursor in the size of the first station.
    void begin(std::string_view stations = "3") {
        open();
        chooseElection(stations);
        click("cmdAttiva");
    }
    void beginStation(std::string_view size, std::string_view tariff = "Europee") {
        type("txtComposto", size);
        leave();
        if (operable("txtTariffe")) type("txtTariffe", tariff);
        enter("txtCompo1");
    }
    /// The election as stored is chosen, and the question about it answered.
    void resume(int station, int place, std::string_view stations = "3", Answer answer = Answer::yes) {
        chooseElection(stations);
        box("Inserimento Componenti Seggi", alreadyStored(station, place), answer);
        click("cmdAttiva");
    }
    void stationDone(int station) {
        box("Inserimento seggi", "Inserimento Componenti del seggio n." + std::to_string(station) + " terminato");
    }
    void nextStation(int station) {
        box("Inserimento seggi", "Inserimento Componenti del seggio n. " + std::to_string(station));
        click("cmdInserisci");
    }
};

class SeggiSpecialiTest : public SeggiDesk<frmSeggiSpeciali> {
  protected:
    void openScreen(Answer answer = Answer::yes) { openScreenOn(files, answer); }
    void openScreenOn(FileSystem& disk, Answer answer = Answer::yes) {
        box("INSERIMENTO COMPONENTI SEGGI SPECIALI", "Volete avviare l'inserimento?", answer);
        openOn(disk);
    }
    void begin(std::string_view stations = "3") {
        openScreen();
        chooseElection(stations);
        click("cmdAttiva");
    }
    void beginStation(std::string_view number, std::string_view size, std::string_view tariff = "Europee") {
        type("txtSonoSeggio", number);
        type("txtComposto", size);
        type("Combo2", tariff);
        enter("txtCompo1");
    }
    void resume(const std::string& question, std::string_view stations = "3", Answer answer = Answer::yes) {
        chooseElection(stations);
        box("Inserimento Componenti Seggi", question, answer);
        click("cmdAttiva");
    }
    void stationDone(int station) {
        box("Inserimento seggi Speciali",
            "Inserimento Componenti del seggio n." + std::to_string(station) + " terminato");
        box("Inserimento seggi Speciali", "Inserimento Componenti del seggio Speciale successivo");
    }
    void entryDone() { box("Inserimento seggi", "Inserimento Componenti dei seggi terminato"); }
};

}  // namespace vorbano::test
