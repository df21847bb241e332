#pragma once

#include <functional>
#include <vector>

// Into which boxes a table falls, and which of them hold together: plain arithmetic that knows no font and no page.

namespace vorbano {

/// What a table consists of. Its rows stand in blocks, one behind the other; a table that knows none is one block.
struct TableShape {
    int rows = 0;
    std::vector<int> blocks = {0};  ///< the first row of each; the last one goes on to the end
    bool blockTotals = false;       ///< each block ends with a line of its own totals
    bool below = false;             ///< some text stands below each block
    bool totals = false;            ///< the table ends with a line of totals
    bool apart = false;             ///< each block begins on a page of its own
};

struct TableBox {
    enum class Kind : unsigned char { heading, row, blockTotal, below, totals };
    Kind kind = Kind::row;
    int row = 0;    ///< of a row, its number from 0
    int block = 0;  ///< to which it belongs; the line of totals belongs to the last one
    bool withNext = false;
    bool breakBefore = false;
    friend bool operator==(const TableBox&, const TableBox&) = default;
};

/// The first rows of the blocks: row 0, and each row that `begins` says does not go on with the one before it. No block
/// without rows.
[[nodiscard]] std::vector<int> blockStarts(int rows, const std::function<bool(int row)>& begins);

/// The boxes from top to bottom. A heading never ends a page; neither the first nor the last row of a block of several
/// stands alone on one, nor do the totals and the text below it. The first block begins where the table does.
[[nodiscard]] std::vector<TableBox> tableBoxes(const TableShape& shape);

}  // namespace vorbano
