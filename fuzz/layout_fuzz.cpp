// Any bytes as a layout, and behind a mark as the part that it may include: it is a layout, or is refused with file and
// line.

#include <cstdint>
#include <string>
#include <string_view>

#include "fuzzing.h"
#include "platform/qt/layout_reader.h"

namespace vorbano {
namespace {

using fuzzing::require;

constexpr char mark = '\x1e';

void use(const Layout& layout) {
    require(layout.page.left >= 0 && layout.page.textSize >= 0);
    for (const LayoutQuery& query : layout.queries) {
        require(!query.name.empty() && query.origin.line > 0);
        for (const auto& [field, display] : query.displays) {
            if (!display.mask) continue;
            for (const std::int64_t units : {INT64_MIN, INT64_C(-50), INT64_C(0), INT64_C(12345678), INT64_MAX}) {
                require(display.mask->shown(units).size() < 4096);
            }
        }
    }
    for (const LayoutSection& section : layout.sections) {
        const auto* table = std::get_if<TableSection>(&section);
        if (table == nullptr) continue;
        for (const TableColumn& column : table->columns) {
            require(column.width >= 0 && column.group < static_cast<int>(table->groups.size()));
        }
    }
}

}  // namespace
}  // namespace vorbano

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vorbano;
    fuzzing::Input input(data, size);
    const std::string text(input.until(mark));
    const std::string part(input.rest());
    const LayoutSource source = [&](std::string_view name) -> Result<std::string> {
        if (name == "fuzz.rpt") return text;
        if (name == "parti/firma.part") return part;
        return Error{Failure::notFound, std::string(name)};
    };
    const auto layout = readLayout("fuzz.rpt", source);
    if (layout) {
        use(*layout);
    } else {
        fuzzing::require(!layout.error().subject.empty());
    }
    return 0;
}
