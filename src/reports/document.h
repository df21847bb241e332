#pragma once

#include <functional>

#include "reports/clearing.h"
#include "screens/workplace.h"

namespace vorbano {

/// One document: fill the staging tables, run the layout over them, clear them again. The tables are scratch space;
/// nothing but what is in them tells a layout what to show.
struct DocumentRun {
    std::function<Result<>()> fill;
    PrintJob job;
    Clearing clearing;
    int dipendenti = 0;  ///< employees of the election, for the routines that clear by it
};

/// Fills, runs and clears, in this order. What fails ends the document, but the tables are cleared all the same; the
/// first failure is given back.
[[nodiscard]] Result<> produce(const Workplace& desk, const DocumentRun& document);

}  // namespace vorbano
