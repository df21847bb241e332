#pragma once

// An election is its type and its date and nothing else; the tree of folders under "Elezioni" is the index.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "storage/file_system.h"

namespace vorbano {

/// One of the eleven types. `combined`: two elections held together.
struct ElectionType {
    std::string_view name;
    bool combined;
};
/// In the order of the lists of most screens.
extern const std::array<ElectionType, 11> electionTypes;
/// The list of the authorisation screen, which deliberately has Politiche_Comunali sixth and Politiche ninth.
extern const std::array<std::string_view, 11> electionTypesForAuthorisation;

/// nullptr when the name (trimmed) is none of the eleven.
[[nodiscard]] const ElectionType* findElectionType(std::string_view name);

/// The most periods that an election can have.
inline constexpr int maxPeriods = 5;

/// The screens decide by rules of their own who had a fourth period before 2014; the differences are deliberate. The
/// liquidation shows what the reports show.
enum class PeriodRule : std::uint8_t { elimina, modDate, stampe, modStraord = stampe };

struct Election {
    std::string type;  ///< trimmed
    std::string date;  ///< "dd-mm-yy", as the date field stands after its reformatting

    /// "Elezioni/<type>/<date>". `badName` when either is empty or would make the path climb.
    [[nodiscard]] Result<std::string> folder() const;
    /// A file of the election's folder: `file("Meirin.vbn")`.
    [[nodiscard]] Result<std::string> file(std::string_view name) const;
    /// The employee record file, named after the date.
    [[nodiscard]] Result<std::string> employeeFile() const;

    /// Plain scan of characters 7 and 8 of the date: 24 for "09-06-24".
    [[nodiscard]] int yearOfCentury() const;
    /// Whether period 4 or 5 exists on the screens that follow `rule`; periods 1 to 3 always do. None from 2014 on.
    [[nodiscard]] bool hasPeriod(int period, PeriodRule rule) const;
};

/// Makes "Elezioni", the folder of the type and the folder of the date; existing levels do no harm.
[[nodiscard]] Result<> makeElectionFolder(FileSystem& files, const Election& election);

/// Names of the folders under "Elezioni", in the order that the disk gives. Empty when there are none.
[[nodiscard]] std::vector<std::string> TipoElezioni(FileSystem& files);
/// Names of the folders of one type, dates or not.
[[nodiscard]] std::vector<std::string> DataEle(FileSystem& files, std::string_view type);

}  // namespace vorbano
