#pragma once

#include <string>

#include "storage/election.h"

namespace vorbano::bench {

inline const Election laidElection{"Europee", "09-06-24"};

/// Lays an installation that is ready for work under a root folder (UTF-8, there already), with `laidElection` and its
/// employees in it.
[[nodiscard]] Result<> layElection(const std::string& root, int employees);

}  // namespace vorbano::bench
