#include "record_page.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/bytes.h"

namespace vorbano::test {

namespace {

const std::filesystem::path pagesFolder = std::filesystem::path(VORBANO_SOURCE_DIR) / "docs" / "file";

/// The cells of "| a | b |".
std::vector<std::string> cellsOf(std::string_view line) {
    std::vector<std::string> cells;
    line.remove_prefix(1);
    for (std::size_t end = line.find('|'); end != std::string_view::npos; end = line.find('|')) {
        const std::string_view cell = line.substr(0, end);
        const std::size_t first = cell.find_first_not_of(' ');
        cells.emplace_back(
            first == std::string_view::npos ? "" : cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
        line.remove_prefix(end + 1);
    }
    return cells;
}

/// What stands between backticks in `text`, piece by piece.
std::vector<std::string> quotedIn(std::string_view text) {
    std::vector<std::string> pieces;
    for (std::size_t from = text.find('`'); from != std::string_view::npos; from = text.find('`')) {
        const std::size_t to = text.find('`', from + 1);
        if (to == std::string_view::npos) break;
        pieces.emplace_back(text.substr(from + 1, to - from - 1));
        text.remove_prefix(to + 1);
    }
    return pieces;
}

std::string unquoted(const std::string& cell) {
    const auto pieces = quotedIn(cell);
    return pieces.size() == 1 && cell.size() == pieces.front().size() + 2 ? pieces.front() : cell;
}

/// "41 20×3" is "A   ".
std::string bytesFrom(const std::string& hex) {
    constexpr std::string_view times = "×";
    std::istringstream words(hex);
    std::string bytes;
    for (std::string word; words >> word;) {
        const std::size_t mark = word.find(times);
        const int count = mark == std::string::npos ? 1 : std::stoi(word.substr(mark + times.size()));
        for (int n = 0; n < count; ++n) bytes += fromHex(word.substr(0, mark));
    }
    return bytes;
}

void readRow(const std::string& line, RecordPage& page) {
    constexpr std::size_t columns = 8;
    const auto cells = cellsOf(line);
    if (cells.size() != columns) {
        page.trouble = "not a row of eight cells: " + line;
        return;
    }
    page.rows.push_back({cells[0], cells[1], cells[2], unquoted(cells[3]), unquoted(cells[4]), cells[5], cells[6],
                         bytesFrom(unquoted(cells[7]))});
}

}  // namespace

std::string RecordPage::record() const {
    std::string bytes;
    for (const PageRow& row : rows) bytes += row.bytes;
    return bytes;
}

std::string recordPageText(std::string_view name) {
    const std::ifstream file(pagesFolder / name);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

std::vector<std::string> recordPageNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(pagesFolder))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

RecordPage readRecordPage(std::string_view name) {
    constexpr std::string_view length = "Record length: **";
    RecordPage page;
    std::istringstream lines(recordPageText(name));
    bool inTable = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("# ")) page.files = quotedIn(line);
        if (line.starts_with(length))
            page.recordLength = line.substr(length.size(), line.find("**", length.size()) - length.size());
        if (line.starts_with("|---")) {
            inTable = true;
        } else if (!line.starts_with("|")) {
            inTable = false;
        } else if (inTable) {
            readRow(line, page);
        }
    }
    return page;
}

}  // namespace vorbano::test
