#include "overtime/frmModStraord.h"

#include "screens/date_entry.h"
#include "screens/election_choice.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

frmModStraord::frmModStraord(const Workplace& workplace) : desk_(workplace) {
    lockAll();
    hangProcedures();
    Combo1.items = TipoElezioni(desk_.files);
    updateEnabled();
}

void frmModStraord::hangProcedures() {
    using This = frmModStraord;
    mnuLiqui.clicked.calls(this, &This::mnuLiqui_Click);
    mnuAutoriz.clicked.calls(this, &This::mnuAutoriz_Click);
    mnuEsci.clicked.calls(this, &This::mnuEsci_Click);

    Combo1.clicked.calls(this, &This::Combo1_Click);
    Combo2.clicked.calls(this, &This::Combo2_Click);
    makeDateField(txtDataEle, desk_.desktop);
    txtDataEle.change.calls(this, &This::txtDataEle_Change);
    cmdRicerca.clicked.calls(this, &This::cmdRicerca_Click);
    cmdPrimo.clicked.calls(this, &This::cmdPrimo_Click);
    cmdPrecedente.clicked.calls(this, &This::cmdPrecedente_Click);
    cmdSuccessivo.clicked.calls(this, &This::cmdSuccessivo_Click);
    cmdUltimo.clicked.calls(this, &This::cmdUltimo_Click);
    cmdInserimento.clicked.calls(this, &This::cmdInserimento_Click);
    cmdContinua.clicked.calls(this, &This::cmdContinua_Click);
    cmdAnnulla3.clicked.calls(this, &This::cmdAnnulla3_Click);

    Check11.clicked.calls(this, &This::Check11_Click);
    cmbNome.clicked.calls(this, &This::cmbNome_Click);
    cmdRicerca2.clicked.calls(this, &This::cmdRicerca2_Click);
    int period = 0;
    for (Option* option : {&Option1, &Option2, &Option3, &Option4, &Option5}) {
        option->clicked.calls([this, shown = ++period] { elencami(shown); });
    }
    MSFlexGrid1.picked.calls(this, &This::MSFlexGrid1_SelChange);
    cmdChiudiElenco.clicked.calls(this, &This::cmdChiudiElenco_Click);
    Check1.clicked.calls(this, &This::Check1_Click);
    cmdSalva2.clicked.calls(this, &This::cmdSalva2_Click);

    cmdAttiva.clicked.calls(this, &This::cmdAttiva_Click);
    cmdAttiva2.clicked.calls(this, &This::cmdAttiva2_Click);
    cmdAnnulla.clicked.calls(this, &This::cmdAnnulla_Click);
    cmdAnnulla2.clicked.calls(this, &This::cmdAnnulla2_Click);

    for (int each = 1; each <= maxPeriods; ++each) hangPeriod(each);
    cmdRicalcola.clicked.calls(this, &This::cmdRicalcola_Click);
    cmdTariffe.clicked.calls(this, &This::cmdTariffe_Click);
    MSFlexGrid2.picked.calls(this, &This::MSFlexGrid2_SelChange);
    cmdChiudiTariffe.clicked.calls(this, &This::cmdChiudiTariffe_Click);

    cmdIrpefInail.clicked.calls(this, &This::cmdIrpefInail_Click);
    Frame19.pressed.calls(this, &This::cmdIrpefInail_Click);
    Frame20.pressed.calls(this, &This::cmdIrpefInail_Click);
    for (TextBox* field : irpefFields()) {
        field->lostFocus.calls([this, field] { irpefField_LostFocus(*field); });
    }
    cmdSalva.clicked.calls(this, &This::cmdSalva_Click);
    cmdStampe.clicked.calls(this, &This::cmdStampe_Click);
}

void frmModStraord::hangPeriod(int period) {
    LiquidationPanel& shown = panel(period);
    shown.frame.pressed.calls([this, period] { press(period); });
    shown.apri.clicked.calls([this, period] { press(period); });
    shown.frame.moved.calls([this, period] { leavePeriod(period, false); });
    shown.chiudi.clicked.calls([this, period] { leavePeriod(period, true); });
    shown.authorised.back().lostFocus.calls([this, period] { checkAuthorised(period); });
    shown.totale.lostFocus.calls([this, period] { checkPaid(period); });
    for (TextBox* date : {&shown.dal, &shown.al}) {
        date->lostFocus.calls([this, period] { dateField_LostFocus(period); });
    }
}

void frmModStraord::lockAll() {
    for (TextBox* field :
         {&txtNumDip,  &txtMonteOre, &txtMoGlob,      &txtGlobo,       &txtMoUtil,  &txtTotAut,  &txtEsegDf,
          &txtEsegNof, &txtEsegNef,  &txtTotEseg,     &txtCompDf,      &txtCompNof, &txtCompNef, &txtDovuto,
          &txtCpStato, &txtIrap,     &txtTotaleSpesa, &txtComplessivo, &txtCpDip,   &txtFonCre,  &txtTotaleContr}) {
        field->locked = true;
    }
    for (Frame* frame : {&Frame24, &Frame25, &Frame26}) frame->visible = false;
    showLate({});
}

/// What can be used follows from how far the work has come; nothing else switches the commands.
void frmModStraord::updateEnabled() {
    const bool inWork = stage_ == Stage::entry || stage_ == Stage::toConfirm || stage_ == Stage::toSave;
    const bool aside = Frame24.visible() || Frame26.visible();
    const bool free = !inWork && !aside && !Check1.checked();
    for (Control* control : std::initializer_list<Control*>{&Combo1, &Combo2, &txtDataEle, &txtSonoDip, &cmdRicerca,
                                                            &Check11, &cmbNome, &cmdRicerca2, &cmdInserimento}) {
        control->enabled = free;
    }
    cmbNome.visible = Check11.checked();
    for (Button* command : {&cmdPrimo, &cmdPrecedente, &cmdSuccessivo, &cmdUltimo}) {
        command->enabled = free && loaded_ && !Check11.checked();
    }
    cmdAnnulla3.enabled = free && loaded_;
    if (!free) Frame25.visible = false;
    mnuLiqui.enabled = !Frame24.visible() || panelState_ == PeriodState::liquidation;
    mnuAutoriz.enabled = !Frame24.visible() || panelState_ == PeriodState::authorisation;

    Check1.enabled = stage_ == Stage::shown && !aside;
    txtNameDip.enabled = Check1.checked();
    cmdSalva2.enabled = Check1.checked();

    for (LiquidationPanel& shown : periods) shown.apri.enabled = !inWork && !aside;
    const bool canChangeGrade = stage_ == Stage::toConfirm || stage_ == Stage::toSave ||
                                (stage_ == Stage::shown && mayChangeGrade_ && !Check1.checked());
    cmdTariffe.enabled = canChangeGrade && !aside;
    cmdRicalcola.enabled = stage_ == Stage::toConfirm && !aside;
    cmdIrpefInail.enabled = stage_ == Stage::shown && !aside;
    for (TextBox* field : irpefFields()) field->enabled = irpefOpen_ && !aside;
    cmdSalva.enabled = stage_ == Stage::toSave && !aside;
    cmdContinua.enabled = stage_ == Stage::shown && mayContinue_ && !aside && !Check1.checked();
}

void frmModStraord::go(Stage stage) {
    stage_ = stage;
    // Whatever stood in the box of the number: the work is on the employee on show.
    if (stage != Stage::empty) txtSonoDip.text = std::to_string(number_);
    if (stage != Stage::toSave) irpefOpen_ = false;
    updateEnabled();
}

Election frmModStraord::election() const { return electionIn(Combo1, txtDataEle); }

void frmModStraord::mnuEsci_Click() { form.close(); }

void frmModStraord::cmdStampe_Click() { desk_.screens.open("frmTutteStampe"); }

}  // namespace vorbano
