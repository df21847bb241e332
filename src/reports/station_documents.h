#pragma once

// The documents of the polling stations: the summary of all stations, the members of one, the members of all straight
// to the printer. Normal and special stations, first round and run-off, go the same road and differ in files, layouts
// and words. None of them writes a record file.

#include <string>
#include <string_view>
#include <vector>

#include "records/station_files.h"
#include "reports/heading.h"
#include "screens/workplace.h"

namespace vorbano {

/// What the boxes of the screen choose.
struct StationChoice {
    StationKind kind = StationKind::normal;
    Round round = Round::first;
};

/// What is asked before the members of all stations go to the printer.
[[nodiscard]] Message allStationsQuestion(StationChoice choice);

/// Layout and title by choice and kind of election.
[[nodiscard]] PrintJob summaryJob(StationChoice choice, std::string_view electionKind);
[[nodiscard]] PrintJob oneStationJob(StationChoice choice, std::string_view electionKind);
/// Always the plain layout, also for elections held together; it has no title.
[[nodiscard]] PrintJob allStationsJob(StationChoice choice);

/// The people of all stations of one choice.
struct Stations {
    std::vector<MemberRecord> members;
    std::vector<SubstituteRecord> substitutes;
};
[[nodiscard]] Result<Stations> readStations(FileSystem& files, const Election& election, StationChoice choice);

/// Each fills the tables, runs its layout and clears the tables.
[[nodiscard]] Result<> printStationSummary(const Workplace& desk, const Election& election, StationChoice choice,
                                           const Heading& heading);
/// The members of the station `number` and then its substitutes; there must be a member.
[[nodiscard]] Result<> printStation(const Workplace& desk, const Election& election, StationChoice choice,
                                    const Heading& heading, const Stations& stations, int number);
[[nodiscard]] Result<> printAllStations(const Workplace& desk, const Election& election, StationChoice choice,
                                        const Heading& heading);

}  // namespace vorbano
