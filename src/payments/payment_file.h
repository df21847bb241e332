#pragma once

// What the screen of the payments reads and writes: documents in Versum.vbn, amounts and dates in Meirin.vbn, and of
// the adjustment in Versumc.vbn and Meirinc.vbn.

#include <array>
#include <vector>

#include "records/payment_voices.h"
#include "reports/payments_due.h"
#include "storage/election.h"

namespace vorbano {

/// All documents in order. Opening creates the file.
[[nodiscard]] Result<std::vector<PaymentRecord>> readDocuments(FileSystem& files, const Election& election,
                                                               PaymentSet set);
/// Writes document `number` (from 1) in its place, or appends it when `number` is 0.
[[nodiscard]] Result<> storeDocument(FileSystem& files, const Election& election, PaymentSet set, int number,
                                     const PaymentRecord& document);
/// `Autoreverse`: takes out every document of the same voice, kind, number and date, equal ones with it, in one step
/// through Reversum.vbn.
[[nodiscard]] Result<> removeDocument(FileSystem& files, const Election& election, PaymentSet set,
                                      const PaymentRecord& document);

/// `vedinail`, `VediInps`, `VediInpsc`: the date of the payment that the record of the set holds; empty when it holds
/// none.
[[nodiscard]] Result<std::string> paymentDate(FileSystem& files, const Election& election, PaymentSet set,
                                              const PaymentVoice& voice);
/// `insdatainail`, `insdatainps`: stores it; all else stays.
[[nodiscard]] Result<> storePaymentDate(FileSystem& files, const Election& election, PaymentSet set,
                                        const PaymentVoice& voice, std::string_view date);
/// `Salvallc` among them: the amounts of the voices that are not summed; all else stays.
[[nodiscard]] Result<> storePaymentAmounts(FileSystem& files, const Election& election, PaymentSet set,
                                           const PaymentAmounts& amounts);
/// There is something to adjust: Congs.vbn has records. Opening creates the file.
[[nodiscard]] Result<bool> hasAdjustment(FileSystem& files, const Election& election);

}  // namespace vorbano
