#pragma once

#include "platform/form.h"

namespace vorbano {

/// The window with name and version: at the start, and from the menu. It closes itself after five seconds, or sooner on
/// a press.
struct frmSplash {
    Form form{"frmSplash", "Vorbano"};
    Frame Frame1{form, "Frame1"};
    Label lblProductName{Frame1, "lblProductName", "Gestione dei Rendiconti Elettorali"};
    Label lblVersion{Frame1, "lblVersion", "Versione 3.9.6\n2024"};
    Label lblAggiornamento{Frame1, "lblAggiornamento", "AGGIORNAMENTO 2024"};
    Timer Timer1{form, "Timer1", 5000};

    frmSplash() {
        Frame1.pressed.calls(this, &frmSplash::Unload);
        Timer1.fired.calls(this, &frmSplash::Unload);
        Timer1.enabled = true;
    }
    void Unload() { form.close(); }
};

}  // namespace vorbano
