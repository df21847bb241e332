#pragma once

// The pools of an election by period, as the screens show them before and after a change. The names of the controls
// are the same for all periods but for the number at their end.

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "overtime/pools.h"
#include "platform/form.h"

namespace vorbano {

/// The line of one period: figures in hours that the clerk reads and never types.
class SituationLine {
  public:
    TextBox indi;  ///< individual average limit
    TextBox mens;  ///< monthly pool of the period
    TextBox uti;   ///< hours authorised
    TextBox res;   ///< mens - uti

    /// `suffix` is what the names end in: "2" for `txtIndi2`, "D2" for `txtIndiD2`.
    SituationLine(Container& parent, std::string_view suffix);

    void setVisible(bool visible);
    void clear();
    /// Figures as they stand in a record.
    void showStored(int average, int pool, std::int64_t used);
    /// Figures as they are computed: whole numbers, empty for zero. Nothing when the dates of the period are no dates.
    void showComputed(const std::optional<PeriodFigures>& figures, std::int64_t used);
    /// The period takes no part: "0" everywhere.
    void exclude();

  private:
    std::array<TextBox*, 4> all() { return {&indi, &mens, &uti, &res}; }
};

/// The lines of periods 1 to 5.
using SituationLines = std::array<SituationLine, maxPeriods>;

}  // namespace vorbano
