#pragma once

// What is due by each voice of the payments of an election, and the documents of the payments brought into line with
// it.

#include <array>
#include <string>

#include "records/payment_voices.h"
#include "storage/election.h"

namespace vorbano {

/// One figure for each voice, in the order of `paymentVoices`.
using PaymentAmounts = std::array<Currency, paymentVoiceCount>;

struct PaymentsDue {
    PaymentAmounts amounts;  ///< in cents
    PaymentAmounts rates;    ///< percentages of the last employee; 0 for a voice without one
};
/// Over all employee records, and the one record of Meirin.vbn.
[[nodiscard]] Result<PaymentsDue> readPaymentsDue(FileSystem& files, const Election& election);

/// The same of the adjustment: over all records of Congs.vbn, and the one record of Meirinc.vbn. The rates are those of
/// the last record.
[[nodiscard]] Result<PaymentsDue> readAdjustmentDue(FileSystem& files, const Election& election);
/// Record 1 of the election's Meirinc.vbn; zeros when it is empty.
[[nodiscard]] Result<MeirincRecord> readMeirinc(FileSystem& files, const Election& election);

/// A percentage as it stands beside its voice, "23,8%"; `Percent` of the documents.
[[nodiscard]] std::string rateText(Currency rate);

/// Sets `Importo` of every document of Versum.vbn to the amount due by its voice, without a word: also of each of
/// several documents of one voice, which is deliberate. Documents of INPS and of unknown voices stay as they are. All
/// that differ change in one step; nothing is written when none does.
[[nodiscard]] Result<> Kontrol(FileSystem& files, const Election& election, const PaymentAmounts& due);

}  // namespace vorbano
