#pragma once

// What the municipality has paid, or will pay, for contributions and withholdings on the overtime of one election, all
// in its folder: a file of documents, and the amounts of the adjustment that stand beside those of Meirin.vbn.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "storage/fields.h"
#include "storage/record_fields.h"

namespace vorbano {

/// Versum.vbn, the documents of the election, and Versumc.vbn, those of the adjustment. Nothing prevents two equal
/// records: a document is found again by voice, kind, number and date.
struct PaymentRecord {
    Text<10> Mother;    ///< the voice by its key: "Coprdi"; see payment_voices.h
    Text<27> Son;       ///< kind of document: `mandateKind`, `formKind`; blank for INAIL
    Text<6> Percent;    ///< the rate as shown, "23,8%"; blank for a voice without one
    Currency Importo;   ///< of this document; kept at the amount due by `Kontrol`
    Long Numero;        ///< of a mandate; 0 where the document has none
    DateText Data;      ///< of the document, or of the payment of INAIL
    Text<32> Sonocosi;  ///< the copies in which it is made; blank for INAIL
};

/// Meirinc.vbn: exactly one record, what Meirin.vbn has of the payments, for the adjustment.
struct MeirincRecord {
    Currency irpef;
    DateText inailDate;
    Currency inail;
    Currency inps;
    DateText inpsDate;
};

inline constexpr std::string_view versumFile = "Versum.vbn";
inline constexpr std::string_view versumcFile = "Versumc.vbn";
/// Companion of both in every change of several records.
inline constexpr std::string_view reversumFile = "Reversum.vbn";
inline constexpr std::string_view meirincFile = "Meirinc.vbn";

/// The payments of an election on what was liquidated, and those on what the adjustment adds to it. They never meet.
enum class PaymentSet : std::uint8_t { liquidation, adjustment };
[[nodiscard]] constexpr std::string_view documentsFile(PaymentSet set) {
    return set == PaymentSet::adjustment ? versumcFile : versumFile;
}

inline constexpr std::string_view mandateKind = "Mandato di pagamento";
inline constexpr std::string_view formKind = "Mod. F24";

inline constexpr FieldInfo paymentFields[] = {
    {"Mother", "", 0, 10, FieldType::text},
    {"Son", "", 10, 27, FieldType::text},
    {"Percent", "", 37, 6, FieldType::text},
    {"Importo", "", 43, 8, FieldType::currency},
    {"Numero", "txtMnumero", 51, 4, FieldType::longInteger},
    {"Data", "txtMdata", 55, 8, FieldType::date},
    {"Sonocosi", "", 63, 32, FieldType::text},
};
static_assert(coversWhole(paymentFields, 95) && sizeof(PaymentRecord) == 95);
static_assert(offsetof(PaymentRecord, Son) == 10 && offsetof(PaymentRecord, Percent) == 37 &&
              offsetof(PaymentRecord, Importo) == 43 && offsetof(PaymentRecord, Numero) == 51 &&
              offsetof(PaymentRecord, Data) == 55 && offsetof(PaymentRecord, Sonocosi) == 63);

inline constexpr FieldInfo meirincFields[] = {
    {"Irpef", "txtIrpef", 0, 8, FieldType::currency},   {"DataInail", "txtDatainail", 8, 8, FieldType::date},
    {"Inail", "txtInail", 16, 8, FieldType::currency},  {"Inps", "txtInps", 24, 8, FieldType::currency},
    {"DataInps", "txtDataf24", 32, 8, FieldType::date},
};
static_assert(coversWhole(meirincFields, 40) && sizeof(MeirincRecord) == 40);
static_assert(offsetof(MeirincRecord, inailDate) == 8 && offsetof(MeirincRecord, inail) == 16 &&
              offsetof(MeirincRecord, inps) == 24 && offsetof(MeirincRecord, inpsDate) == 32);

}  // namespace vorbano
