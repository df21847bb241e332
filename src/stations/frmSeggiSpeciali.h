#pragma once

#include "stations/station_entry.h"

namespace vorbano {

/// "Componenti dei Seggi Speciali": the members of the special polling stations, first round. The clerk types the
/// number of each station, so that they need neither follow each other nor begin at 1; how many there are is counted.
/// There is no correction here, and no secretary.
struct frmSeggiSpeciali : StationEntry {
    TextBox& Combo2 = tariff;
    CheckBox& Check1 = abroad;
    Label Label62{form, "Label62"};  ///< stations of the file, with the one in work
    Label Label63{form, "Label63"};  ///< the numbers of those in the file
    Button Command1{form, "Command1", "Esci"};

    explicit frmSeggiSpeciali(const Workplace& workplace);

    void Form_Activate();
    void Command1_Click();

  private:
    void QualiSono();
    void showStations(const Members& members);

    Label& Label64() override { return counter_; }
    void electionFound(const Members& members) override;
    void entryStarted() override;
    void entryResumed(bool newStation) override;
    [[nodiscard]] bool isLastStation() const override;
    void stationCompleted() override;
    void entryCompleted() override;
    void SalvaModifica() override;

    Label counter_{form, "Label64"};  ///< on show when the entry is complete
    bool asked_ = false;
};

}  // namespace vorbano
