#include "reports/heading.h"

#include <array>
#include <cstddef>

#include "storage/codepage.h"
#include "storage/list_files.h"
#include "storage/numbers.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// From February on: January has no word, and the documents of a January election deliberately carry no date.
constexpr std::array<std::string_view, 11> monthWords = {" Febbraio ", " Marzo ",    " Aprile ",  " Maggio ",
                                                         " Giugno ",   " Luglio ",   " Agosto ",  " Settembre ",
                                                         " Ottobre ",  " Novembre ", " Dicembre "};
constexpr int firstWord = 2;

/// "dd-mm-yy"
constexpr std::size_t dateWidth = 8;

}  // namespace

std::string electionCaption(std::string_view kind) {
    std::string caption;
    for (const char character : trim(kind)) {
        if (character == '_') {
            caption += " e ";
        } else {
            caption += character;
        }
    }
    return caption;
}

std::optional<std::string> dateCaption(std::string_view date) {
    date = trim(date);
    if (date.size() != dateWidth) return std::nullopt;
    const int word = wholeScan(date.substr(3, 2)) - firstWord;
    if (word < 0 || word >= static_cast<int>(monthWords.size())) return std::nullopt;
    std::string caption = "del " + format(wholeScan(date.substr(0, 2)), Mask::whole);
    caption.append(monthWords[static_cast<std::size_t>(word)]).append("20").append(date.substr(6, 2));
    return caption;
}

Result<Row> headingRow(FileSystem& files, const Heading& heading) {
    const auto ente = onlyRecord<NameRecord>(files, enteFile);
    if (!ente) return ente.error();
    Row row;
    row.setText("Comune", *ente ? (*ente)->name.trimmed() : std::string())
        .setText("Elezione", heading.Elezione)
        .setText("Data", heading.Data);
    if (heading.Databall) row.setText("Databall", *heading.Databall);
    return row;
}

Result<> appendHeading(FileSystem& files, Database& staging, const Heading& heading) {
    const auto row = headingRow(files, heading);
    if (!row) return row.error();
    return staging.append("Tabella5", *row);
}

}  // namespace vorbano
