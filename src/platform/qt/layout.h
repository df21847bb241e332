#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/result.h"
#include "platform/qt/layout_masks.h"
#include "platform/qt/layout_tags.h"

// A layout is one text file of the folder "Stampe". It is read line by line; a line that begins with "[" and a keyword
// opens a section, and a line that begins with "#" is a comment wherever it stands:
//
//   [page]                         once; all of it may be left out
//   size = A4                      any name of a paper size that Qt knows
//   orientation = landscape        or portrait
//   margins = 12 10 12 10          left, top, right, bottom, in mm
//   font = Liberation Sans, Arial, DejaVu Sans       the first of these that the machine has
//   text = 12                      size of the text of html sections in px
//   foot = IMPEGNO DI SPESA        at the left of every page's foot; "Pagina n di m" stands at the right
//
//   [style]                        style sheet of the html sections; lengths and font sizes in px (96 to the inch)
//
//   [row testata]                  a query that gives one row; its fields are {{testata.Comune}} everywhere
//   [rows dipendenti]              a query that gives many: {{#dipendenti}}{{Nome}}{{/dipendenti}}, or a table
//   SELECT Nome, Dovuto, SUM(Irap) AS Totale FROM Tabella3
//   @amount Totale                 these results are amounts (columns named as a column of amounts are so by
//   themselves)
//   @whole Quanti                  these are whole numbers
//   @mask #,##0;- A1fer A1fes      shown with this mask; after ";" what stands for zero
//
//   [html]                         HTML with mustache tags; values are escaped. Options after the keyword: `together`
//                                  (never split between two pages), `with-previous` (on the page where the section
//                                  before it ends, together with the end of a table)
//   [table dipendenti]             a long table, one line per row of that query, headings repeated on every page:
//   totals = totali                a one-row query for the line of totals, which may be left out
//   text = 9                       size of the text in px
//   when = {{testata.Data}}        left out of the document when this text is empty
//   group 1° periodo\n{{periodi.Primo}}        a title above the columns that follow, until `end`
//   column 9 right | Fer. | {{A1fer}} | {{A1fer}}      width in mm (or *), alignment (left, right, centre, comma),
//   end                                                 title, text of the cell, text of the cell of totals
//   row = 9                        the least height of a row in mm: room to sign in
//
//   A table can fall into blocks, each with headings and totals of its own:
//   block = {{SonoSeggio}}         rows that follow each other with the same text here are one block
//   blocks = apart                 each block begins on a page of its own
//   above 18 bold centre | Seggio n. {{SonoSeggio}}    a line above the titles of each block, repeated with them: size
//   in
//                                  px, bold or plain, alignment, text with the values of the block's first row. No text
//                                  is an empty line; one whose values are all empty is left out
//   below 12 plain left | ...      the same below each block, with the values of its last row
//   column 24 comma | Onorario | {{onorario}} | | {{Totale}}    the fifth text: the cell of the line that ends each
//   block,
//                                  with the values of its last row
//
//   [space 4]                      that many mm of nothing
//   [new-page]
//   [include firma]                the lines of "parti/firma.part" in place of this one; wherever a line can stand
//
// Every mistake is reported with the file and the line.

namespace vorbano {

/// Reads a file of the folder of the layouts: "impstr.rpt", "parti/firma.part".
using LayoutSource = std::function<Result<std::string>(std::string_view name)>;

/// Where something stands in the files of a layout.
struct Origin {
    std::string file;
    int line = 0;
};

struct PageSetup {
    std::string size = "A4";
    bool landscape = false;
    double left = 15, top = 15, right = 15, bottom = 15;  ///< mm
    std::vector<std::string> fonts;
    double textSize = 12;  ///< px, of html sections
    TextTemplate foot;
};

/// How the results of a query are shown, where it is not plain from their names.
struct ResultDisplay {
    enum class Kind : std::uint8_t { unsaid, amount, whole };
    Kind kind = Kind::unsaid;
    std::optional<Mask> mask;
};

struct LayoutQuery {
    std::string name;
    bool single = false;  ///< gives one row
    std::string sql;
    std::vector<std::pair<std::string, ResultDisplay>> displays;
    Origin origin;
};

struct HtmlSection {
    std::string text;
    std::vector<LayoutTag> tags;
    bool together = false;
    bool withPrevious = false;
    std::vector<Origin> lines;  ///< where each line of the text comes from
};

enum class Alignment : std::uint8_t { left, right, centre, comma };

struct TableColumn {
    double width = 0;  ///< mm; 0 takes a share of what is left
    Alignment alignment = Alignment::left;
    TextTemplate title;
    TextTemplate cell;
    TextTemplate total;
    TextTemplate blockTotal;
    int group = -1;
    Origin origin;
};

/// A line of text above or below a block of a table.
struct BlockLine {
    double textSize = 11;  ///< px
    bool bold = false;
    Alignment alignment = Alignment::left;
    TextTemplate text;
    Origin origin;
};

struct TableSection {
    std::string query;
    std::string totals;
    double textSize = 11;  ///< px
    double leastRow = 0;   ///< mm
    TextTemplate when;     ///< the table is left out when this gives an empty text; no parts: it always stands
    std::vector<TextTemplate> groups;
    std::vector<Origin> groupOrigins;
    std::vector<TableColumn> columns;
    TextTemplate block;  ///< no parts: the table is one block
    Origin blockOrigin;
    bool apart = false;
    std::vector<BlockLine> above;
    std::vector<BlockLine> below;
    Origin origin;
};

struct SpaceSection {
    double height = 0;  ///< mm
};
struct NewPageSection {};

using LayoutSection = std::variant<HtmlSection, TableSection, SpaceSection, NewPageSection>;

struct Layout {
    PageSetup page;
    std::string style;
    std::vector<LayoutQuery> queries;
    std::vector<LayoutSection> sections;
};

}  // namespace vorbano
