#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "random/chance.h"
#include "storage/election.h"

namespace vorbano::test {

/// The elections on the disk.
[[nodiscard]] std::vector<Election> storedElections(FileSystem& files);
/// Mostly one of those, else one that is not there.
[[nodiscard]] Election someElection(const std::vector<Election>& stored, Chance& chance);

/// Something to type into a field: mostly what its name asks for in an election, else anything that keys can give.
[[nodiscard]] std::string wordsFor(std::string_view field, const Election& election, Chance& chance);

}  // namespace vorbano::test
