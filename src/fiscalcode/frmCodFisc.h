#pragma once

#include <functional>
#include <string>

#include "fiscalcode/place_list.h"
#include "platform/form.h"
#include "screens/workplace.h"

namespace vorbano {

/// "Codice Fiscale": works out the code of a person by hand. The place of birth is found while it is typed: the name is
/// completed behind the typed letters, and the next key takes the place of what was added.
struct frmCodFisc {
    Form form{"frmCodFisc", "Codice Fiscale"};
    TextBox txtCognome{form, "txtCognome", 30};
    TextBox txtNome{form, "txtNome", 30};
    TextBox txtDataNascita{form, "txtDataNascita", 10};
    ComboBox cboSesso{form, "cboSesso", {"M", "F"}};
    CheckBox Check1{form, "Check1", "Esteri"};
    TextBox Text1{form, "Text1"};  ///< place of birth
    TextBox Text2{form, "Text2"};  ///< province found; "?" when there is no such place
    TextBox Text3{form, "Text3"};  ///< code found; "?" when there is no such place
    Button cmdElabora{form, "cmdElabora", "&Elabora"};
    TextBox txtCodiceFiscale{form, "txtCodiceFiscale"};
    Button cmdEsporta{form, "cmdEsporta", "Es&porta"};
    Button Command1{form, "Command1", "E&sci"};

    /// What takes the code that the clerk exports: the field of the screen that opened this one.
    using Export = std::function<void(const std::string& code)>;
    explicit frmCodFisc(const Workplace& workplace, Export exported = {});

    void txtDataNascita_LostFocus();
    void Check1_Click();
    void Text1_Change();
    void cmdElabora_Click();
    void cmdEsporta_Click();
    void Command1_Click();

  private:
    [[nodiscard]] bool takesAway(const std::string& text) const;
    void showPlace(const Birthplace& place);
    void showNoPlace();
    void emptyPlace();

    Workplace desk_;
    Export exported_;
    PlaceList places_;
    bool hasPlaces_;        ///< the list could be opened; without it no search finds anything
    bool writing_ = false;  ///< the program itself writes into Text1
    std::string typed_;     ///< of Text1: what the clerk typed
    std::string shown_;     ///< and what stood there after it was completed
};

}  // namespace vorbano
