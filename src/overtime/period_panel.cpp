#include "overtime/period_panel.h"

#include <string>

#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

const std::array<PeriodNames, 3> periodNames = {{
    {"Frame1", "1° periodo", "txtPrimoDal", "txtPrimoAl", "txtAutFer1Per", "txtAutFes1Per", "txtNf1Per", "txtTotAut1",
     "Label52", "Label56", "Label45", "Label26", "Label29"},
    {"Frame4", "2° periodo", "txtSecDal", "txtSecAl", "txtAutFer2Per", "txtAutFes2Per", "txtNf2Per", "txtTotAut2",
     "Label53", "Label65", "Label46", "Label27", "Label32"},
    {"Frame5", "3° periodo", "txtTerDal", "txtTerAl", "txtAutFer3Per", "txtAutFes3Per", "txtNf3Per", "txtTotAut3",
     "Label54", "Label66", "Label48", "Label28", "Label33"},
}};

namespace {

std::string whole(std::int64_t number) { return format(static_cast<double>(number), Mask::whole); }

}  // namespace

PeriodPanel::PeriodPanel(Form& form, const PeriodNames& names)
    : frame(form, std::string(names.frame), std::string(names.caption)),
      dal(frame, std::string(names.dal)),
      al(frame, std::string(names.al)),
      feriali(frame, std::string(names.feriali), hourDigits),
      festive(frame, std::string(names.festive), hourDigits),
      nottFest(frame, std::string(names.nottFest), hourDigits),
      totale(frame, std::string(names.totale)),
      medio(frame, std::string(names.medio)),
      mensile(frame, std::string(names.mensile)),
      limite(frame, std::string(names.limite)),
      utilizzato(frame, std::string(names.utilizzato)),
      residuo(frame, std::string(names.residuo)) {
    for (TextBox* field : {&dal, &al, &totale}) field->locked = true;
    unlockHours(false);
    utilizzato.change.calls(
        [this] { residuo.text = whole(std::int64_t{wholeScan(mensile.text())} - wholeScan(utilizzato.text())); });
}

bool PeriodPanel::isExcluded() const { return vorbano::isExcluded(dal.text()) && vorbano::isExcluded(al.text()); }

PeriodFigures PeriodPanel::figures() const {
    return {wholeScan(limite.text()), wholeScan(mensile.text()), wholeScan(medio.text())};
}

void PeriodPanel::show(const PeriodFigures& figures) {
    limite.text = whole(figures.limit);
    mensile.text = whole(figures.pool);
    medio.text = whole(figures.average);
}

void PeriodPanel::clearFigures() {
    for (Label* label : {&limite, &mensile, &medio, &utilizzato, &residuo}) label->text = std::string();
}

void PeriodPanel::exclude() {
    for (TextBox* field : hourFields()) field->text = std::string("0");
    totale.text = std::string("0");
    mensile.text = std::string("0");
    medio.text = std::string("0");
    unlockHours(false);
}

void PeriodPanel::clearHours() {
    for (TextBox* field : hourFields()) field->text = std::string();
    totale.text = std::string();
    frame.tone = Tone::plain;
}

void PeriodPanel::unlockHours(bool unlocked) {
    for (TextBox* field : hourFields()) field->locked = !unlocked;
}

std::int64_t PeriodPanel::hours() const {
    return std::int64_t{wholeScan(feriali.text())} + wholeScan(festive.text()) + wholeScan(nottFest.text());
}

}  // namespace vorbano
