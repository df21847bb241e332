#include "fiscalcode/place_list.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "storage/codepage.h"

namespace vorbano {

namespace {

struct PlaceTable {
    std::string_view table, name, province, code;
};
/// In the order of `BornIn`.
constexpr std::array<PlaceTable, 2> tables = {
    {{"Comuni", "COMU_DESCR", "COMU_PROV", "COMU_COD"}, {"Stati", "STATI_DESCR", "STATI_PROV", "STATI_COD"}}};
constexpr std::string_view inForce = "ATTIVO";

/// No name stands more often in the list.
constexpr int namesakes = 16;

std::string textIn(const Row& row, std::string_view field) {
    const Value* value = row.find(field);
    return value == nullptr ? std::string() : shownValue(*value);
}

struct Accent {
    std::string_view letter, written;
};
constexpr std::array<Accent, 6> accents = {
    {{"À", "A'"}, {"È", "E'"}, {"É", "E'"}, {"Ì", "I'"}, {"Ò", "O'"}, {"Ù", "U'"}}};

std::string asListed(std::string_view name) {
    std::string listed = upperCase(trim(name));
    for (const Accent& accent : accents) {
        for (std::size_t at = listed.find(accent.letter); at != std::string::npos; at = listed.find(accent.letter)) {
            listed.replace(at, accent.letter.size(), accent.written);
        }
    }
    return listed;
}

}  // namespace

Result<std::optional<Birthplace>> PlaceList::atOrAfter(BornIn where, std::string_view text) {
    const PlaceTable& in = tables.at(static_cast<std::size_t>(where));
    const auto rows = places_.seek(in.table, in.name, upperCase(text), namesakes);
    if (!rows) return rows.error();
    if (rows->empty()) return std::optional<Birthplace>();
    const std::string name = textIn(rows->front(), in.name);
    const auto chosen = std::find_if(rows->begin(), rows->end(), [&](const Row& row) {
        return textIn(row, in.name) == name && textIn(row, inForce) == "1";
    });
    const Row& row = chosen == rows->end() ? rows->front() : *chosen;
    return std::optional(
        Birthplace{std::string(trim(name)), std::string(trim(textIn(row, in.province))), textIn(row, in.code)});
}

Result<std::optional<Birthplace>> PlaceList::named(BornIn where, std::string_view name) {
    const std::string listed = asListed(name);
    auto place = atOrAfter(where, listed);
    if (place && *place && (*place)->name != listed) return std::optional<Birthplace>();
    return place;
}

}  // namespace vorbano
