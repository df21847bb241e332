#include "storage/election.h"

#include <algorithm>

#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

const std::array<ElectionType, 11> electionTypes = {{
    {"Europee", false},
    {"Europee_Comunali", true},
    {"Provinciali", false},
    {"Comunali", false},
    {"Referendum", false},
    {"Politiche", false},
    {"Regionali", false},
    {"Provinciali_Comunali", true},
    {"Politiche_Comunali", true},
    {"Politiche_Regionali", true},
    {"Referendum_Comunali", true},
}};

const std::array<std::string_view, 11> electionTypesForAuthorisation = {
    "Europee",    "Europee_Comunali",    "Provinciali",         "Comunali",
    "Referendum", "Politiche_Comunali",  "Regionali",           "Provinciali_Comunali",
    "Politiche",  "Politiche_Regionali", "Referendum_Comunali",
};

namespace {

constexpr std::string_view electionsFolder = "Elezioni";

/// The year from which every election has three periods. The two digits of a date cannot tell 1914 or 1999 from it.
constexpr int yearOfThreePeriods = 14;

/// The single types that had a fourth period before 2014; combined types always had one.
struct FourthPeriod {
    std::string_view type;
    bool elimina;
    bool modDate;
    bool stampe;
};
constexpr FourthPeriod fourthPeriods[] = {
    {"Europee", true, true, true},     {"Comunali", true, true, false},   {"Regionali", true, true, true},
    {"Provinciali", true, true, true}, {"Referendum", false, true, true},
};
/// A fifth one had these, alone or as part of a longer name.
constexpr std::string_view fifthPeriods[] = {"Politiche_Regionali", "Europee_Comunali"};

bool hadFourthPeriod(std::string_view type, PeriodRule rule) {
    if (type.find('_') != std::string_view::npos) return true;
    const auto* const row = std::ranges::find(fourthPeriods, type, &FourthPeriod::type);
    if (row == std::end(fourthPeriods)) return false;
    switch (rule) {
        case PeriodRule::elimina:
            return row->elimina;
        case PeriodRule::modDate:
            return row->modDate;
        case PeriodRule::stampe:
            return row->stampe;
    }
    return false;
}

bool hadFifthPeriod(std::string_view type) {
    return std::ranges::any_of(fifthPeriods,
                               [&](std::string_view part) { return type.find(part) != std::string_view::npos; });
}

/// The text is one name of a path and no more: neither empty nor with a separator nor climbing.
bool isOneName(std::string_view text) {
    const auto names = splitPath(text);
    return names && names->size() == 1;
}

std::vector<std::string> foldersIn(FileSystem& files, std::string_view folder) {
    std::vector<std::string> names;
    const auto entries = files.list(folder);
    if (!entries) return names;
    for (const Entry& entry : *entries) {
        if (entry.isFolder) names.push_back(entry.name);
    }
    return names;
}

}  // namespace

const ElectionType* findElectionType(std::string_view name) {
    const auto* const found = std::ranges::find(electionTypes, trim(name), &ElectionType::name);
    return found == electionTypes.end() ? nullptr : found;
}

Result<std::string> Election::folder() const {
    const std::string_view typeName = trim(type);
    const std::string_view dateName = trim(date);
    if (!isOneName(typeName) || !isOneName(dateName)) return Error{Failure::badName, type + "/" + date};
    std::string path(electionsFolder);
    path.append("/").append(typeName).append("/").append(dateName);
    return path;
}

Result<std::string> Election::file(std::string_view name) const {
    if (!isOneName(name)) return Error{Failure::badName, std::string(name)};
    auto path = folder();
    if (!path) return path;
    return path->append("/").append(name);
}

Result<std::string> Election::employeeFile() const { return file(std::string(trim(date)) + ".vbn"); }

int Election::yearOfCentury() const {
    constexpr std::size_t firstDigit = 6;
    return date.size() > firstDigit ? wholeScan(std::string_view(date).substr(firstDigit, 2)) : 0;
}

bool Election::hasPeriod(int period, PeriodRule rule) const {
    constexpr int alwaysThere = 3;
    if (period >= 1 && period <= alwaysThere) return true;
    if (period < 1 || period > maxPeriods || yearOfCentury() >= yearOfThreePeriods) return false;
    return period == maxPeriods ? hadFifthPeriod(trim(type)) : hadFourthPeriod(trim(type), rule);
}

Result<> makeElectionFolder(FileSystem& files, const Election& election) {
    const auto whole = election.folder();
    if (!whole) return whole.error();
    const std::string_view path = *whole;
    for (std::size_t end = path.find('/');; end = path.find('/', end + 1)) {
        if (auto made = files.makeFolder(path.substr(0, end)); !made) return made;
        if (end == std::string_view::npos) return {};
    }
}

std::vector<std::string> TipoElezioni(FileSystem& files) { return foldersIn(files, electionsFolder); }

std::vector<std::string> DataEle(FileSystem& files, std::string_view type) {
    const std::string_view name = trim(type);
    if (!isOneName(name)) return {};
    return foldersIn(files, std::string(electionsFolder).append("/").append(name));
}

}  // namespace vorbano
