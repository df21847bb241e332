#pragma once

// Versum.vbn and the payments in Meirin.vbn, as the screen of the payments writes them.

#include <array>
#include <vector>

#include "records/payment_voices.h"
#include "reports/payments_due.h"
#include "storage/election.h"

namespace vorbano {

/// All documents in order. Opening creates the file.
[[nodiscard]] Result<std::vector<PaymentRecord>> readDocuments(FileSystem& files, const Election& election);
/// Writes document `number` (from 1) in its place, or appends it when `number` is 0.
[[nodiscard]] Result<> storeDocument(FileSystem& files, const Election& election, int number,
                                     const PaymentRecord& document);
/// `Autoreverse`: takes out every document of the same voice, kind, number and date, equal ones with it, in one step
/// through Reversum.vbn.
[[nodiscard]] Result<> removeDocument(FileSystem& files, const Election& election, const PaymentRecord& document);

/// `vedinail`, `VediInps`: the date of the payment that Meirin.vbn holds; empty when it holds none.
[[nodiscard]] Result<std::string> paymentDate(FileSystem& files, const Election& election, const PaymentVoice& voice);
/// `insdatainail`, `insdatainps`: stores it; all else stays.
[[nodiscard]] Result<> storePaymentDate(FileSystem& files, const Election& election, const PaymentVoice& voice,
                                        std::string_view date);
/// The amounts of the voices that come from Meirin.vbn; all else stays.
[[nodiscard]] Result<> storePaymentAmounts(FileSystem& files, const Election& election, const PaymentAmounts& amounts);

}  // namespace vorbano
