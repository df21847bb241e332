// What a search has read is put on the screen, and taken off it.

#include "overtime/frmModStraord.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

std::string hoursText(Integer hours) { return std::to_string(hours); }

std::string amountText(Currency amount) { return format(amount, Mask::amount); }

}  // namespace

void frmModStraord::cmbElezioni() {
    showLate(late_);
    const ElectionType* type = findElectionType(election().type);
    // Two elections held together are borne by two bodies, and each pays a share of the INAIL.
    const bool shared = loaded_ && type != nullptr && type->combined;
    Frame17.visible = shared;
    Frame14.visible = shared;
}

void frmModStraord::showLate(const LateInUse& late) {
    for (std::size_t at = 0; at < late.size(); ++at) periods[at + 3].frame.visible = late[at];
    Frame17.visible = false;
    Frame14.visible = false;
}

void frmModStraord::showElection(const Found& found) {
    late_ = found.late;
    cmbElezioni();
    showPools(found.last.record.pools);
    const ElectionSpans spans = spansOf(found.first, late_);
    const ElectionFigures figures = electionFigures(spans, {.rule = LimitRule::authorisation,
                                                            .yearOfCentury = loaded_->yearOfCentury(),
                                                            .monteOre = found.last.record.pools.MonteOre,
                                                            .employees = found.last.record.pools.NumDip});
    for (std::size_t at = 0; at < periods.size(); ++at) {
        LiquidationPanel& shown = periods[at];
        if (!spans[at]) {
            shown.clear();
            continue;
        }
        shown.dal.text = std::string(trim(spans[at]->from));
        shown.al.text = std::string(trim(spans[at]->to));
        shown.show(meirinPeriod(found.meirin, static_cast<int>(at) + 1), figures[at].value_or(PeriodFigures{}));
        shown.utilizzato.text = std::to_string(found.used[at]);
    }
    const ElectionAmounts amounts = electionAmounts(found.meirin);
    txtIrpef.text = amountText(amounts.irpef);
    txtInail.text = amountText(amounts.inail);
    txtInailUno.text = amountText(amounts.inailUno);
    txtInailDue.text = amountText(amounts.inailDue);
}

/// The hours used are those of the last employee, up to whom they are summed. What is left of the pools is only shown;
/// on file their total stays.
void frmModStraord::showPools(const Pools& pools) {
    txtNumDip.text = hoursText(pools.NumDip);
    txtMonteOre.text = hoursText(pools.MonteOre);
    txtMoGlob.text = hoursText(pools.MoGlob);
    txtGlobo.text = std::to_string(int{pools.Globo} - int{pools.MoUtil});
    const std::string used = hoursText(pools.MoUtil);
    const bool changed = txtMoUtil.text() != used;
    txtMoUtil.text = used;
    if (changed && pools.MoUtil > pools.Globo) desk_.desktop.tell(poolExceeded());
}

void frmModStraord::showEmployee(const StoredEmployee& employee) {
    employee_ = employee;
    const EmployeeRecord& record = employee.record;
    txtNameDip.text = record.name.trimmed();
    for (int period = 1; period <= maxPeriods; ++period) {
        if (panel(period).frame.visible()) panel(period).show(employee.period(period));
    }
    txtTotAut.text = hoursText(record.totAut);
    for (std::size_t kind = 0; kind < record.executed.size(); ++kind) {
        executedFields()[kind]->text = hoursText(record.executed[kind]);
        rateFields()[kind]->text = amountText(record.pay.rates[kind]);
    }
    txtTotEseg.text = hoursText(record.totEseg);
    lblCat.text = record.lblCat.trimmed();
    lblCat2.text = record.lblCat2.trimmed();
    const Pay& pay = record.pay;
    Label37.text = format(pay.AliCpStato, Mask::percent);
    Label38.text = format(pay.AliIrap, Mask::percent);
    Label43.text = format(pay.AliCpDip, Mask::percent);
    Label47.text = format(pay.AliFonCre, Mask::digits);
    showAmounts({.Dovuto = pay.Dovuto,
                 .CpStato = pay.CpStato,
                 .Irap = pay.Irap,
                 .TotaleSpesa = pay.TotaleSpesa,
                 .Complessivo = pay.Dovuto + pay.TotaleSpesa,
                 .CpDip = pay.CpDip,
                 .FonCre = pay.FonCre,
                 .TotaleContr = pay.TotaleContr});
}

/// The list of the names keeps up with an employee who was called up in another way.
void frmModStraord::showInNames() {
    const auto line = static_cast<std::size_t>(number_) - 1;
    if (line >= cmbNome.items().size()) return;
    cmbNome.selection = number_ - 1;
    cmbNome.text = cmbNome.items()[line];
}

void frmModStraord::showAmounts(const Amounts& amounts) {
    txtDovuto.text = amountText(amounts.Dovuto);
    txtCpStato.text = amountText(amounts.CpStato);
    txtIrap.text = amountText(amounts.Irap);
    txtTotaleSpesa.text = amountText(amounts.TotaleSpesa);
    txtComplessivo.text = amountText(amounts.Complessivo);
    txtCpDip.text = amountText(amounts.CpDip);
    txtFonCre.text = amountText(amounts.FonCre);
    txtTotaleContr.text = amountText(amounts.TotaleContr);
}

void frmModStraord::clearEmployee() {
    employee_.reset();
    number_ = 0;
    openPeriod_ = 0;
    datesOpen_ = 0;
    for (LiquidationPanel& shown : periods) shown.clear();
    for (TextBox* field : {&txtNameDip, &txtTotAut, &txtEsegDf, &txtEsegNof, &txtEsegNef, &txtTotEseg, &txtCompDf,
                           &txtCompNof, &txtCompNef, &txtDovuto, &txtCpStato, &txtIrap, &txtTotaleSpesa,
                           &txtComplessivo, &txtCpDip, &txtFonCre, &txtTotaleContr}) {
        field->text = std::string();
    }
    for (Label* label : {&lblCat, &lblCat2, &Label37, &Label38, &Label43, &Label47}) label->text = std::string();
}

/// Everything but the choice of the election.
void frmModStraord::Cancella() {
    loaded_.reset();
    count_ = 0;
    late_ = {};
    sequential_ = false;
    mayContinue_ = false;
    clearEmployee();
    for (TextBox* field : {&txtSonoDip, &txtNumDip, &txtMonteOre, &txtMoGlob, &txtGlobo, &txtMoUtil, &txtIrpef,
                           &txtInail, &txtInailUno, &txtInailDue}) {
        field->text = std::string();
    }
    for (HiddenLabel* label : {&Label52, &Label53, &Text2}) label->text = std::string();
    Frame25.visible = false;
    Check11.checked = false;
    cmbElezioni();
    go(Stage::empty);
}

}  // namespace vorbano
