#include "overtime/situation_panel.h"

#include <string>

#include "storage/numbers.h"

namespace vorbano {

namespace {

std::string named(std::string_view what, std::string_view suffix) { return std::string(what) + std::string(suffix); }

std::string whole(int hours) { return format(static_cast<double>(hours), Mask::whole); }

}  // namespace

SituationLine::SituationLine(Container& parent, std::string_view suffix)
    : indi(parent, named("txtIndi", suffix)),
      mens(parent, named("txtMens", suffix)),
      uti(parent, named("txtUti", suffix)),
      res(parent, named("txtRes", suffix)) {
    for (TextBox* field : all()) field->locked = true;
}

void SituationLine::setVisible(bool visible) {
    for (TextBox* field : all()) field->visible = visible;
}

void SituationLine::clear() {
    for (TextBox* field : all()) field->text = std::string();
}

void SituationLine::showStored(int average, int pool, std::int64_t used) {
    indi.text = std::to_string(average);
    mens.text = std::to_string(pool);
    uti.text = std::to_string(used);
    res.text = std::to_string(pool - used);
}

void SituationLine::showComputed(const std::optional<PeriodFigures>& figures, std::int64_t used) {
    const PeriodFigures shown = figures.value_or(PeriodFigures{});
    indi.text = whole(shown.average);
    mens.text = whole(shown.pool);
    uti.text = std::to_string(used);
    res.text = std::to_string(shown.pool - used);
}

void SituationLine::exclude() {
    for (TextBox* field : all()) field->text = std::string("0");
}

}  // namespace vorbano
