#pragma once

// The heading of every document: the municipality, the election, its date, the edition.

#include <optional>
#include <string>
#include <string_view>

#include "platform/database.h"
#include "storage/file_system.h"

namespace vorbano {

/// The captions of the reports screen that go into a document's heading: `lblElezione`, `lbldata`, `lblAggio`.
struct Heading {
    std::string Elezione;
    std::string Data;
    std::optional<std::string> Databall;  ///< the documents of the payments have none
};

/// `lblElezione`: "Europee_Comunali" is "Europee e Comunali".
[[nodiscard]] std::string electionCaption(std::string_view kind);
/// `lbldata`: "05-06-13" is "del 5 Giugno 2013". Nothing for a date in January, deliberately, and for a text without a
/// month: the captions then stay as they were.
[[nodiscard]] std::optional<std::string> dateCaption(std::string_view date);
/// `lblAggio`: the edition of the program, never the date of a ballot.
inline constexpr std::string_view editionCaption = "{Vorbano 3.9 edizione 2014}";

/// The row of `Tabella5`, with the name of the municipality as Ente.dat has it, empty when none was entered, and
/// without `Databall` when the heading has none.
[[nodiscard]] Result<Row> headingRow(FileSystem& files, const Heading& heading);
/// Appends it.
[[nodiscard]] Result<> appendHeading(FileSystem& files, Database& staging, const Heading& heading);

}  // namespace vorbano
