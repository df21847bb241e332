#pragma once

// How the voices of the statement of costs are shared between the two bodies of an election. One share is computed and
// rounded, the other body takes what remains, so the two always add up to the whole.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "storage/currency.h"
#include "storage/election.h"

namespace vorbano {

/// A part of a whole: {1, 6} is a sixth. Never more than the whole, never negative.
struct BodyPart {
    int of = 1;
    int in = 2;
    friend bool operator==(BodyPart, BodyPart) = default;
};
inline constexpr BodyPart oneHalf{1, 2};
inline constexpr BodyPart twoThirds{2, 3};
inline constexpr BodyPart fiveOfSix{5, 6};
inline constexpr BodyPart theWhole{1, 1};

/// The exact fraction rounded once to cents, half away from zero: half of 100,01 is 50,01, half of 0,01 is 0,01.
[[nodiscard]] Currency partOf(Currency whole, BodyPart part);

/// An amount between two bodies.
struct Shares {
    Currency first;   ///< of the body that the documents name first
    Currency second;  ///< what remains for the other
};
[[nodiscard]] Shares divide(Currency whole, BodyPart part);

/// The voices of the statement that are shared, in the order of its record.
enum class Voice : std::uint8_t {
    onorari,
    straordinario,
    speciale,
    indennita,
    ata,
    stampanti,
    trasporti,
    disciplina,
    assunzioni,
    necessita,
    missioni,
};
inline constexpr std::size_t voices = 11;
using VoiceParts = std::array<BodyPart, voices>;

/// One row of the table of sharing: what the first body takes of each voice.
struct SharingRow {
    std::string_view kind;  ///< "" stands for any
    std::string_view date;  ///< "" stands for any
    VoiceParts first;
};
/// The rows in the order in which they are tried; the last holds for every election.
[[nodiscard]] std::span<const SharingRow> sharingTable();
/// The first row that holds for the election.
[[nodiscard]] const SharingRow& sharingOf(const Election& election);
/// What the first body takes of a voice.
[[nodiscard]] BodyPart partFor(const Election& election, Voice voice);

/// The referendum of 12 June 2022, held with municipal elections: five sixths were the State's.
[[nodiscard]] bool sharedInSixths(const Election& election);

}  // namespace vorbano
