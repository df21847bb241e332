#include "screens/typed_values.h"

#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

void take(Integer& field, std::string_view text) {
    if (trim(text).empty()) {
        field = 0;
    } else if (const auto number = toInteger(text)) {
        field = *number;
    }
}

void takeCents(Currency& field, std::string_view text) {
    if (trim(text).empty()) {
        field = Currency();
    } else if (const auto amount = toCurrency(text)) {
        field = cents(*amount);
    }
}

}  // namespace vorbano
