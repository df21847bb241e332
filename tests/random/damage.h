#pragma once

#include <array>
#include <string>
#include <string_view>

#include "random/stored_states.h"

namespace vorbano::test {

/// What can befall a file of an installation.
enum class Damage { noise, oneByteShort, oneByteLong, empty, folder };
inline constexpr std::array damages = {Damage::noise, Damage::oneByteShort, Damage::oneByteLong, Damage::empty,
                                       Damage::folder};
[[nodiscard]] std::string_view nameOf(Damage damage);

/// Does it to a file that is there. The noise is the same in every run.
void hurt(FileSystem& files, const std::string& path, Damage damage);

/// The election of `wholeInstallation`: of two bodies, with five periods.
inline constexpr std::string_view wholeType = "Provinciali_Comunali";
inline constexpr std::string_view wholeDate = "06-05-12";
/// An installation in which every file that an election can have is there, and one election more.
[[nodiscard]] StoredState wholeInstallation(const std::filesystem::path& scenarios);

}  // namespace vorbano::test
