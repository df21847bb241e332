#include "scenario/bare_hands.h"

#include <ctime>

#include "platform/operator.h"
#include "platform/qt/plain_document.h"

namespace vorbano {

namespace {

std::chrono::year_month_day clockOfThisMachine() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return {std::chrono::year(local.tm_year + 1900), std::chrono::month(static_cast<unsigned>(local.tm_mon + 1)),
            std::chrono::day(static_cast<unsigned>(local.tm_mday))};
}

Refusal makeOn(Operator& clerk, const Line& gesture, Control& control) {
    switch (gesture.kind) {
        case LineKind::menu:
            return clerk.menu(control);
        case LineKind::type:
            return clerk.type(control, gesture.text);
        case LineKind::click:
            return clerk.click(control);
        case LineKind::tick:
        case LineKind::untick:
            return clerk.tick(control, gesture.kind == LineKind::tick);
        case LineKind::choose:
            return clerk.choose(control, gesture.text);
        case LineKind::pick:
            return clerk.pick(control, gesture.count, gesture.column);
        case LineKind::press:
            return clerk.press(control);
        case LineKind::move:
            return clerk.move(control);
        case LineKind::tab:
            return clerk.turn(control, gesture.count);
        default:
            return Refusal::wrongKind;
    }
}

}  // namespace

void BareHands::showBeside(Form& form) {
    if (beside_ != &form) closeBeside();
    beside_ = &form;
    form.watchedBy(this);
    form.open();
}

void BareHands::closeBeside() {
    if (beside_ != nullptr) beside_->close();
}

void BareHands::closed() {
    beside_->watchedBy(nullptr);
    beside_ = nullptr;
}

std::string BareHands::make(const Line& gesture, Form& form, Control* control) {
    Operator clerk(form);
    if (control != nullptr) {
        const Refusal why = makeOn(clerk, gesture, *control);
        return why == Refusal::none ? std::string() : gesture.name + " " + std::string(inWords(why));
    }
    if (gesture.kind == LineKind::leave) {
        clerk.leave();
    } else {
        clerk.close();
    }
    return {};
}

void BareDesktop::show(Form& form) {
    // What the program still wants to show once the scenario is over is put away unseen.
    if (player_.over()) {
        if (hands_.forms.size() == 0) hands_.closeBeside();
        return;
    }
    hands_.forms.push(form);
    while (form.isOpen() && !player_.over()) player_.step();
    form.close();
    if (hands_.forms.size() == 1) hands_.closeBeside();
    hands_.forms.pop();
}

std::optional<Answer> BareDesktop::answerTo(const Box& box) {
    while (!player_.over()) {
        if (const auto answer = player_.stepAtBox(box)) return answer;
    }
    return std::nullopt;
}

void BareDesktop::tell(const Message& message) { answerTo({message.title, message.text, false}); }

bool BareDesktop::ask(const Message& message) { return answerTo({message.title, message.text, true}) == Answer::yes; }

std::chrono::year_month_day BareDesktop::today() const { return hands_.today.value_or(clockOfThisMachine()); }

Result<> BarePrintEngine::run(const PrintJob& job) {
    if (player_.over()) return {};
    auto document = renderer_.render(job.layout, job.title);
    if (!document) {
        player_.reportFailed(document.error());
        return document.error();
    }
    while (!player_.stepAtReport(job, **document)) {
    }
    return {};
}

Result<> BarePrintEngine::printPage(const PlainPage& page) {
    player_.pagePrinted(page, *plainDocument(page));
    return {};
}

}  // namespace vorbano
