#pragma once

// The three small files of names in "Params".

#include <string_view>

#include "storage/fields.h"
#include "storage/record_fields.h"

namespace vorbano {

/// A record of Ente.dat (the municipality, without "Comune di "; record 1 only), Comuni.dat (the municipalities offered
/// when the Ente is entered, read only) and Dipend.dat (every staff name ever entered, without duplicates).
struct NameRecord {
    Text<60> name;
};
static_assert(sizeof(NameRecord) == 60);
inline constexpr FieldInfo nameFields[] = {{"name", "Nome", 0, 60, FieldType::text}};
static_assert(coversWhole(nameFields, sizeof(NameRecord)));

inline constexpr std::string_view enteFile = "Params/Ente.dat";
inline constexpr std::string_view comuniFile = "Params/Comuni.dat";
inline constexpr std::string_view dipendFile = "Params/Dipend.dat";

}  // namespace vorbano
