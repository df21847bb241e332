#include "stations/fiscal_code_check.h"

#include <algorithm>

#include "platform/form.h"
#include "storage/codepage.h"

namespace vorbano {

namespace {

constexpr std::ptrdiff_t fiscalCodeLength = 16;

}  // namespace

bool isWholeFiscalCode(std::string_view code) {
    const std::string_view text = trim(code);
    return std::ranges::count_if(text, [](char one) { return (static_cast<unsigned char>(one) & 0xC0U) != 0x80U; }) ==
           fiscalCodeLength;
}

bool fiscalCodeLeft(TextBox& field, Desktop& desktop) {
    if (trim(field.text()).empty()) return false;
    if (isWholeFiscalCode(field.text())) {
        field.text = upperCase(trim(field.text()));
        return true;
    }
    desktop.tell({"Codice Fiscale inesatto. Sono stati inseriti meno di 16 caratteri", "Errore!", Icon::warning});
    field.form().focus(field);
    return false;
}

}  // namespace vorbano
