// The adjustment run: the first tab of the parameter screen.

#include "parameters/frmParametri.h"

namespace vorbano {

void frmParametri::Check46_Click() {
    if (Check46.checked()) {
        Check45.checked = false;
        offerElections();
    } else {
        forgetElection();
    }
    showMode();
}

void frmParametri::cboDeco_Click() {}

void frmParametri::lblDeco_Change() {}

void frmParametri::cmdCrea_Click() {}

void frmParametri::Conguagli() {}

void frmParametri::Conguaglia() {}

void frmParametri::Conguaglio1() {}

}  // namespace vorbano
