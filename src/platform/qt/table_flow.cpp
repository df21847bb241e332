#include "platform/qt/table_flow.h"

#include <cstddef>

namespace vorbano {

std::vector<int> blockStarts(int rows, const std::function<bool(int row)>& begins) {
    std::vector<int> starts;
    for (int row = 0; row < rows; ++row) {
        if (row == 0 || begins(row)) starts.push_back(row);
    }
    return starts;
}

std::vector<TableBox> tableBoxes(const TableShape& shape) {
    using Kind = TableBox::Kind;
    const int count = static_cast<int>(shape.blocks.size());
    std::vector<TableBox> boxes;
    boxes.reserve(static_cast<std::size_t>(shape.rows) + shape.blocks.size() * 3 + 1);
    for (int block = 0; block < count; ++block) {
        const int first = shape.blocks[static_cast<std::size_t>(block)];
        const int end = block + 1 < count ? shape.blocks[static_cast<std::size_t>(block) + 1] : shape.rows;
        const bool totalsFollow = shape.totals && block + 1 == count;
        boxes.push_back({Kind::heading, 0, block, true, shape.apart && block > 0});
        for (int row = first; row < end; ++row) {
            const bool edge = end - first > 1 && (row == first || row == end - 2);
            const bool last = row == end - 1 && (shape.blockTotals || shape.below || totalsFollow);
            boxes.push_back({Kind::row, row, block, edge || last});
        }
        if (shape.blockTotals) boxes.push_back({Kind::blockTotal, 0, block, shape.below || totalsFollow});
        if (shape.below) boxes.push_back({Kind::below, 0, block, totalsFollow});
    }
    if (shape.totals) boxes.push_back({Kind::totals, 0, count > 0 ? count - 1 : 0});
    return boxes;
}

}  // namespace vorbano
