#include "statement/sharing.h"

#include <algorithm>

namespace vorbano {

namespace {

constexpr std::int64_t unitsInCent = 100;
constexpr std::string_view sixthsKind = "Referendum_Comunali";
constexpr std::string_view sixthsDate = "12-06-22";

constexpr VoiceParts every(BodyPart part) {
    VoiceParts parts{};
    parts.fill(part);
    return parts;
}
constexpr VoiceParts with(VoiceParts parts, Voice voice, BodyPart part) {
    parts.at(static_cast<std::size_t>(voice)) = part;
    return parts;
}

/// Fees and refunds of the stations are one body's alone; what the offices spend is halved.
constexpr VoiceParts stationsWhole =
    with(with(with(every(oneHalf), Voice::onorari, theWhole), Voice::speciale, theWhole), Voice::indennita, theWhole);

/// For European elections the staff taken on for a time is the State's alone, also when they are held with others.
constexpr VoiceParts staffWhole = with(every(oneHalf), Voice::assunzioni, theWhole);

/// Postal expenses were not divided in that referendum: the claim is five sixths and the whole of them.
constexpr VoiceParts sixths = with(every(fiveOfSix), Voice::necessita, theWhole);

constexpr std::array table = {
    SharingRow{"Politiche_Comunali", "", every(twoThirds)},
    SharingRow{"Politiche_Regionali", "", every(twoThirds)},
    SharingRow{"Provinciali", "", stationsWhole},
    SharingRow{"Comunali", "", stationsWhole},
    SharingRow{"Regionali", "", stationsWhole},
    SharingRow{sixthsKind, sixthsDate, sixths},
    SharingRow{"Europee", "", staffWhole},
    SharingRow{"Europee_Comunali", "", staffWhole},
    SharingRow{"", "", every(oneHalf)},
};
// Every election finds a row.
static_assert(table.back().kind.empty() && table.back().date.empty());

}  // namespace

Currency partOf(Currency whole, BodyPart part) {
    // Whole cents of the share, and what is left over in units of 1/10,000 divided by the same number.
    const std::int64_t inOneCent = unitsInCent * part.in;
    const std::int64_t cent = whole.units() / inOneCent * part.of;
    const std::int64_t rest = whole.units() % inOneCent * part.of;
    const std::int64_t toNearest = rest < 0 ? -inOneCent / 2 : inOneCent / 2;
    return Currency::fromCents(cent + (rest + toNearest) / inOneCent);
}

Shares divide(Currency whole, BodyPart part) {
    const Currency first = partOf(whole, part);
    return {first, whole - first};
}

std::span<const SharingRow> sharingTable() { return table; }

const SharingRow& sharingOf(const Election& election) {
    const auto holds = [&](const SharingRow& row) {
        return (row.kind.empty() || row.kind == election.type) && (row.date.empty() || row.date == election.date);
    };
    const auto* const found = std::ranges::find_if(table, holds);
    return found == table.end() ? table.back() : *found;
}

BodyPart partFor(const Election& election, Voice voice) {
    return sharingOf(election).first.at(static_cast<std::size_t>(voice));
}

bool sharedInSixths(const Election& election) { return election.type == sixthsKind && election.date == sixthsDate; }

}  // namespace vorbano
