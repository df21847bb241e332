#pragma once

// The members of a station as lines of a grid.

#include <string>

#include "platform/control.h"
#include "records/station_records.h"

namespace vorbano {

/// The heading of the grid, and what stands in a line under it.
[[nodiscard]] Lines memberHeading();
/// `number`: what the column "Nr" shows.
[[nodiscard]] Lines memberLine(int number, const StationPerson& person);

/// A member as the fields of a screen hold it. `fee` is an amount in cents.
struct PersonTexts {
    std::string surname;
    std::string name;
    std::string address;
    std::string role;
    std::string tookPart;
    std::string fiscalCode;
    Currency fee;
};
/// Cut and padded to the fields of the record.
[[nodiscard]] StationPerson personOf(const PersonTexts& texts);

}  // namespace vorbano
