// The old and the new tariffs: the first tab of the parameter screen.

#include "parameters/frmParametri.h"

namespace vorbano {

/// The choice of the election is over with the update, but the election stays chosen: the version command that follows
/// is for it. Setting the box anew begins a new choice.
void frmParametri::Check45_Click() {
    if (Check45.checked()) {
        Check46.checked = false;
        offerElections();
    }
    showMode();
}

}  // namespace vorbano
