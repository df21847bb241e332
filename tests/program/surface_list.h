#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace vorbano::test {

/// What the program has that a clerk or a file can meet, listed from the program itself and its sources.
struct SurfaceList {
    std::set<std::string> screens;
    std::set<std::string> captions;  ///< of the screens, as their title bars say
    std::set<std::string> controls;  ///< "frmX.cmdY": has an event procedure and can be gestured at
    std::set<std::string> layouts;   ///< file names of the delivered layouts
    std::set<std::string> files;     ///< names of the record files
    std::set<std::string> texts;     ///< what messages, questions and titles say, in the pieces they are written in
};

[[nodiscard]] SurfaceList listSurfaces(const std::filesystem::path& sources);

/// What messages say and no scenario can meet, in the pieces they are written in.
[[nodiscard]] std::vector<std::string> messagesOfNoScenario();

/// The string literals of a C++ source that read as a message: adjacent ones joined, escapes undone, at least two
/// words.
[[nodiscard]] std::vector<std::string> wordsIn(const std::string& source);

/// Of `all`, what the notes of the scenarios ("control frmX.cmdY", one a line) do not name.
[[nodiscard]] std::vector<std::string> notMet(const SurfaceList& all, const std::vector<std::string>& notes);

}  // namespace vorbano::test
