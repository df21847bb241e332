#include "surface_list.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "empty_office.h"
#include "program/record_files.h"
#include "records/payment_records.h"
#include "records/station_records.h"
#include "records/tariff_records.h"

namespace vorbano::test {

namespace {

namespace fs = std::filesystem;

bool gesturedProcedure(const Control& control) {
    const bool focus = control.gotFocus.hasProcedure() || control.lostFocus.hasProcedure();
    switch (control.kind()) {
        case Kind::textBox:
            return focus || static_cast<const TextBox&>(control).change.hasProcedure();
        case Kind::button:
            return focus || static_cast<const Button&>(control).clicked.hasProcedure();
        case Kind::checkBox:
            return focus || static_cast<const CheckBox&>(control).clicked.hasProcedure();
        case Kind::option:
            return focus || static_cast<const Option&>(control).clicked.hasProcedure();
        case Kind::comboBox:
        case Kind::listBox:
            return focus || static_cast<const ItemControl&>(control).clicked.hasProcedure();
        case Kind::grid:
            return focus || static_cast<const Grid&>(control).picked.hasProcedure();
        case Kind::frame:
            return static_cast<const Frame&>(control).pressed.hasProcedure() ||
                   static_cast<const Frame&>(control).moved.hasProcedure();
        case Kind::tabPanel:
            return focus || static_cast<const TabPanel&>(control).turned.hasProcedure();
        case Kind::menuEntry:
            return static_cast<const MenuEntry&>(control).clicked.hasProcedure();
        case Kind::label:
        case Kind::timer:
            return false;
    }
    return false;
}

/// A control that only shows can have a procedure and never be gestured at: what is locked from the start and by no
/// procedure opened. Such fields are named here, with the reason.
const std::set<std::string>& onlyShown() {
    static const std::set<std::string> names = [] {
        std::set<std::string> fields = {
            "frmCompStraord.txtMoUtil",  // the hours used come from the files
            "frmCompStraord.txtGlobo",   // the pools are computed
            "frmElimina.txtDipendente",  // the name is chosen in the list
            // Total and difference of a statement are computed.
            "frmInsRend.txtTotale",
            "frmInsRend.txtDifferenza",
            "frmModRend.txtTotale",
            "frmModRend.txtDifferenza",
        };
        // The rates of the grades with a "G" come with a version or a date of effect.
        for (const TariffRow& row : tariffRows) {
            if (!row.readOnly()) continue;
            for (const char* kind : {"Day", "Fn", "Nf"})
                fields.insert("frmParametri.txt" + std::string(row.key) + kind);
        }
        return fields;
    }();
    return names;
}

/// A desk on which every form opens, is listed, and closes at once.
class ListingDesktop : public Desktop {
  public:
    explicit ListingDesktop(SurfaceList& list) : list_(list) {}

    void show(Form& form) override { see(form); }
    void showBeside(Form& form) override { see(form); }
    void tell(const Message&) override {}
    bool ask(const Message&) override { return false; }
    [[nodiscard]] std::chrono::year_month_day today() const override { return {}; }

  private:
    void see(Form& form) {
        list_.screens.insert(form.name());
        list_.captions.insert(form.caption());
        for (const Control* control : form.controls()) {
            const bool hidden =
                control->kind() == Kind::menuEntry && !static_cast<const MenuEntry*>(control)->visible();
            const std::string name = form.name() + "." + control->name();
            if (control->hasWidget() && !hidden && gesturedProcedure(*control) && !onlyShown().contains(name)) {
                list_.controls.insert(name);
            }
        }
    }
    SurfaceList& list_;
};

void listScreens(SurfaceList& list) {
    ListingDesktop desktop(list);
    test::openEveryScreen(desktop);
}

std::string contentOf(const fs::path& file) {
    std::ifstream source(file, std::ios::binary);
    std::string text;
    for (char one = 0; source.get(one);) text += one;
    return text;
}

/// Folders whose sources speak to the clerk.
constexpr const char* speakingFolders[] = {"screens",    "shell",     "parameters", "overtime", "stations",
                                           "fiscalcode", "statement", "reports",    "payments", "maintenance"};
/// And what else does, outside of the screens.
constexpr const char* speakingSources[] = {"platform/qt/places_choice.cpp"};

/// Written in the program and met by no scenario, each for a reason.
const std::set<std::string>& provenElsewhere() {
    static const std::set<std::string> texts = [] {
        const std::vector<std::string> messages = messagesOfNoScenario();
        std::set<std::string> all(messages.begin(), messages.end());
        // A word between the figures of the first of them.
        all.insert(" diffmonte ");
        // The months of the headings are one table, proven month by month by its own tests.
        all.insert(
            {" Febbraio ", " Aprile ", " Luglio ", " Agosto ", " Settembre ", " Ottobre ", " Novembre ", " Dicembre "});
        return all;
    }();
    return texts;
}

/// Files that no screen reads or writes yet; their bytes are proven by their own tests.
const std::set<std::string_view>& metByNoScreen() {
    static const std::set<std::string_view> files = {
        // Companions never remain after a rebuild.
        reversumFile,
        seggiRevFile,
        revSosSeggiFile,
        revSosSpecFile,
    };
    return files;
}

/// Layouts that the choice by kind and date never reaches. They are delivered, and rendered by the tests of layouts.
const std::set<std::string_view>& neverChosen() {
    static const std::set<std::string_view> layouts = {"rendrip.rpt"};
    return layouts;
}

void listTexts(SurfaceList& list, const fs::path& sources) {
    std::vector<fs::path> speaking;
    for (const char* folder : speakingFolders) {
        for (const auto& entry : fs::directory_iterator(sources / "src" / folder)) {
            if (entry.path().extension() == ".cpp") speaking.push_back(entry.path());
        }
    }
    for (const char* source : speakingSources) speaking.push_back(sources / "src" / source);
    for (const fs::path& source : speaking) {
        for (std::string& text : wordsIn(contentOf(source))) {
            if (!provenElsewhere().contains(text)) list.texts.insert(std::move(text));
        }
    }
}

/// Reads one literal that begins at `at` (on its quote); `at` is then behind it.
std::string literalAt(const std::string& source, std::size_t& at) {
    std::string text;
    for (++at; at < source.size() && source[at] != '"'; ++at) {
        if (source[at] != '\\') {
            text += source[at];
            continue;
        }
        ++at;
        text += source[at] == 'n' ? '\n' : source[at];
    }
    ++at;
    return text;
}

/// Blanks, line ends and comments.
std::size_t behindBlanks(const std::string& source, std::size_t at) {
    while (at < source.size()) {
        if (std::isspace(static_cast<unsigned char>(source[at])) != 0) {
            ++at;
        } else if (source.compare(at, 2, "//") == 0) {
            at = std::min(source.find('\n', at), source.size());
        } else {
            break;
        }
    }
    return at;
}

bool readsAsMessage(const std::string& text) {
    const auto letter = [](unsigned char one) { return std::isalpha(one) != 0; };
    const auto letters = std::count_if(text.begin(), text.end(), letter);
    return letters >= 6 && text.find(' ') != std::string::npos && text.find(".h") == std::string::npos;
}

std::string onOneLine(const std::string& text) {
    std::string line;
    for (const char one : text) line += one == '\n' ? std::string("\\n") : std::string(1, one);
    return line;
}

}  // namespace

std::vector<std::string> messagesOfNoScenario() {
    return {
        // Step five of the limits: the first step always comes before it; the text stands ready as the office wrote it.
        "Le ore autorizzate superano non solo il limite medio mensile di ",
        " ore, ma anche il limite del monte ore mensile delle",
        " ore, di n.",
        // The second message for an empty number of a station: the first always comes before it; both are the office's.
        "Non è stato inserito in numero di seggio da stampare",
        // A search that the disk fails, which no scenario can ask for; the tests of the screen show it.
        "FasMsg: ",
        // A statement of a kind that goes to the stations and has no layout: the two tables of kinds agree, so it is
        // never said; the text stands ready as the office wrote it.
        "c'è un errore!!!",
        // A missing staging database: a scenario lays the installation first. The tests of the start show it.
        " I documenti non possono essere stampati.",
    };
}

std::vector<std::string> wordsIn(const std::string& source) {
    std::vector<std::string> found;
    for (std::size_t at = 0; at < source.size();) {
        if (source.compare(at, 2, "//") == 0) {
            at = std::min(source.find('\n', at), source.size());
        } else if (source[at] == '\'' && at + 2 < source.size()) {
            at += source[at + 1] == '\\' ? 4 : 3;
        } else if (source[at] == '"') {
            std::string text;
            for (; at < source.size() && source[at] == '"'; at = behindBlanks(source, at))
                text += literalAt(source, at);
            if (readsAsMessage(text)) found.push_back(std::move(text));
        } else {
            ++at;
        }
    }
    return found;
}

SurfaceList listSurfaces(const fs::path& sources) {
    SurfaceList list;
    listScreens(list);
    listTexts(list, sources);
    for (const auto& entry : fs::directory_iterator(sources / "installation" / "Stampe")) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() == ".rpt" && !neverChosen().contains(name)) list.layouts.insert(name);
    }
    for (const RecordInfo& record : recordFiles()) {
        if (!metByNoScreen().contains(record.file)) list.files.insert(std::string(record.file));
    }
    return list;
}

std::vector<std::string> notMet(const SurfaceList& all, const std::vector<std::string>& notes) {
    const std::set<std::string> met(notes.begin(), notes.end());
    std::vector<std::string> missing;
    const auto need = [&](const std::set<std::string>& names, const std::string& kind) {
        for (const std::string& name : names) {
            if (!met.contains(kind + " " + name)) missing.push_back(kind + " " + name);
        }
    };
    need(all.screens, "screen");
    need(all.controls, "control");
    need(all.layouts, "layout");
    const auto said = [&](const std::string& text) {
        return std::any_of(notes.begin(), notes.end(), [&](const std::string& note) {
            return (note.starts_with("box ") || note.starts_with("text ")) && note.find(text) != std::string::npos;
        });
    };
    for (const std::string& text : all.texts) {
        if (!said(onOneLine(text))) missing.push_back("text " + onOneLine(text));
    }
    const auto lookedInto = [&](const std::string& file) {
        // The employee record file bears the date of its election.
        const std::string end = file.starts_with('<') ? "-24.vbn" : "/" + file;
        return std::any_of(notes.begin(), notes.end(),
                           [&](const std::string& note) { return note.starts_with("file ") && note.ends_with(end); });
    };
    for (const std::string& file : all.files) {
        if (!lookedInto(file)) missing.push_back("file " + file);
    }
    return missing;
}

}  // namespace vorbano::test
