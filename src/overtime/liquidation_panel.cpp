#include "overtime/liquidation_panel.h"

#include <string>

#include "overtime/pools.h"
#include "storage/codepage.h"
#include "storage/dates.h"
#include "storage/numbers.h"

namespace vorbano {

const std::array<LiquidationNames, maxPeriods> liquidationNames = {{
    {.frame = "Frame1",
     .caption = "1° periodo",
     .dal = "txtPrimoDal",
     .al = "txtPrimoAl",
     .authorised = {"txtAutFer1Per", "txtAutFes1Per", "txtNf1Per"},
     .totAut = "txtTotAut1",
     .paid = {"txtPag1Df", "txtPag1Nf", "txtPag1NeF"},
     .totale = "txtTotale1",
     .state = "lblPrimo",
     .medio = "lblMed1",
     .mensile = "lblMens1",
     .limite = "Label45",
     .utilizzato = "Label59",
     .residuo = "Label29",
     .apri = "cmdApri1",
     .chiudi = "cmdChiudi1"},
    {.frame = "Frame4",
     .caption = "2° periodo",
     .dal = "txtSecDal",
     .al = "txtSecAl",
     .authorised = {"txtAutFer2Per", "txtAutFes2Per", "txtNf2Per"},
     .totAut = "txtTotAut2",
     .paid = {"txtPag2Df", "txtPag2Nf", "txtPag2NeF"},
     .totale = "txtTotale2",
     .state = "lblSecondo",
     .medio = "lblMed2",
     .mensile = "lblMens2",
     .limite = "Label46",
     .utilizzato = "lblUtil2",
     .residuo = "Label32",
     .apri = "cmdApri2",
     .chiudi = "cmdChiudi2"},
    {.frame = "Frame5",
     .caption = "3° periodo",
     .dal = "txtTerDal",
     .al = "txtTerAl",
     .authorised = {"txtAutFer3Per", "txtAutFes3Per", "txtNf3Per"},
     .totAut = "txtTotAut3",
     .paid = {"txtPag3Df", "txtPag3Nf", "txtPag3NeF"},
     .totale = "txtTotale3",
     .state = "lblTerzo",
     .medio = "lblMed3",
     .mensile = "lblMens3",
     .limite = "Label48",
     .utilizzato = "lblUtil3",
     .residuo = "Label33",
     .apri = "cmdApri3",
     .chiudi = "cmdChiudi3"},
    {.frame = "Frame28",
     .caption = "4° periodo",
     .dal = "txtQuartusDal",
     .al = "txtQuartusAl",
     .authorised = {"txtAutFer4Per", "txtAutFes4Per", "txtNf4Per"},
     .totAut = "txtTotAut4",
     .paid = {"txtPag4Df", "txtPag4Nf", "txtPag4NeF"},
     .totale = "txtTotale4",
     .state = "lblQuarto",
     .medio = "lblMed4",
     .mensile = "lblMens4",
     .limite = "Label100",
     .utilizzato = "lblUtil4",
     .residuo = "Label103",
     .apri = "cmdApri4",
     .chiudi = "cmdChiudi4"},
    {.frame = "Frame10",
     .caption = "5° periodo",
     .dal = "txtPentiumDal",
     .al = "txtPentiumAl",
     .authorised = {"txtAutFer5Per", "txtAutFes5Per", "txtNf5Per"},
     .totAut = "txtTotAut5",
     .paid = {"txtPag5Df", "txtPag5Nf", "txtPag5NeF"},
     .totale = "txtTotale5",
     .state = "lblQuinto",
     .medio = "lblMed5",
     .mensile = "lblMens5",
     .limite = "Label131",
     .utilizzato = "lblUtil5",
     .residuo = "Label128",
     .apri = "cmdApri5",
     .chiudi = "cmdChiudi5"},
}};

namespace {

constexpr int dateDigits = 10;

std::string named(std::string_view name) { return std::string(name); }

std::int64_t sum(const std::array<TextBox, hourKinds>& fields) {
    std::int64_t hours = 0;
    for (const TextBox& field : fields) hours += wholeScan(field.text());
    return hours;
}

void put(std::array<TextBox, hourKinds>& fields, const HoursByKind& hours) {
    for (std::size_t kind = 0; kind < hours.size(); ++kind) fields[kind].text = std::to_string(hours[kind]);
}

bool differ(const std::array<TextBox, hourKinds>& fields, const HoursByKind& hours) {
    for (std::size_t kind = 0; kind < hours.size(); ++kind) {
        const std::string& text = fields[kind].text();
        if (toInteger(trim(text).empty() ? "0" : text) != std::int16_t{hours[kind]}) return true;
    }
    return false;
}

}  // namespace

LiquidationPanel::LiquidationPanel(Form& form, const LiquidationNames& names)
    : frame(form, named(names.frame), named(names.caption)),
      apri(frame, named(names.apri), "Inserisci ore"),
      dal(frame, named(names.dal), dateDigits),
      al(frame, named(names.al), dateDigits),
      authorised{{{frame, named(names.authorised[0]), hourDigits},
                  {frame, named(names.authorised[1]), hourDigits},
                  {frame, named(names.authorised[2]), hourDigits}}},
      totAut(frame, named(names.totAut)),
      paid{{{frame, named(names.paid[0]), hourDigits},
            {frame, named(names.paid[1]), hourDigits},
            {frame, named(names.paid[2]), hourDigits}}},
      totale(frame, named(names.totale)),
      chiudi(frame, named(names.chiudi), "Chiudi periodo"),
      medio(frame, named(names.medio)),
      mensile(frame, named(names.mensile)),
      limite(frame, named(names.limite)),
      utilizzato(frame, named(names.utilizzato)),
      residuo(frame, named(names.residuo)),
      state(frame, named(names.state)),
      caption_(names.caption) {
    for (TextBox* field : {&dal, &al, &totAut}) field->locked = true;
    close();
    for (TextBox& field : authorised) field.change.calls([this] { sumAuthorised(); });
    for (TextBox& field : paid) field.change.calls([this] { sumPaid(); });
    utilizzato.change.calls([this] {
        const std::int64_t left = std::int64_t{wholeScan(mensile.text())} - wholeScan(utilizzato.text());
        residuo.text = format(static_cast<double>(left), Mask::whole);
    });
    // The clerk must see in which state the period is; the label only carries it.
    state.change.calls([this] {
        frame.text = named(caption_) + (state.text().empty() ? ""
                                        : inLiquidation()    ? " - liquidazione"
                                                             : " - autorizzazione");
    });
}

bool LiquidationPanel::isExcluded() const { return vorbano::isExcluded(dal.text()) && vorbano::isExcluded(al.text()); }

TextBox* LiquidationPanel::missingDate() {
    if (trim(dal.text()).empty()) return &dal;
    return trim(al.text()).empty() ? &al : nullptr;
}

void LiquidationPanel::show(const PeriodBlock& hours) {
    dal.text = hours.from.trimmed();
    al.text = hours.to.trimmed();
    put(authorised, hours.authorised);
    put(paid, hours.paid);
    sumAuthorised();
    sumPaid();
    frame.tone = Tone::plain;
}

void LiquidationPanel::show(const MeirinPeriod& limits, const PeriodFigures& figures) {
    medio.text = std::to_string(limits.average);
    mensile.text = std::to_string(limits.pool);
    limite.text = std::to_string(figures.limit);
    state.text = std::to_string(limits.state);
}

void LiquidationPanel::clear() {
    for (TextBox* field : {&dal, &al}) {
        field->text = std::string();
        field->locked = true;
    }
    for (TextBox& field : authorised) field.text = std::string();
    for (TextBox& field : paid) field.text = std::string();
    totAut.text = std::string();
    totale.text = std::string();
    for (Label* label : {&medio, &mensile, &limite, &utilizzato, &residuo}) label->text = std::string();
    state.text = std::string();
    frame.tone = Tone::plain;
    close();
}

PeriodFigures LiquidationPanel::figures() const {
    return {wholeScan(limite.text()), wholeScan(mensile.text()), wholeScan(medio.text())};
}

void LiquidationPanel::open() {
    for (TextBox& field : openFields()) field.enabled = true;
    totale.enabled = inLiquidation();
    chiudi.enabled = true;
    frame.tone = Tone::active;
    frame.form().focus(openFields()[0]);
}

void LiquidationPanel::close() {
    for (TextBox& field : authorised) field.enabled = false;
    for (TextBox& field : paid) field.enabled = false;
    totale.enabled = false;
    chiudi.enabled = false;
}

bool LiquidationPanel::differsFrom(const PeriodBlock& stored) const {
    return inLiquidation() ? differ(paid, stored.paid) : differ(authorised, stored.authorised);
}

void LiquidationPanel::restore(const PeriodBlock& stored) {
    put(openFields(), inLiquidation() ? stored.paid : stored.authorised);
}

std::int64_t LiquidationPanel::authorisedHours() const { return sum(authorised); }

std::int64_t LiquidationPanel::paidHours() const { return sum(paid); }

void LiquidationPanel::sumAuthorised() { totAut.text = std::to_string(authorisedHours()); }

void LiquidationPanel::sumPaid() { totale.text = std::to_string(paidHours()); }

}  // namespace vorbano
