#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "scenario/comparing.h"
#include "scenario/looks.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

std::string inHex(std::span<const std::byte> bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const std::byte one : bytes) {
        hex += digits[std::to_integer<std::size_t>(one) / 16];
        hex += digits[std::to_integer<std::size_t>(one) % 16];
    }
    return hex;
}

bool isMissing(const Error& error) { return error.kind == Failure::notFound || error.kind == Failure::missingFolder; }

std::string inBytes(std::uint64_t size) { return std::to_string(size) + " bytes"; }

/// Up to `count` bytes from `offset`, and the size of the file; or in words why not.
struct Excerpt {
    std::vector<std::byte> bytes;
    std::uint64_t size = 0;
    std::string trouble;
};

Excerpt readFrom(FileSystem& files, const std::string& path, std::uint64_t offset, std::size_t count) {
    Excerpt excerpt;
    const auto told = [&](const Error& error) {
        excerpt.trouble = isMissing(error) ? "missing" : inWords(error);
        return excerpt;
    };
    auto file = files.openExisting(path);
    if (!file) return told(file.error());
    const auto size = (*file)->size();
    if (!size) return told(size.error());
    excerpt.size = *size;
    excerpt.bytes.resize(count);
    const auto got = (*file)->read(offset, excerpt.bytes);
    if (!got) return told(got.error());
    excerpt.bytes.resize(*got);
    return excerpt;
}

Verdict judgeSize(const Line& line, const Stage& stage) {
    const std::string expected =
        line.name + " = " + (line.missing ? "missing" : inBytes(static_cast<unsigned>(line.count)));
    const Excerpt file = readFrom(stage.files, line.name, 0, 0);
    const std::string was = file.trouble.empty() ? inBytes(file.size) : file.trouble;
    const bool holds =
        line.missing ? was == "missing" : file.trouble.empty() && file.size == static_cast<std::uint64_t>(line.count);
    if (holds) return std::nullopt;
    return Mismatch{expected, was};
}

Verdict judgeBytes(const Line& line, const Stage& stage) {
    const auto wanted = std::as_bytes(std::span(line.text));
    const std::string expected = line.name + " " + std::to_string(line.count) + " = " + inHex(wanted);
    const Excerpt file = readFrom(stage.files, line.name, static_cast<std::uint64_t>(line.count), wanted.size());
    if (!file.trouble.empty()) return Mismatch{expected, file.trouble};
    if (file.bytes.size() < wanted.size()) {
        return Mismatch{expected, inHex(file.bytes) + " and the end of a file of " + inBytes(file.size)};
    }
    if (std::ranges::equal(file.bytes, wanted)) return std::nullopt;
    return Mismatch{expected, inHex(file.bytes)};
}

/// The record file named after its folder stands in the table with a placeholder: "<data>.vbn".
bool isFileOf(const RecordInfo& info, std::string_view folder, std::string_view name) {
    const std::size_t past = info.file.find('>');
    if (!info.file.starts_with('<') || past == std::string_view::npos) return sameName(info.file, name);
    return !folder.empty() && sameName(std::string(folder) + std::string(info.file.substr(past + 1)), name);
}

const RecordInfo* recordsOf(std::string_view path, std::span<const RecordInfo> known) {
    std::string_view folder;
    std::string_view name = path;
    if (const auto slash = path.rfind('/'); slash != std::string_view::npos) {
        name = path.substr(slash + 1);
        folder = path.substr(0, slash);
        folder = folder.substr(folder.rfind('/') + 1);
    }
    const auto at = std::ranges::find_if(known, [&](const RecordInfo& info) { return isFileOf(info, folder, name); });
    return at == known.end() ? nullptr : &*at;
}

Verdict judgeRecord(const Line& line, const Stage& stage) {
    const RecordInfo* info = recordsOf(line.name, stage.records);
    if (info == nullptr) return Mismatch{"a record file", line.name + ", which is none that is known"};
    const FieldInfo* field = findField(info->fields, line.field);
    if (field == nullptr) return Mismatch{"a field " + line.field + " in " + line.name, "none of that name"};
    const std::string expected =
        line.name + " " + std::to_string(line.count) + " " + line.field + " = " + inQuotes(line.text);
    const auto offset = static_cast<std::uint64_t>(line.count - 1) * info->width;
    Excerpt file = readFrom(stage.files, line.name, offset, info->width);
    if (!file.trouble.empty()) return Mismatch{expected, file.trouble};
    const int records = recordCount(file.size, info->width);
    if (line.count > records) return Mismatch{expected, "a file of " + std::to_string(records) + " records"};
    file.bytes.resize(info->width);
    const std::string was = fieldText(*field, file.bytes);
    if (sameValue(line.text, was)) return std::nullopt;
    return Mismatch{expected, inQuotes(was)};
}

bool isKnownField(const Line& line, std::span<const TableInfo> tables) {
    const auto table =
        std::ranges::find_if(tables, [&](const TableInfo& one) { return sameTableName(one.name, line.name); });
    if (table == tables.end()) return tables.empty();
    return std::ranges::any_of(table->columns, [&](const Column& one) { return sameTableName(one.name, line.field); });
}

}  // namespace

Verdict lookAtFile(const Line& line, const Stage& stage) {
    switch (line.kind) {
        case LineKind::file:
            return judgeSize(line, stage);
        case LineKind::bytes:
            return judgeBytes(line, stage);
        default:
            return judgeRecord(line, stage);
    }
}

Verdict lookAtTable(const Line& line, const Stage& stage) {
    const auto rows = stage.staging.count(line.name);
    if (!rows) return Mismatch{"a table " + line.name, inWords(rows.error())};
    if (line.kind == LineKind::rows) {
        if (*rows == line.count) return std::nullopt;
        return Mismatch{std::to_string(line.count) + " rows in " + line.name, std::to_string(*rows)};
    }
    const std::string expected =
        line.name + " " + std::to_string(line.count) + " " + line.field + " = " + inQuotes(line.text);
    if (line.count > *rows) return Mismatch{expected, "a table of " + std::to_string(*rows) + " rows"};
    const auto row = stage.staging.read(line.name, line.count);
    if (!row) return Mismatch{expected, inWords(row.error())};
    const Value* value = row->find(line.field);
    if (value == nullptr && !isKnownField(line, stage.tables)) {
        return Mismatch{"a field " + line.field + " in " + line.name, "none of that name"};
    }
    const std::string was = value == nullptr ? std::string() : shownValue(*value);
    if (sameValue(line.text, was)) return std::nullopt;
    return Mismatch{expected, inQuotes(was)};
}

}  // namespace vorbano
