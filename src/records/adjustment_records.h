#pragma once

// What the employees of one election are still owed when the rates change for a time already paid. Both files stand in
// the folder of the election; record n belongs to the employee of record n of the employee file.

#include <array>
#include <cstddef>
#include <string_view>

#include "records/overtime_records.h"
#include "storage/fields.h"
#include "storage/record_fields.h"

namespace vorbano {

/// Congs.vbn, the adjustment over all periods, and Congs1.vbn, that over the first period, which only joint elections
/// have. The record of an employee whose grade has no row of rates is never written: it keeps what it held, zero bytes
/// in a new file. Amounts may be negative.
struct AdjustmentRecord {
    Integer SonoDip;                        ///< as in the employee record
    HoursByKind hours;                      ///< liquidated, the ones priced anew
    Text<7> lblCat;                         ///< never assigned: NUL bytes
    Text<10> lblCat2;                       ///< likewise
    std::array<Currency, hourKinds> rates;  ///< new, per hour
    Currency Dovuto;                        ///< new amount due
    Currency Pagato;               ///< the new amount less the old one; the only amount that is not held to cents
    Currency AliCpStato, CpStato;  ///< percentages as in the employee record; contributions on `Pagato`
    Currency AliIrap, Irap;
    Currency TotaleSpesa;  ///< sum of both before they are held to cents
    Currency AliCpDip, CpDip;
    Currency AliFonCre, FonCre;
    Currency TotaleContr;  ///< likewise
};

inline constexpr std::string_view congsFile = "Congs.vbn";
inline constexpr std::string_view congs1File = "Congs1.vbn";
/// Companions of a run over the election.
inline constexpr std::string_view revCongsFile = "RevCongs.vbn";
inline constexpr std::string_view revCongs1File = "RevCongs1.vbn";

inline constexpr FieldInfo adjustmentFields[] = {
    {"SonoDip", "txtSonoDip", 0, 2, FieldType::integer},
    {"EsegDf", "txtEsegDf", 2, 2, FieldType::integer},
    {"EsegNof", "txtEsegNof", 4, 2, FieldType::integer},
    {"EsegNef", "txtEsegNef", 6, 2, FieldType::integer},
    {"Categoria", "lblCat", 8, 7, FieldType::text},
    {"Livello", "lblCat2", 15, 10, FieldType::text},
    {"CompDf", "txtCompDf", 25, 8, FieldType::currency},
    {"CompNof", "txtCompNof", 33, 8, FieldType::currency},
    {"CompNef", "txtCompNef", 41, 8, FieldType::currency},
    {"Dovuto", "txtDovuto", 49, 8, FieldType::currency},
    {"Pagato", "txtPagato", 57, 8, FieldType::currency},
    {"AliCpStato", "Label37", 65, 8, FieldType::currency},
    {"CpStato", "txtCpStato", 73, 8, FieldType::currency},
    {"AliIrap", "Label38", 81, 8, FieldType::currency},
    {"Irap", "txtIrap", 89, 8, FieldType::currency},
    {"TotaleSpesa", "txtTotaleSpesa", 97, 8, FieldType::currency},
    {"AliCpDip", "Label43", 105, 8, FieldType::currency},
    {"CpDip", "txtCpDip", 113, 8, FieldType::currency},
    {"AliFonCre", "Label47", 121, 8, FieldType::currency},
    {"FonCre", "txtFonCre", 129, 8, FieldType::currency},
    {"TotaleContr", "txtTotaleContr", 137, 8, FieldType::currency},
};
static_assert(coversWhole(adjustmentFields, 145) && sizeof(AdjustmentRecord) == 145);
static_assert(offsetof(AdjustmentRecord, hours) == 2 && offsetof(AdjustmentRecord, lblCat) == 8 &&
              offsetof(AdjustmentRecord, lblCat2) == 15 && offsetof(AdjustmentRecord, rates) == 25 &&
              offsetof(AdjustmentRecord, Dovuto) == 49 && offsetof(AdjustmentRecord, Pagato) == 57 &&
              offsetof(AdjustmentRecord, AliCpStato) == 65 && offsetof(AdjustmentRecord, CpStato) == 73 &&
              offsetof(AdjustmentRecord, AliIrap) == 81 && offsetof(AdjustmentRecord, Irap) == 89 &&
              offsetof(AdjustmentRecord, TotaleSpesa) == 97 && offsetof(AdjustmentRecord, AliCpDip) == 105 &&
              offsetof(AdjustmentRecord, CpDip) == 113 && offsetof(AdjustmentRecord, AliFonCre) == 121 &&
              offsetof(AdjustmentRecord, FonCre) == 129 && offsetof(AdjustmentRecord, TotaleContr) == 137);

}  // namespace vorbano
