#pragma once

// Looks at what is there: at the window in front, at the files below the root, at the tables of the documents.

#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "platform/database.h"
#include "platform/form.h"
#include "scenario/scenario_reader.h"
#include "scenario/surface.h"
#include "storage/file_system.h"
#include "storage/record_fields.h"

namespace vorbano {

/// What a scenario is played on.
struct Stage {
    FileSystem& files;
    Database& staging;
    /// The record files that `record` lines can look into; one named "<...>.vbn" is the file named after its folder.
    std::span<const RecordInfo> records;
    /// The tables that the documents know, so that a field with nothing in it can be told from one that is not there.
    std::span<const TableInfo> tables;
    /// Where pictures and documents go.
    std::filesystem::path out;
    /// Told what the scenario meets; nullptr when nobody asks.
    Surface* surface = nullptr;
};

/// A line that does not hold.
struct Mismatch {
    std::string expected;
    std::string was;
};
/// Nothing when the line holds.
using Verdict = std::optional<Mismatch>;

/// An `expect` line; `form` is the window looked at.
[[nodiscard]] Verdict lookAtForm(const Line& line, const Form& form);
/// A `file`, `bytes` or `record` line.
[[nodiscard]] Verdict lookAtFile(const Line& line, const Stage& stage);
/// A `rows` or `cell` line.
[[nodiscard]] Verdict lookAtTable(const Line& line, const Stage& stage);

/// "a" in quotes as a scenario writes it: line ends as \n.
[[nodiscard]] std::string inQuotes(std::string_view text);
/// What a failure of the disk or a database means, in English.
[[nodiscard]] std::string inWords(const Error& error);

}  // namespace vorbano
