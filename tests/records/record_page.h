#pragma once

// A page of docs/file, read as what it says: the files' names, the width of the record, a table of fields with an
// example.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vorbano::test {

/// One row of the table, each cell as it stands on the page, without backticks.
struct PageRow {
    std::string offset, width, type, field, screenName, meaning, example;
    std::string bytes;  ///< of the example, no longer in hexadecimal
};

struct RecordPage {
    std::vector<std::string> files;  ///< of the heading
    std::string recordLength;
    std::vector<PageRow> rows;
    std::string trouble;  ///< what cannot be read on the page; empty when all can

    /// The example record.
    [[nodiscard]] std::string record() const;
};

/// Reads a page by the name of its file.
[[nodiscard]] RecordPage readRecordPage(std::string_view name);
/// The whole text of a file in docs/file; empty when it is not there.
[[nodiscard]] std::string recordPageText(std::string_view name);
/// The names of all files in docs/file.
[[nodiscard]] std::vector<std::string> recordPageNames();

}  // namespace vorbano::test
