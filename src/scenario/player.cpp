#include "scenario/player.h"

#include "scenario/comparing.h"
#include "scenario/gestures.h"
#include "scenario/out_folder.h"
#include "storage/system_text.h"

namespace vorbano {

namespace {

std::string inWords(const Box& box) { return "the box " + inQuotes(box.title) + " " + inQuotes(box.text); }

std::string inWords(const PrintJob& job) {
    return "the report " + job.layout + " " + inQuotes(job.title) +
           (job.destination == Destination::preview ? " preview" : " print");
}

bool isInstalledBefore(const Line& line) { return line.kind == LineKind::today || line.kind == LineKind::copy; }

}  // namespace

Player::Player(const Scenario& scenario, const Stage& stage, Hands& hands)
    : scenario_(scenario), stage_(stage), hands_(hands) {}

const Line* Player::line() const { return at_ < scenario_.lines.size() ? &scenario_.lines[at_] : nullptr; }

void Player::met(std::string_view kind, std::string_view what) const {
    if (stage_.surface != nullptr) stage_.surface->met(kind, what);
}

void Player::prepare() {
    while (!over_ && line() != nullptr && isInstalledBefore(*line())) playWorld(*line());
}

void Player::failAtLine(const Line& line, const std::string& expected, const std::string& was) {
    if (over_) return;
    over_ = true;
    failure_ = line.file + ":" + std::to_string(line.number) + ": expected " + expected + ", was " + was;
}

void Player::fail(const std::string& expected, const std::string& was) {
    if (const Line* current = line()) return failAtLine(*current, expected, was);
    // Past the last line: the failure is told of it.
    if (!scenario_.lines.empty()) return failAtLine(scenario_.lines.back(), expected, was);
    Line nothing;
    nothing.file = scenario_.name;
    nothing.number = 1;
    failAtLine(nothing, expected, was);
}

void Player::failAt(const std::string& was) {
    fail(line() == nullptr ? "the end of the scenario" : "`" + line()->source + "`", was);
}

std::string Player::inFront() const {
    const Form* form = hands_.front();
    return form == nullptr ? "no window" : "the window " + form->name();
}

/// The line held, or the scenario is over.
bool Player::settle(const Verdict& verdict) {
    if (verdict) {
        fail(verdict->expected, verdict->was);
    } else {
        advance();
    }
    return true;
}

void Player::step() {
    if (over_) return;
    const Line* current = line();
    if (current == nullptr) {
        over_ = true;
    } else if (isGesture(current->kind)) {
        playGesture(*current);
    } else if (!playLook(*current)) {
        failAt(inFront());
    }
}

std::optional<Answer> Player::stepAtBox(const Box& box) {
    if (over_) return std::nullopt;
    const Line* current = line();
    if (current == nullptr || current->kind != LineKind::box) {
        if (current == nullptr || !playLook(*current)) failAt(inWords(box));
        return std::nullopt;
    }
    const bool same =
        oneLineEnd(current->title) == oneLineEnd(box.title) && oneLineEnd(current->text) == oneLineEnd(box.text);
    if (!same) {
        fail(inWords(Box{current->title, current->text}), inWords(box));
        return std::nullopt;
    }
    if (box.question == (current->answer == Answer::ok)) {
        fail("the answer " + std::string(inWords(current->answer)),
             box.question ? "a box with Sì and No" : "a box with OK");
        return std::nullopt;
    }
    met("box", box.title);
    met("box", box.text);
    advance();
    return current->answer;
}

bool Player::stepAtReport(const PrintJob& job, Document& document) {
    if (over_) return true;
    const Line* current = line();
    if (current == nullptr) {
        failAt(inWords(job));
        return true;
    }
    switch (current->kind) {
        case LineKind::report: {
            const PrintJob expected{current->name, current->title,
                                    current->preview ? Destination::preview : Destination::printer};
            const bool same = sameName(expected.layout, job.layout) && expected.title == job.title &&
                              expected.destination == job.destination && !inReport_;
            if (!same) {
                fail(inWords(expected), inWords(job));
                return true;
            }
            inReport_ = true;
            met("layout", job.layout);
            met("box", job.title);
            advance();
            return false;
        }
        case LineKind::rows:
        case LineKind::cell:
            settle(lookAtTable(*current, stage_));
            return over_;
        case LineKind::save:
            save(*current, document);
            return over_;
        case LineKind::end:
            inReport_ = false;
            advance();
            return true;
        default:
            if (!playLook(*current)) failAt(inWords(job));
            return over_;
    }
}

bool Player::reportFailed(const Error& error) {
    const Line* current = line();
    if (over_ || current == nullptr || current->kind != LineKind::report) return false;
    failAt("a document that cannot be made, " + inWords(error));
    return true;
}

void Player::pagePrinted(const PlainPage& page, Document& document) {
    if (over_) return;
    met("text", page.title);
    for (const std::string& words : page.lines) met("text", words);
    const auto path = outFile("pagina-" + std::to_string(++plainPages_) + ".pdf", stage_.out);
    if (!path) return;
    if (const auto saved = document.savePdf(utf8(*path)); !saved) failAt(inWords(saved.error()));
}

void Player::programEnded() {
    while (!over_) {
        const Line* current = line();
        if (current == nullptr) {
            over_ = true;
            return;
        }
        switch (current->kind) {
            case LineKind::file:
            case LineKind::bytes:
            case LineKind::record:
            case LineKind::today:
            case LineKind::copy:
                playLook(*current);
                break;
            default:
                failAt("the end of the program, its main window is closed");
        }
    }
}

bool Player::playWorld(const Line& line) {
    if (line.kind == LineKind::today) {
        hands_.setToday(line.date);
        advance();
        return true;
    }
    if (line.kind != LineKind::copy) return false;
    playCopy(line);
    return true;
}

/// Lines that do nothing to the window in front, so that they can stand anywhere.
bool Player::playLook(const Line& line) {
    switch (line.kind) {
        case LineKind::screen:
            playScreen(line);
            return true;
        case LineKind::expectText:
        case LineKind::expectState:
        case LineKind::expectCell:
        case LineKind::expectItems:
        case LineKind::expectCaption:
            playExpect(line);
            return true;
        case LineKind::file:
        case LineKind::bytes:
        case LineKind::record:
            met("file", line.name);
            return settle(lookAtFile(line, stage_));
        case LineKind::screenshot:
            playScreenshot(line);
            return true;
        default:
            return playWorld(line);
    }
}

void Player::playScreen(const Line& line) {
    Form* beside = hands_.beside();
    const Form* front = hands_.front();
    target_ = nullptr;
    if (front != nullptr && front->name() == line.name) return advance();
    if (beside != nullptr && beside->name() == line.name) {
        target_ = beside;
        return advance();
    }
    fail("the window " + line.name, inFront());
}

/// The splash window is meant by what follows its `screen` line, as long as it can be: the clerk can only look at it,
/// press it and close it.
Form* Player::formFor(const Line& line) {
    if (target_ == nullptr) return hands_.front();
    const bool isGone = hands_.beside() != target_;
    const bool isForAnother = isGesture(line.kind) && line.kind != LineKind::press && line.kind != LineKind::move &&
                              line.kind != LineKind::close;
    if (isGone || isForAnother) target_ = nullptr;
    return target_ != nullptr ? target_ : hands_.front();
}

void Player::playExpect(const Line& line) {
    const Form* form = formFor(line);
    if (form == nullptr) return failAt("no window");
    if (const Verdict verdict = lookAtForm(line, *form)) return fail(verdict->expected, verdict->was);
    const Control* control = line.kind == LineKind::expectCaption ? nullptr : form->find(line.name);
    const std::string seen = control == nullptr ? std::string() : hands_.seenOtherwise(line, *form, *control);
    if (!seen.empty()) return failAt("so in the form only: " + seen);
    met("screen", form->name());
    if (line.kind == LineKind::expectText) met("text", line.text);
    advance();
}

void Player::playGesture(const Line& line) {
    Form* form = formFor(line);
    if (form == nullptr) return failAt("no window");
    Control* control = nullptr;
    if (needsControl(line.kind)) {
        control = form->find(line.name);
        if (control == nullptr) return fail("a control " + line.name + " on " + form->name(), "none of that name");
        if (const Refusal why = refusalOf(line, *control); why != Refusal::none) {
            return failAt("refused: " + line.name + " " + std::string(inWords(why)));
        }
    }
    met("screen", form->name());
    if (control != nullptr) met("control", form->name() + "." + control->name());
    // Tab and closing are the work of the field that has the focus.
    const Control* atWork = control != nullptr ? control : form->focused();
    if (stage_.surface != nullptr && atWork != nullptr) stage_.surface->worksAt(form->name() + "." + atWork->name());
    // What the gesture brings about is played inside it, so the next line is in turn before the hands move.
    advance();
    const std::string inTheWay = hands_.make(line, *form, control);
    if (!inTheWay.empty()) failAtLine(line, "`" + line.source + "`", "refused: " + inTheWay);
}

void Player::playScreenshot(const Line& line) {
    const auto path = outFile(line.name, stage_.out);
    if (!path) return fail("a name inside the folder for pictures", line.name);
    if (const std::string trouble = hands_.takePicture(*path, formFor(line) == hands_.front() ? nullptr : target_);
        !trouble.empty())
        return failAt(trouble);
    advance();
}

void Player::playCopy(const Line& line) {
    const auto folder = pathOf(line.file).parent_path() / pathOf(line.name);
    if (const std::string trouble = layOver(folder, stage_.files); !trouble.empty()) return failAt(trouble);
    advance();
}

void Player::save(const Line& line, Document& document) {
    const auto path = outFile(line.name, stage_.out);
    if (!path) return fail("a name inside the folder for documents", line.name);
    const auto saved = document.savePdf(utf8(*path));
    if (!saved) return failAt(inWords(saved.error()));
    advance();
}

}  // namespace vorbano
