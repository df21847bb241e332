// Loading, what is enabled when, the kinds of change.

#include "stations/station_correction.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include "fiscalcode/frmCodFisc.h"
#include "screens/date_entry.h"
#include "storage/election.h"

namespace vorbano {

namespace {

constexpr std::string_view chooseMember = "SELEZIONARE IL COGNOME DEL COMPONENTE PER LE MODIFICHE";
constexpr std::string_view chooseScrutineer = "SELEZIONARE IL COMPONENTE SCRUTATORE DA ELIMINARE";

template <class Part, class... Arguments>
std::optional<Part> partIf(bool there, Arguments&&... arguments) {
    return there ? std::optional<Part>(std::in_place, std::forward<Arguments>(arguments)...) : std::optional<Part>();
}

}  // namespace

StationCorrection::MemberPanel::MemberPanel(Form& form, std::string name, std::string caption, const PersonNames& names,
                                            std::string tariffName)
    : frame(form, std::move(name), std::move(caption)), person(frame, names), tariff(frame, std::move(tariffName)) {
    tariff.locked = true;
    frame.visible = false;
}

StationCorrection::StationCorrection(const CorrectionTerms& terms, const Workplace& workplace)
    : form(std::string(terms.form), std::string(terms.caption)),
      Check4(partIf<CheckBox>(terms.addsAndRemoves, form, "Check4", "aggiungi componente")),
      Check5(partIf<CheckBox>(terms.addsAndRemoves, form, "Check5", "cancella componente")),
      Frame2(partIf<MemberPanel>(terms.addsAndRemoves, form, "Frame2", "AGGIUNGI COMPONENTE", addedNames, "Text7")),
      Frame3(partIf<MemberPanel>(terms.addsAndRemoves, form, "Frame3", "CANCELLA COMPONENTE", removedNames, "Text15")),
      terms_(terms),
      desk_(workplace) {
    Combo1.items = TipoElezioni(desk_.files);
    Lines tariffs;
    for (const ElectionType& type : electionTypes) tariffs.emplace_back(type.name);
    Combo2.items = tariffs;
    txtSeggiSu.locked = true;
    txtComposto.locked = true;
    if (Frame3) Frame3->person.lock();
    Frame1.visible = false;
    hangProcedures();
    followState();
}

void StationCorrection::hangProcedures() {
    using This = StationCorrection;
    mnuCodFisc.clicked.calls(this, &This::mnuCodFisc_Click);
    mnuEsci.clicked.calls(this, &This::mnuEsci_Click);
    Combo1.clicked.calls(this, &This::Combo1_Click);
    Combo4.clicked.calls(this, &This::Combo4_Click);
    makeDateField(txtDataEle, desk_.desktop);
    txtDataEle.change.calls(this, &This::txtDataEle_Change);
    txtSeggio.change.calls(this, &This::txtSeggio_Change);
    cmdRicerca.clicked.calls(this, &This::cmdRicerca_Click);
    cmdAnnulla.clicked.calls(this, &This::cmdAnnulla_Click);
    Combo3.clicked.calls(this, &This::Combo3_Click);
    cmdPrecedente.clicked.calls(this, &This::cmdPrecedente_Click);
    cmdSuccessivo.clicked.calls(this, &This::cmdSuccessivo_Click);
    Combo2.clicked.calls(this, &This::Combo2_Click);
    cmdAttiva.clicked.calls(this, &This::cmdAttiva_Click);
    cmdDisattiva.clicked.calls(this, &This::cmdDisattiva_Click);
    Check3.clicked.calls(this, &This::Check3_Click);
    if (Check4) Check4->clicked.calls(this, &This::Check4_Click);
    if (Check5) Check5->clicked.calls(this, &This::Check5_Click);
    MSFlexGrid1.picked.calls(this, &This::MSFlexGrid1_Click);
    hangPerson();
    cmdSalva.clicked.calls(this, &This::cmdSalva_Click);
    cmdAnnulla1.clicked.calls(this, &This::cmdAnnulla1_Click);
}

void StationCorrection::hangPerson() {
    using This = StationCorrection;
    Check1.clicked.calls(this, &This::Check1_Click);
    Check2.clicked.calls(this, &This::Check2_Click);
    member.Onorario.gotFocus.calls(this, &This::txtImporto_GotFocus);
    member.CodFisc.lostFocus.calls(this, &This::txtFisc_LostFocus);
    txtFisc2.lostFocus.calls(this, &This::txtFisc2_LostFocus);
    txtPercent.lostFocus.calls(this, &This::txtPercent_LostFocus);
    txtImporto2.lostFocus.calls(this, &This::txtImporto2_LostFocus);
    // The code that is worked out is that of the person at whom the clerk is.
    for (Control* field : {&member.Cognome, &member.Nome, &member.Indirizzo, &member.CodFisc})
        field->gotFocus.calls([this] { Label19.text = std::string("1"); });
    for (Control* field : {&txtSostituto, &txtNomeS, &txtIndirizzo2, &txtFisc2})
        field->gotFocus.calls([this] { Label19.text = std::string("0"); });
    if (!Frame2) return;
    Frame2->person.Onorario.gotFocus.calls(this, &This::Text8_GotFocus);
    Frame2->person.CodFisc.lostFocus.calls(this, &This::Text9_LostFocus);
}

bool StationCorrection::changeIsOpen() const {
    return Frame1.visible() || (Frame2 && Frame2->frame.visible()) || (Frame3 && Frame3->frame.visible());
}

bool StationCorrection::hasMembers() const {
    return std::ranges::any_of(lines_, [](const Line& line) { return !line.substitute; });
}

void StationCorrection::followState() {
    const bool open = changeIsOpen();
    for (Control* control : std::array<Control*, 5>{&Combo1, &Combo4, &txtDataEle, &txtSeggio, &cmdRicerca})
        control->enabled = !open;
    cmdAnnulla.enabled = shown_.has_value();
    Combo3.enabled = shown_.has_value() && !open;
    const int station = Combo3.selection();
    cmdPrecedente.enabled = !open && station > 0;
    cmdSuccessivo.enabled = !open && station >= 0 && station + 1 < static_cast<int>(Combo3.items().size());
    Combo2.enabled = open && !isTicked(Check5);

    cmdAttiva.enabled = hasMembers();
    cmdAttiva.visible = !active_;
    cmdAttiva.text = std::string(active_ ? "Disattiva modifiche" : "Attiva modifiche");
    cmdDisattiva.visible = active_;
    Check3.enabled = active_;
    if (Check4) Check4->enabled = active_;
    if (Check5) Check5->enabled = active_;
    lblSelezione.text = std::string(Check3.checked()   ? chooseMember
                                    : isTicked(Check5) ? chooseScrutineer
                                                       : std::string_view());
    MSFlexGrid1.enabled = !lines_.empty();

    const bool substitute = Check1.checked() && !Check2.checked();
    for (TextBox* field : {&txtSostituto, &txtNomeS, &txtIndirizzo2, &txtFisc2, &txtPercent, &txtImporto2})
        field->enabled = substitute;
    cmdSalva.enabled = open;
    cmdAnnulla1.enabled = active_;
}

void StationCorrection::mnuEsci_Click() { form.close(); }

void StationCorrection::mnuCodFisc_Click() {
    Control* taker = nullptr;
    {
        const auto screen =
            std::make_unique<frmCodFisc>(desk_, [this, &taker](const std::string& code) { taker = takeCode(code); });
        desk_.desktop.show(screen->form);
    }
    // Its leave tests the code, which may have been worked out from less than all data.
    if (taker != nullptr) form.focus(*taker);
}

void StationCorrection::cmdAttiva_Click() {
    active_ = true;
    followState();
    form.focus(Check3);
}

void StationCorrection::cmdDisattiva_Click() {
    clearKinds();
    form.focus(cmdAttiva);
}

void StationCorrection::clearKinds() {
    closeFrames();
    active_ = false;
    Check3.checked = false;
    if (Check4) Check4->checked = false;
    if (Check5) Check5->checked = false;
    followState();
}

void StationCorrection::closeFrames() {
    loading_ = true;
    Frame1.visible = false;
    member.clear();
    Check1.checked = false;
    Check2.checked = false;
    for (TextBox* field : {&txtSostituto, &txtNomeS, &txtIndirizzo2, &txtFisc2, &txtPercent, &txtImporto2})
        field->text = std::string();
    for (std::optional<MemberPanel>* panel : {&Frame2, &Frame3}) {
        if (!*panel) continue;
        (*panel)->frame.visible = false;
        (*panel)->person.clear();
        (*panel)->tariff.text = std::string();
    }
    for (HiddenLabel* label : {&Label9, &Text1, &Label19}) label->text = std::string();
    loading_ = false;
}

/// One kind of change at a time; what another one had opened is closed.
void StationCorrection::kindTicked(CheckBox& kind) {
    closeFrames();
    lblSelezione.tone = Tone::plain;
    if (kind.checked()) {
        if (&kind != &Check3) Check3.checked = false;
        if (Check4 && &kind != &*Check4) Check4->checked = false;
        if (Check5 && &kind != &*Check5) Check5->checked = false;
    }
    followState();
}

void StationCorrection::Check3_Click() { kindTicked(Check3); }

void StationCorrection::Check4_Click() {
    kindTicked(*Check4);
    if (Check4->checked()) Aggiungi();
}

void StationCorrection::Check5_Click() { kindTicked(*Check5); }

void StationCorrection::cmdAnnulla1_Click() {
    clearKinds();
    if (shown_) callUp(shown_->station);
    form.focus(cmdAttiva);
}

}  // namespace vorbano
