#pragma once

#include "platform/form.h"
#include "screens/workplace.h"
#include "stations/station_tariff_half.h"

namespace vorbano {

/// The fees of the members of polling stations, by type of election and role, and the quota of each that the Stato
/// bears: on the left those of the normal stations, on the right those of the special ones. They hold for all elections
/// until they are changed; fees that were stored with a member stay as they are.
struct frmTariffeSeggi {
    Form form{"frmTariffeSeggi", "Tariffe componenti di seggio"};
    StationTariffHalf<3> normal;
    StationTariffHalf<2> special;
    /// Nothing of this frame was ever put into use; it stays on the screen, closed.
    Frame Frame2{form, "Frame2", "Tariffe in caso di elezioni Politiche abbinate ad alre elezioni"};
    CheckBox Check4{Frame2, "Check4", "Modifica"};
    CheckBox Check5{Frame2, "Check5", "Modifica"};
    CheckBox Check6{Frame2, "Check6", "Modifica"};
    TextBox txtPresAnd{Frame2, "txtPresAnd"};
    TextBox txtSegrAnd{Frame2, "txtSegrAnd"};
    TextBox txtScrutAnd{Frame2, "txtScrutAnd"};

    explicit frmTariffeSeggi(const Workplace& workplace);

    void Combo1_Click();
    void Check7_Click();
    void cmdSalva_Click();

    void Combo2_Click();
    void Check10_Click();
    void cmdSalva2_Click();
};

}  // namespace vorbano
