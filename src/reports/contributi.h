#pragma once

// "CONTRIBUTI E RITENUTE (allegato A)": the list of the documents by which contributions and withholdings of an
// election are paid, with its employees and the amounts due.

#include <optional>

#include "reports/overtime_document.h"

namespace vorbano {

/// From the first start to the last end of the first three periods, those left out passed over; nothing when all three
/// starts or all three ends are.
[[nodiscard]] std::optional<LegalDates> datesOfOvertime(const EmployeeRecord& record);

/// The list as `job` and `clearing` tell. An election without employees, or with all periods left out, is told as a
/// date that does not exist, and nothing is shown.
[[nodiscard]] Result<> printPayments(const Workplace& desk, const Election& election, LatePeriods late,
                                     const Heading& heading, const PrintJob& job, Clearing clearing);

/// `cmdContributi`: first brings Versum.vbn into line with the amounts due, the only thing that a document ever writes,
/// then shows the list.
[[nodiscard]] Result<> printContributi(const Workplace& desk, const Election& election, LatePeriods late,
                                       const Heading& heading);

}  // namespace vorbano
