#pragma once

#include <array>
#include <span>

#include "storage/record_fields.h"

namespace vorbano::test {

/// Two record files: one with a name of its own, one that is named after its folder. A record is a name of 10 bytes,
/// hours of 2 and an amount of 8.
inline std::span<const RecordInfo> recordLayouts() {
    static constexpr std::array fields = {FieldInfo{"Nome", "txtNome", 0, 10, FieldType::text},
                                          FieldInfo{"Ore", "", 10, 2, FieldType::integer},
                                          FieldInfo{"Dovuto", "txtDovuto", 12, 8, FieldType::currency}};
    static constexpr std::array files = {RecordInfo{"Ore.dat", 20, fields}, RecordInfo{"<data>.vbn", 20, fields}};
    return files;
}

}  // namespace vorbano::test
