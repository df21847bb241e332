#include "random/session.h"

#include "platform/staging_tables.h"
#include "program/program.h"
#include "random/invariants.h"
#include "storage/codepage.h"
#include "support/places.h"

namespace vorbano::test {

namespace {

/// A gesture that brings more boxes than these asks without end.
constexpr int mostBoxes = 200;
/// No window leads to a deeper pile.
constexpr std::size_t mostWindows = 6;

}  // namespace

Session::Session(std::uint64_t seed, const StoredState& state, const std::set<std::string>& delivered, int gestures,
                 Met& met)
    : chance_(seed),
      staging_(stagingTables()),
      places_(placeTables()),
      delivered_(delivered),
      left_(gestures),
      met_(met) {
    fillPlaces(places_);
    lay(state, disk_);
    note("# " + state.name);
    note("today 2024-06-10");
    for (const std::string& folder : state.folders) note("copy " + folder);
    ++met_.sessions;
}

void Session::play() { Program(files_, *this, staging_, places_, *this).run(); }

void Session::show(Form& form) {
    forms_.push(form);
    if (forms_.size() > mostWindows) throw Trouble("windows pile up");
    note("screen " + form.name());
    clerk_.opened(form);
    check(form);
    while (form.isOpen() && left_ > 0) step(form);
    form.close();
    clerk_.closed();
    forms_.pop();
    boxesOfGesture_ = 0;
}

void Session::step(Form& form) {
    if (forms_.front() != &form) throw Trouble(form.name() + " is played and is not in front");
    --left_;
    ++met_.gestures;
    ++met_.screens[form.name()];
    boxesOfGesture_ = 0;
    files_.forget();
    letTimeGo();
    const Gesture gesture = clerk_.next(form);
    note(inScenario(gesture));
    if (const Refusal refusal = make(gesture, form); refusal != Refusal::none) {
        throw Trouble("offered and refused: it " + std::string(inWords(refusal)));
    }
    check(form);
    for (const std::string& path : files_.touched()) {
        if (const std::string wrong = wrongIn(disk_, path); !wrong.empty()) throw Trouble(wrong);
    }
}

void Session::check(const Form& form) {
    if (forms_.front() != &form) throw Trouble(form.name() + " does not come back to the front");
    if (const std::string wrong = wrongIn(form); !wrong.empty()) throw Trouble(form.name() + ": " + wrong);
}

/// The window beside the others goes by its timer.
void Session::letTimeGo() {
    if (beside_ == nullptr || !beside_->isOpen() || !chance_.percent(20)) return;
    for (Control* control : beside_->controls()) {
        if (control->kind() == Kind::timer && control->isEnabled()) static_cast<Timer*>(control)->fired.fire();
    }
}

void Session::showBeside(Form& form) {
    beside_ = &form;
    form.open();
}

void Session::boxCame(const Message& message, std::string_view answer) {
    note("box " + asScenarioText(message.title) + " " + asScenarioText(message.text) + " -> " + std::string(answer));
    ++met_.boxes;
    met_.messages.insert(message.text.substr(0, 24));
    if (message.text.empty()) throw Trouble("a box without a word");
    if (++boxesOfGesture_ > mostBoxes) throw Trouble("asks without end");
}

void Session::tell(const Message& message) { boxCame(message, "OK"); }

bool Session::ask(const Message& message) {
    const bool yes = chance_.percent(65);
    boxCame(message, yes ? "Sì" : "No");
    return yes;
}

std::chrono::year_month_day Session::today() const {
    return {std::chrono::year(2024), std::chrono::month(6), std::chrono::day(10)};
}

Result<> Session::run(const PrintJob& job) {
    note("report " + job.layout + " " + asScenarioText(job.title) +
         (job.destination == Destination::preview ? " preview" : " print"));
    note("end");
    ++met_.documents;
    met_.layouts.insert(job.layout);
    if (!delivered_.contains(upperCase(job.layout))) throw Trouble(job.layout + " is no delivered layout");
    if (chance_.percent(3)) {
        note("# the layout was damaged");
        return Error{Failure::damaged, job.layout};
    }
    return {};
}

Result<> Session::printPage(const PlainPage& page) {
    note("# printed: " + page.title);
    ++met_.documents;
    if (chance_.percent(3)) return Error{Failure::device, page.title};
    return {};
}

}  // namespace vorbano::test
