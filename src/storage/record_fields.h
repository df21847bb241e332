#pragma once

// Beside each record stands one constexpr table of its fields. The layout assertions, the pages of the record files and
// the scenarios' `record` line are all made from it.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vorbano {

enum class FieldType : std::uint8_t { text, integer, longInteger, currency, date };

/// One field of a record: its name, the screen field that fills it where that differs ("" when not), the first byte
/// counted from 0, the width in bytes, what it holds.
struct FieldInfo {
    std::string_view name;
    std::string_view screenName;
    std::size_t offset;
    std::size_t width;
    FieldType type;
};

/// One record file as the installation knows it: the file's name, or for the employee record file "<data>.vbn".
struct RecordInfo {
    std::string_view file;
    std::size_t width;
    std::span<const FieldInfo> fields;
};

/// The fields follow each other without a gap from 0 to `width`. For static_assert.
constexpr bool coversWhole(std::span<const FieldInfo> fields, std::size_t width) {
    std::size_t at = 0;
    for (const FieldInfo& field : fields) {
        if (field.offset != at) return false;
        at += field.width;
    }
    return at == width;
}

/// The field of that name or screen name; names are exact. nullptr when there is none.
[[nodiscard]] const FieldInfo* findField(std::span<const FieldInfo> fields, std::string_view name);
/// The field's content as the clerk reads it: text trimmed, whole numbers plain, amounts as "##,##0.00" (four decimals
/// when the third or fourth is not zero).
[[nodiscard]] std::string fieldText(const FieldInfo& field, std::span<const std::byte> record);

}  // namespace vorbano
