#include "storage/record_fields.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <vector>

#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// A little-endian number of the type's width; bytes that the record does not hold are zeros.
template <class Native>
Native numberIn(std::span<const std::byte> content) {
    std::array<std::byte, sizeof(Native)> bytes{};
    std::ranges::copy(content.first(std::min(content.size(), bytes.size())), bytes.begin());
    return std::bit_cast<Native>(bytes);
}

std::string amountText(Currency amount) {
    constexpr std::int64_t cent = 100;
    const std::int64_t behindCents = amount.units() % cent;
    if (behindCents == 0) return format(amount, Mask::amount);

    // The cents are cut, not rounded, and the sign is put by hand: it would be lost in -0,0050.
    std::string text = format(Currency::fromUnits(amount.units() - behindCents), Mask::amount);
    if (amount.units() < 0 && text.front() != '-') text.insert(text.begin(), '-');
    const std::int64_t digits = behindCents < 0 ? -behindCents : behindCents;
    text += static_cast<char>('0' + digits / 10);
    text += static_cast<char>('0' + digits % 10);
    return text;
}

}  // namespace

const FieldInfo* findField(std::span<const FieldInfo> fields, std::string_view name) {
    if (name.empty()) return nullptr;
    // A name goes before a screen name: some fields bear the name that another has on the screen.
    for (const auto part : {&FieldInfo::name, &FieldInfo::screenName}) {
        const auto found = std::ranges::find(fields, name, part);
        if (found != fields.end()) return &*found;
    }
    return nullptr;
}

std::string fieldText(const FieldInfo& field, std::span<const std::byte> record) {
    const std::size_t from = std::min(field.offset, record.size());
    const auto content = record.subspan(from, std::min(field.width, record.size() - from));
    switch (field.type) {
        case FieldType::integer:
            return std::to_string(numberIn<std::int16_t>(content));
        case FieldType::longInteger:
            return std::to_string(numberIn<std::int32_t>(content));
        case FieldType::currency:
            return amountText(Currency::fromUnits(numberIn<std::int64_t>(content)));
        case FieldType::text:
        case FieldType::date:
            break;
    }
    std::string ansi(content.size(), '\0');
    if (!content.empty()) std::memcpy(ansi.data(), content.data(), content.size());
    return std::string(trim(fromCodepage(ansi)));
}

}  // namespace vorbano
