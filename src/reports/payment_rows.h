#pragma once

// The rows of `Tabella11`: one for each document of the payments and, in the whole list, one for each voice at its end.

#include <array>
#include <string>
#include <string_view>

#include "platform/database.h"
#include "reports/payments_due.h"

namespace vorbano {

/// The captions `lblComune`, `lblElezione`, `lbldata`.
struct PaymentCaptions {
    std::string Comune;
    std::string Elezioni;
    std::string dataE;
};

/// What stands in place of the kind of document for INAIL, which has none. The lists deliberately differ.
inline constexpr std::string_view inailWithin = "Il versamento sarà effettuato entro il";
inline constexpr std::string_view inailDate = "data entro la quale sarà effetuato il versamento ";

/// A row for each record of Versum.vbn, or of `documents`, in its order; the number of them.
[[nodiscard]] Result<int> appendPayments(FileSystem& files, Database& staging, const Election& election,
                                         const PaymentCaptions& captions, std::string_view inailWords,
                                         std::string_view documents = versumFile);

/// What a closing row says of a voice.
struct ClosingLine {
    Currency amount;
    std::string rate;  ///< "23,8%"; not used for a voice without a rate
};
/// The closing rows of the whole list: of every voice but INPS.
[[nodiscard]] Result<> appendClosingRows(Database& staging, const std::array<ClosingLine, paymentVoiceCount>& lines);

}  // namespace vorbano
