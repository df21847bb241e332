// The search: what the files of the election hold decides what can be asked for.

#include <cstddef>
#include <cstring>

#include "records/adjustment_records.h"
#include "reports/frmTutteStampe.h"
#include "screens/well_done.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

/// The members of the polling stations repeat the number of stations here, normal or special, first round or run-off.
constexpr std::size_t stationsAt = 22;

/// From this year on every election has three periods.
constexpr int yearOfThreePeriods = 14;

}  // namespace

/// The flags deliberately do not mean the same: `Label13` says that there are records, `Label12` and `Label7` that
/// there are none.
std::vector<frmTutteStampe::SearchedFile> frmTutteStampe::searchedFiles() {
    return {
        {.name = "SpecSufr.vbn", .width = 224, .stations = &Label11, .flag = &Label13, .empty = "0", .filled = "1"},
        {.name = "SegSuf.vbn",
         .width = 246,
         .stations = &Label10,
         .flag = &Label12,
         .empty = "1",
         .filled = "0",
         .lights = {&Check4}},
        {.name = {},
         .width = sizeof(EmployeeRecord),
         .lights = {&cmdImpegno, &cmdDetermina, &cmdLRendiconto, &Check5, &Check6, &Check7, &Check8},
         .ticks = {&Check5}},
        {.name = congsFile, .width = sizeof(AdjustmentRecord), .shows = adjustmentCommands()},
        {.name = "Seggi.vbn",
         .width = 216,
         .stations = &Label8,
         .lights = {&cmdRSeggi, &cmdSSeggio, &cmdTSeggi, &Check1, &Check3},
         .ticks = {&Check1, &Check3}},
        {.name = "Rendi.vbn", .width = 152, .lights = {&cmdRendiconto}},
        {.name = "Versum.vbn", .width = 95, .lights = {&cmdContributi}},
        {.name = "Speciale.vbn",
         .width = 216,
         .stations = &Label9,
         .flag = &Label7,
         .empty = "1",
         .filled = "0",
         .lights = {&Check2}},
    };
}

/// The statement of an adjustment is deliberately not offered in a year that ends in 9.
std::vector<Control*> frmTutteStampe::adjustmentCommands() {
    std::vector<Control*> commands = {&Frame3, &cmdConguaglio, &cmdCongA};
    if (!election().date.ends_with('9')) commands.push_back(&cmdCongRend);
    return commands;
}

/// Opening a file that the election does not have leaves an empty one behind, here as everywhere.
Result<frmTutteStampe::Seen> frmTutteStampe::lookInto(const SearchedFile& file) {
    const auto path = file.name.empty() ? election().employeeFile() : election().file(file.name);
    if (!path) return path.error();
    const auto records = RawRecordFile::open(desk_.files, *path, file.width);
    if (!records) return records.error();
    std::vector<std::byte> first(file.width);
    if (const auto read = records->read(1, first); !read) {
        if (read.error().kind == Failure::notFound) return Seen{};
        return read.error();
    }
    Integer stations;
    std::memcpy(&stations, first.data() + stationsAt, sizeof(stations));
    return Seen{true, stations};
}

bool frmTutteStampe::electionGiven() {
    if (!election().type.empty() && !election().date.empty()) return true;
    desk_.desktop.tell({"dati insufficienti per la ricerca", "Errore", Icon::warning});
    form.focus(Combo1);
    return false;
}

void frmTutteStampe::cmdAnteprima_Click() {
    if (!electionGiven()) return;
    const std::vector<SearchedFile> files = searchedFiles();
    std::vector<Seen> seen;
    for (const SearchedFile& file : files) {
        const auto one = lookInto(file);
        if (!one) {
            tellMissing(one.error());
            return;
        }
        seen.push_back(*one);
    }
    for (std::size_t at = 0; at < files.size(); ++at) show(files[at], seen[at]);
    showLatePeriods();
    showStationCounts();
    Combo1.enabled = false;
    Combo4.enabled = false;
    txtDataEle.enabled = false;
    cmdRiavvia.enabled = true;
    cmdAnteprima.enabled = false;
    // On with the work: Enter must not take the search back.
    form.focus(cmdImpegno);
}

void frmTutteStampe::tellMissing(const Error& error) {
    if (error.kind == Failure::missingFolder || error.kind == Failure::badName) {
        desk_.desktop.tell({"Data di Elezione inesistente!", "Errore", Icon::warning});
        form.focus(txtDataEle);
    } else {
        wellDone(error, desk_.desktop);
    }
}

void frmTutteStampe::show(const SearchedFile& file, const Seen& seen) {
    if (file.flag != nullptr) file.flag->text = std::string(seen.filled ? file.filled : file.empty);
    if (!seen.filled) return;
    if (file.stations != nullptr) file.stations->text = std::to_string(seen.stations);
    for (Control* control : file.lights) control->enabled = true;
    for (CheckBox* box : file.ticks) box->checked = true;
    for (Control* control : file.shows) control->visible = true;
}

/// Before 2014 some elections had a fourth and a fifth period.
void frmTutteStampe::showLatePeriods() {
    Check9.visible = election().hasPeriod(4, PeriodRule::stampe);
    Check10.visible = election().hasPeriod(5, PeriodRule::stampe);
    // Check5 was lighted by the employee records, and these two follow it.
    const bool usable = Check5.enabled() && election().yearOfCentury() < yearOfThreePeriods;
    Check9.enabled = usable;
    Check10.enabled = usable;
}

}  // namespace vorbano
