#include "random/walk.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/operator.h"
#include "platform/staging_tables.h"
#include "program/program.h"
#include "random/invariants.h"
#include "random/vocabulary.h"
#include "storage/memory_file_system.h"
#include "support/places.h"

namespace vorbano::test {

namespace {

/// A screen says a handful of things; one that says more goes round and round.
constexpr std::size_t mostBoxes = 2000;

bool ends(const Control& control) {
    for (const char* name : {"Esci", "cmdAnnulla", "cmdRiavvia", "cmdDisattiva", "cmdChiudi"}) {
        if (control.name().find(name) != std::string::npos) return true;
    }
    return false;
}

}  // namespace

Walk::Walk(FileSystem& files, Election election)
    : files_(files), election_(std::move(election)), staging_(stagingTables()), places_(placeTables()) {
    fillPlaces(places_);
}

std::vector<std::string> Walk::screens() {
    MemoryFileSystem nowhere;
    Walk nobody(nowhere, {});
    auto names = Program(nowhere, nobody, nobody.staging_, nobody.places_, nobody).names();
    names.emplace_back("Form1");
    return names;
}

void Walk::through(const std::string& screen) {
    wanted_ = screen;
    Program program(files_, *this, staging_, places_, *this);
    if (screen == "Form1") {
        program.run();
    } else {
        program.open(screen);
    }
}

void Walk::show(Form& form) {
    forms_.push(form);
    if (form.name() == wanted_ && forms_.size() == 1) {
        search(form);
        useAll(form);
        search(form);
    }
    form.close();
    forms_.pop();
}

void Walk::search(Form& form) {
    Operator clerk(form);
    const auto choose = [&](const std::string& words) {
        for (Control* control : form.controls()) {
            if (form.isOpen() && control->kind() == Kind::comboBox) static_cast<void>(clerk.choose(*control, words));
        }
    };
    choose(election_.type);
    choose(election_.date);
    if (Control* date = form.find("txtDataEle"); date != nullptr && form.isOpen()) {
        static_cast<void>(clerk.type(*date, election_.date));
        clerk.leave();
    }
    for (const char* name : {"txtSeggio", "txtSonoDip", "txtNumDip"}) {
        Control* number = form.find(name);
        if (number == nullptr || !form.isOpen() || clerk.type(*number, "1") != Refusal::none) continue;
        clerk.leave();
    }
    for (const char* name : {"cmdRicerca", "cmdAnteprima", "cmdAttiva"}) {
        Control* command = form.find(name);
        if (command != nullptr && form.isOpen() && clerk.click(*command) == Refusal::none) break;
    }
}

void Walk::useAll(Form& form) {
    for (Control* control : form.controls()) {
        if (!form.isOpen()) return;
        if (ends(*control)) continue;
        use(form, *control);
        if (const std::string wrong = wrongIn(form); !wrong.empty()) throw std::runtime_error(wrong);
    }
}

void Walk::use(Form& form, Control& control) {
    Operator clerk(form);
    // What cannot be used now is left alone: that is a clear answer too.
    switch (control.kind()) {
        case Kind::button:
        case Kind::option:
            static_cast<void>(clerk.click(control));
            break;
        case Kind::checkBox:
            static_cast<void>(clerk.tick(control, !static_cast<CheckBox&>(control).checked()));
            break;
        case Kind::comboBox: {
            const auto& list = static_cast<ComboBox&>(control);
            const bool ofElection = list.find(election_.type) >= 0 || list.find(election_.date) >= 0;
            if (!ofElection) static_cast<void>(clerk.chooseIndex(control, 0));
            break;
        }
        case Kind::listBox:
            static_cast<void>(clerk.chooseIndex(control, 1));
            break;
        case Kind::grid:
            static_cast<void>(clerk.pick(control, 1, 0));
            break;
        case Kind::frame:
            static_cast<void>(clerk.press(control));
            break;
        case Kind::tabPanel:
            for (const int page : {1, 2, 0}) static_cast<void>(clerk.turn(control, page));
            break;
        case Kind::menuEntry:
            // The entries of the main window lead to the screens, which are walked through on their own.
            if (form.name() == "Form1" && control.name().starts_with("mnu")) break;
            static_cast<void>(clerk.menu(control));
            break;
        case Kind::textBox:
            if (!control.shownText().empty()) break;
            static_cast<void>(clerk.type(control, wordsFor(control.name(), election_, chance_)));
            clerk.leave();
            break;
        case Kind::label:
        case Kind::timer:
            break;
    }
}

void Walk::boxCame(const Message& message) {
    boxes_.push_back(message.title + ": " + message.text);
    if (message.text.empty()) throw std::runtime_error("a box without a word");
    if (boxes_.size() > mostBoxes) throw std::runtime_error("boxes without end");
}

bool Walk::ask(const Message& message) {
    boxCame(message);
    return true;
}

std::chrono::year_month_day Walk::today() const {
    return {std::chrono::year(2024), std::chrono::month(6), std::chrono::day(10)};
}

Result<> Walk::run(const PrintJob& job) {
    documents_.push_back(job.layout);
    return {};
}

Result<> Walk::printPage(const PlainPage& page) {
    documents_.push_back(page.title);
    return {};
}

}  // namespace vorbano::test
