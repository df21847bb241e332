#pragma once

// The seven voices of the payments: what is paid, where its amount comes from, by what document. One table, of which
// the screen of the payments and the list of contributions both live.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "records/adjustment_records.h"
#include "records/overtime_records.h"
#include "records/payment_records.h"

namespace vorbano {

/// What a voice is paid by.
enum class PaidBy : std::uint8_t {
    mandateOrForm,  ///< a mandate or an F24 form, in copies
    form,           ///< an F24 form only, in copies
    date,           ///< no document: the date by which it is paid
};

/// Where the adjustment has what a voice has below: Congs.vbn takes the place of the employees, Meirinc.vbn that of
/// Meirin.vbn.
struct AdjustmentSource {
    Currency AdjustmentRecord::*sum = nullptr;
    Currency AdjustmentRecord::*rate = nullptr;
    Currency MeirincRecord::*amount = nullptr;
    DateText MeirincRecord::*date = nullptr;
};

struct PaymentVoice {
    std::string_view key;    ///< `Mother` of its records
    std::string_view words;  ///< as printed, blanks included
    /// Where the amount comes from: a sum over all employees, with the rate that stands beside it, or Meirin.vbn.
    Currency Pay::*sum = nullptr;
    Currency Pay::*rate = nullptr;
    Currency MeirinRecord::*amount = nullptr;
    /// Where Meirin.vbn holds the date of the payment too.
    DateText MeirinRecord::*date = nullptr;
    AdjustmentSource adjusted = {};
    PaidBy paidBy = PaidBy::mandateOrForm;
    /// Its documents follow the amount due, and it has a closing row in the whole list. Both deliberately leave out
    /// INPS.
    bool followed = true;
};

inline constexpr std::size_t paymentVoiceCount = 7;
/// In the order of lists and closing rows.
inline constexpr std::array<PaymentVoice, paymentVoiceCount> paymentVoices = {{
    {.key = "Coprdi",
     .words = "Contributo Previdenziale a carico dipendente ",
     .sum = &Pay::CpDip,
     .rate = &Pay::AliCpDip,
     .adjusted = {.sum = &AdjustmentRecord::CpDip, .rate = &AdjustmentRecord::AliCpDip}},
    {.key = "Cofocrdi",
     .words = "Fondo Credito a carico dipendente  ",
     .sum = &Pay::FonCre,
     .rate = &Pay::AliFonCre,
     .adjusted = {.sum = &AdjustmentRecord::FonCre, .rate = &AdjustmentRecord::AliFonCre}},
    {.key = "Copren",
     .words = "Contributo Previdenziale a carico Ente  ",
     .sum = &Pay::CpStato,
     .rate = &Pay::AliCpStato,
     .adjusted = {.sum = &AdjustmentRecord::CpStato, .rate = &AdjustmentRecord::AliCpStato}},
    {.key = "Coirap",
     .words = "IRAP a carico Ente  ",
     .sum = &Pay::Irap,
     .rate = &Pay::AliIrap,
     .adjusted = {.sum = &AdjustmentRecord::Irap, .rate = &AdjustmentRecord::AliIrap}},
    {.key = "Irpef", .words = "IRPEF", .amount = &MeirinRecord::irpef, .adjusted = {.amount = &MeirincRecord::irpef}},
    {.key = "Inail",
     .words = "INAIL",
     .amount = &MeirinRecord::inail,
     .date = &MeirinRecord::inailDate,
     .adjusted = {.amount = &MeirincRecord::inail, .date = &MeirincRecord::inailDate},
     .paidBy = PaidBy::date},
    {.key = "Inps",
     .words = "INPS",
     .amount = &MeirinRecord::inps,
     .date = &MeirinRecord::inpsDate,
     .adjusted = {.amount = &MeirincRecord::inps, .date = &MeirincRecord::inpsDate},
     .paidBy = PaidBy::form,
     .followed = false},
}};

/// Index in `paymentVoices`; `paymentVoiceCount` when the key (trimmed) is none of them.
[[nodiscard]] constexpr std::size_t paymentVoiceOf(std::string_view key) {
    std::size_t at = 0;
    while (at < paymentVoices.size() && paymentVoices[at].key != key) ++at;
    return at;
}

enum class Copies : std::uint8_t { originalAndCopy, duplicate };
/// `Sonocosi` of a document. The mandate of IRAP in two copies deliberately has a shorter text.
[[nodiscard]] constexpr std::string_view copiesText(const PaymentVoice& voice, std::string_view kind, Copies copies) {
    if (copies == Copies::originalAndCopy) return "in originale e copia autenticata";
    return voice.sum == &Pay::Irap && kind == mandateKind ? "in duplice copia autentica"
                                                          : "in duplice copia autenticata";
}

}  // namespace vorbano
