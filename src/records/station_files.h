#pragma once

// Reading the polling stations of an election. The two rounds and the two kinds of station differ in files and widths
// and in nothing else, so all readers see the people in the form of the first round.

#include <cstdint>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "records/station_records.h"
#include "storage/election.h"

namespace vorbano {

enum class StationKind : std::uint8_t { normal, special };
enum class Round : std::uint8_t { first, runOff };

/// The file's name in the folder of the election.
[[nodiscard]] std::string_view membersFile(StationKind kind, Round round);
[[nodiscard]] std::string_view substitutesFile(StationKind kind, Round round);

/// All records in order; none when the file is new, and then it stays behind with a length of 0. `missingFolder` when
/// the election has no folder, `badName` when it can have none. The date of the run-off is left out. The files of the
/// run-off have no other way in: nothing writes them.
[[nodiscard]] Result<std::vector<MemberRecord>> readMembers(FileSystem& files, const Election& election,
                                                            StationKind kind, Round round);
[[nodiscard]] Result<std::vector<SubstituteRecord>> readSubstitutes(FileSystem& files, const Election& election,
                                                                    StationKind kind, Round round);

}  // namespace vorbano
