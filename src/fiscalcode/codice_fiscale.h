#pragma once

// The fiscal code of a person: sixteen characters from surname, name, date of birth, sex and place of birth, by the
// decree of the Ministry of Finance of 23 December 1976.

#include <chrono>
#include <string>
#include <string_view>

namespace vorbano {

/// The code. Surname and name as typed, in either case: what is no plain letter (a blank, an apostrophe, an accented
/// letter) is skipped. `sesso`: "F" or "f" is a woman, anything else a man. `codiceLuogo`: the code of the municipality
/// or of the foreign state, appended as it is; the last letter is computed over the characters there are. Never fails.
[[nodiscard]] std::string CalcoloCodFis(std::string_view cognome, std::string_view nome,
                                        std::chrono::year_month_day nascita, std::string_view sesso,
                                        std::string_view codiceLuogo);

}  // namespace vorbano
