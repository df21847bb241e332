#pragma once

// "Stampa resoconto": the situation of an election after new dates, on one plain page.

#include <string>
#include <vector>

#include "platform/print_engine.h"

namespace vorbano {

/// A period as the screen shows it after the change.
struct SummaryPeriod {
    int period;  ///< from 1
    std::string dal, al;
    std::string limite, individuale, mensile, utilizzato, residuo;
};

/// `comune`: without "Comune di ", or "". The first four periods always have their column, those that are not in
/// `periods` with dashes; the fifth only when it is there.
[[nodiscard]] PlainPage dateSummary(const std::string& comune, const std::string& type, const std::string& date,
                                    const std::vector<SummaryPeriod>& periods);

}  // namespace vorbano
