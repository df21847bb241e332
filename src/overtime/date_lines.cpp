#include "overtime/date_lines.h"

#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

const std::array<DateLineNames, maxPeriods> dateLineNames = {{
    {1, "Check1", "txtPrimoDalM", "txtPrimoAlM", "txtIndi1", "txtMens1", "txtLimite1", "txtIndiD1", "txtMensD1",
     "txtUtiD1", "txtResD1"},
    {2, "Check2", "txtSecDalM", "txtSecAlM", "txtIndi2", "txtMens2", "txtLimite2", "txtIndiD2", "txtMensD2", "txtUtiD2",
     "txtResD2"},
    {3, "Check3", "txtTerDalM", "txtTerAlM", "txtIndi3", "txtMens3", "txtLimite3", "txtIndiD3", "txtMensD3", "txtUtiD3",
     "txtResD3"},
    {4, "Check4", "txtQuartusDalM", "txtQuartusAlM", "txtIndi4", "txtMens4", "txtLimite4", "txtIndiD4", "txtMensD4",
     "txtUtiD4", "txtResD4"},
    {5, "Check5", "txtPentiumDalM", "txtPentiumAlM", "txtIndi5", "txtMens5", "txtLimite5", "txtIndiD5", "txtMensD5",
     "txtUtiD5", "txtResD5"},
}};

namespace {

constexpr int dateLength = 10;

/// Its average and its pool deliberately show a zero where those of the other periods show nothing.
constexpr int periodThatShowsZero = 5;

std::string whole(int hours) { return format(static_cast<double>(hours), Mask::whole); }

}  // namespace

DateRow::DateRow(Container& parent, const DateLineNames& names)
    : period(names.period),
      modifica(parent, std::string(names.check), "Modifica data"),
      dal(parent, std::string(names.dal), dateLength),
      al(parent, std::string(names.al), dateLength) {
    unlock(false);
}

void DateRow::show(bool visible) {
    modifica.visible = visible;
    dal.visible = visible;
    al.visible = visible;
}

void DateRow::unlock(bool unlocked) {
    dal.locked = !unlocked;
    al.locked = !unlocked;
}

void DateRow::setSpan(const PeriodSpan& span) {
    dal.text = span.from;
    al.text = span.to;
}

PoolLine::PoolLine(Container& parent, const DateLineNames& names)
    : period(names.period),
      indi(parent, std::string(names.indi)),
      mens(parent, std::string(names.mens)),
      limite(parent, std::string(names.limite)),
      indiD(parent, std::string(names.indiD)),
      mensD(parent, std::string(names.mensD)),
      utiD(parent, std::string(names.utiD)),
      resD(parent, std::string(names.resD)) {
    for (TextBox* field : {&indi, &mens}) field->locked = true;
    for (TextBox* field : after()) field->locked = true;
}

void PoolLine::show(bool visible) {
    for (TextBox* field : {&indi, &mens}) field->visible = visible;
    for (TextBox* field : after()) field->visible = visible;
}

void PoolLine::showStored(int average, int pool) {
    indi.text = std::to_string(average);
    mens.text = std::to_string(pool);
}

std::string PoolLine::figure(int hours) const {
    return period == periodThatShowsZero ? std::to_string(hours) : whole(hours);
}

void PoolLine::showAfter(const PeriodFigures& figures, std::optional<std::int64_t> used) {
    if (!used) {
        for (TextBox* field : after()) field->text = std::string("0");
        return;
    }
    limite.text = whole(figures.limit);
    indiD.text = figure(figures.average);
    mensD.text = figure(figures.pool);
    utiD.text = std::to_string(*used);
    resD.text = std::to_string(figures.pool - *used);
}

void PoolLine::clearAfter() {
    for (TextBox* field : after()) field->text = std::string();
}

void PoolLine::afterBecomesStored() { showStored(wholeScan(indiD.text()), wholeScan(mensD.text())); }

bool PoolLine::isExceeded() const { return wholeScan(resD.text()) < 0; }

}  // namespace vorbano
