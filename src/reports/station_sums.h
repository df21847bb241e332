#pragma once

// What the polling stations of an election come to, station by station.

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "records/station_files.h"
#include "records/station_tariff_records.h"

namespace vorbano {

/// What one station comes to.
struct StationSum {
    int station = 0;
    Currency onorario;  ///< the fees of its members and of their substitutes
    Currency quota;     ///< the part of the tariff that another body bears, by the roles of its members
};

/// One sum for each run of records of one number, in the order of the file, each amount rounded to cents before it is
/// added. A substitute goes with the number of the station, once, and one of a station without members with none. Only
/// members have a quota; without a row of the tariff it is 0.
[[nodiscard]] std::vector<StationSum> stationSums(std::span<const MemberRecord> members,
                                                  std::span<const SubstituteRecord> substitutes,
                                                  const std::optional<NormalTariff>& quotas);

/// How the fees of a station are divided.
struct StationShares {
    Currency MCom;
    Currency MProv;
    std::optional<Currency> Prov;  ///< only for the kinds of election whose tariff has a part of the Provincia
};
/// The Provincia bears the quota. Of provincial and municipal elections together it is taken from what the Comune
/// bears; of all others the Comune has the whole, which is deliberate for the provincial ones too.
[[nodiscard]] StationShares sharesOf(const StationSum& sum, std::string_view kind);

}  // namespace vorbano
