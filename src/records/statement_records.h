#pragma once

// The statement of costs ("rendiconto") of an election: one record of amounts, and two small files with the parts that
// are charged to a body. Each holds one record, number 1, in the election's folder; a statement exists when Rendi.vbn
// has one.

#include <cstddef>
#include <string_view>

#include "storage/fields.h"
#include "storage/record_fields.h"

namespace vorbano {

/// Rendi.vbn. The fields have no tag: their meaning is their place. For "Provinciali" and "Provinciali_Comunali", and
/// for them only, three are filled in rotated order, and whoever reads those two types must know it: `Assunzioni` (72)
/// holds `txtAssunzioni`, `Postali` (80) holds `txtNecessità`, `Necessita` (120) holds `Text1`.
struct RendiRecord {
    Currency Onorari;        ///< fees of the members of the normal stations
    Currency Straordinario;  ///< overtime with contributions, IRAP and INAIL
    Currency Speciali;       ///< fees of the members of the special stations
    Currency Carico;         ///< overtime or other expense of the first body
    Currency Indennita;      ///< presidents' refunds
    Currency TotStato;       ///< printed matter charged to the Stato, when divided by hand
    Currency Stampanti;      ///< printed matter not supplied by the Stato
    Currency Trasporti;
    Currency Disciplina;
    Currency Assunzioni;  ///< from `Text1`; rotated: `txtAssunzioni`
    Currency Postali;     ///< from `txtAssunzioni`; rotated: `txtNecessità`
    Currency Missioni;
    Currency Totale;
    Currency Acconti;      ///< advances already received
    Currency Differenza;   ///< Totale less Acconti
    Currency Necessita;    ///< voting booths, from `txtNecessità`; rotated: `Text1`
    Currency TotComune;    ///< printed matter of the other body; for "Politiche_Regionali" its overtime (`txtCarico2`)
    Currency CartRegione;  ///< postal expenses, left-hand share
    Currency CartStato;    ///< postal expenses, right-hand share
};

/// DivSt.vbn: the division of the printed matter.
struct DivStRecord {
    Currency TotStato;
    Currency TotComune;
};

/// Tprov.vbn: the amounts of the Provincia.
struct TprovRecord {
    Currency TotProv;
    Currency MagMis;  ///< "Maggiorazione"
};

inline constexpr std::string_view rendiFile = "Rendi.vbn";
inline constexpr std::string_view divStFile = "DivSt.vbn";
inline constexpr std::string_view tprovFile = "Tprov.vbn";

/// The screen fields are those of every type but the two rotated ones.
inline constexpr FieldInfo rendiFields[] = {
    {"Onorari", "txtOnorari", 0, 8, FieldType::currency},
    {"Straordinario", "txtStraordinario", 8, 8, FieldType::currency},
    {"Speciali", "txtSpeciali", 16, 8, FieldType::currency},
    {"Carico", "txtCarico", 24, 8, FieldType::currency},
    {"Indennita", "txtIndennità", 32, 8, FieldType::currency},
    {"TotStato", "txtTotStato", 40, 8, FieldType::currency},
    {"Stampanti", "txtStampanti", 48, 8, FieldType::currency},
    {"Trasporti", "txtTrasporti", 56, 8, FieldType::currency},
    {"Disciplina", "txtDisciplina", 64, 8, FieldType::currency},
    {"Assunzioni", "Text1", 72, 8, FieldType::currency},
    {"Postali", "txtAssunzioni", 80, 8, FieldType::currency},
    {"Missioni", "txtMissioni", 88, 8, FieldType::currency},
    {"Totale", "txtTotale", 96, 8, FieldType::currency},
    {"Acconti", "txtAcconti", 104, 8, FieldType::currency},
    {"Differenza", "txtDifferenza", 112, 8, FieldType::currency},
    {"Necessita", "txtNecessità", 120, 8, FieldType::currency},
    {"TotComune", "txtTotComune", 128, 8, FieldType::currency},
    {"CartRegione", "txtCartRegione", 136, 8, FieldType::currency},
    {"CartStato", "txtCartStato", 144, 8, FieldType::currency},
};
static_assert(coversWhole(rendiFields, 152) && sizeof(RendiRecord) == 152);
static_assert(offsetof(RendiRecord, Onorari) == 0 && offsetof(RendiRecord, Straordinario) == 8 &&
              offsetof(RendiRecord, Speciali) == 16 && offsetof(RendiRecord, Carico) == 24 &&
              offsetof(RendiRecord, Indennita) == 32 && offsetof(RendiRecord, TotStato) == 40 &&
              offsetof(RendiRecord, Stampanti) == 48 && offsetof(RendiRecord, Trasporti) == 56 &&
              offsetof(RendiRecord, Disciplina) == 64 && offsetof(RendiRecord, Assunzioni) == 72 &&
              offsetof(RendiRecord, Postali) == 80 && offsetof(RendiRecord, Missioni) == 88 &&
              offsetof(RendiRecord, Totale) == 96 && offsetof(RendiRecord, Acconti) == 104 &&
              offsetof(RendiRecord, Differenza) == 112 && offsetof(RendiRecord, Necessita) == 120 &&
              offsetof(RendiRecord, TotComune) == 128 && offsetof(RendiRecord, CartRegione) == 136 &&
              offsetof(RendiRecord, CartStato) == 144);

inline constexpr FieldInfo divStFields[] = {
    {"TotStato", "txtTotStato", 0, 8, FieldType::currency},
    {"TotComune", "txtTotComune", 8, 8, FieldType::currency},
};
static_assert(coversWhole(divStFields, 16) && sizeof(DivStRecord) == 16 && offsetof(DivStRecord, TotComune) == 8);

inline constexpr FieldInfo tprovFields[] = {
    {"TotProv", "txtTotProv", 0, 8, FieldType::currency},
    {"MagMis", "txtMagMis", 8, 8, FieldType::currency},
};
static_assert(coversWhole(tprovFields, 16) && sizeof(TprovRecord) == 16 && offsetof(TprovRecord, MagMis) == 8);

}  // namespace vorbano
