#include "screens/date_entry.h"

#include <string>
#include <string_view>

#include "platform/form.h"
#include "storage/dates.h"

namespace vorbano {

namespace {

constexpr std::string_view refusedCharacters = "()[]#.,*:;'_\\";

}  // namespace

bool signum(TextBox& field, Desktop& desktop) {
    const auto at = field.text().find_first_of(refusedCharacters);
    if (at == std::string::npos) return true;
    std::string text = field.text();
    const std::string character(1, text[at]);
    text.erase(at, 1);
    field.text = text;
    desktop.tell({"Il formato ( " + character + " ) non è esatto. Inserire il simbolo  ( / )  oppure  ( - )  ",
                  "formato data", Icon::warning});
    return false;
}

void makeDateField(TextBox& field, Desktop& desktop) {
    // What the program shows in it, the name of a folder that is no date for one, is nobody's typing.
    field.change.calls([&field, &desktop] {
        if (field.form().focused() == &field) signum(field, desktop);
    });
    field.lostFocus.calls([&field] {
        if (!isExcluded(field.text())) field.text = reformatDate(field.text());
    });
}

}  // namespace vorbano
