#pragma once

#include "platform/form.h"
#include "platform/operator.h"
#include "platform/scripted_desktop.h"

namespace vorbano::test {

/// A screen with the fields that elections are named by.
struct ScreenWithFields {
    ScriptedDesktop desktop;
    Form form{"frmProva", "Prova"};
    ComboBox Combo1{form, "Combo1", {"Europee", "../Params"}};
    TextBox txtDataEle{form, "txtDataEle"};
    TextBox txtAltro{form, "txtAltro"};
    Operator clerk{form};

    ScreenWithFields() { desktop.open(form); }
};

}  // namespace vorbano::test
