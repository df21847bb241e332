#include "random/invariants.h"

#include <algorithm>

#include "program/record_files.h"
#include "records/overtime_records.h"
#include "scenario/line_scanner.h"

namespace vorbano::test {

namespace {

std::string wrongIn(const Control& control) {
    if (!isUtf8(control.shownText())) return "shows bytes that are no text";
    if (control.kind() == Kind::comboBox || control.kind() == Kind::listBox) {
        const auto& list = static_cast<const ItemControl&>(control);
        const int lines = static_cast<int>(list.items().size());
        if (list.selection() < -1 || list.selection() >= lines) return "has a line chosen that is not there";
    }
    if (control.kind() == Kind::grid) {
        for (const Lines& row : static_cast<const Grid&>(control).cells()) {
            if (!std::all_of(row.begin(), row.end(), isUtf8)) return "shows bytes that are no text";
        }
    }
    return {};
}

/// Width of the records of a file, 0 when the program has no such file.
std::size_t widthOf(std::string_view path) {
    const auto names = splitPath(path);
    if (!names || names->empty()) return 0;
    const std::string& name = names->back();
    const bool ofStaff = names->size() > 1 && sameName(name, (*names)[names->size() - 2] + ".vbn");
    for (const RecordInfo& info : recordFiles()) {
        if (sameName(info.file, ofStaff ? "<data>.vbn" : name)) return info.width;
    }
    return 0;
}

}  // namespace

std::string wrongIn(const Form& form) {
    if (form.isOpen() && form.focused() != nullptr && !form.focused()->takesFocus()) {
        return form.focused()->name() + " has the focus and cannot have it";
    }
    for (const Control* control : form.controls()) {
        if (const std::string wrong = wrongIn(*control); !wrong.empty()) return control->name() + " " + wrong;
    }
    return {};
}

std::string wrongIn(FileSystem& files, std::string_view path) {
    const auto file = files.openExisting(path);
    if (!file) return {};
    const std::string name(path);
    const std::size_t width = widthOf(path);
    if (width == 0) return name + " is no file of the program, or a companion that stayed behind";
    const auto size = (*file)->size();
    if (!size) return name + " has no size";
    const bool afterRemoval = width == sizeof(MeirinRecord) && *size == sizeof(RevMeirinRecord);
    return *size % width == 0 || afterRemoval ? std::string() : name + " has " + std::to_string(*size) + " bytes";
}

}  // namespace vorbano::test
