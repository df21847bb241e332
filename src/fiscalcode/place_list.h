#pragma once

// The reference list of the places where people are born, Comuni.mdb: the municipalities, in force and past, and the
// foreign states. It is only read.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/database.h"

namespace vorbano {

/// Which of the two tables: `Comuni`, or `Stati` for who was born abroad.
enum class BornIn : std::uint8_t { Comuni, Stati };

struct Birthplace {
    std::string name;      ///< in capitals, an accent as a following apostrophe
    std::string province;  ///< two letters; "EE" for a state
    std::string code;      ///< the four characters in the fiscal code
};

/// Finds places by name. Names are not unique: of several places of one name the first in force is taken, or the first
/// when none is. Failures are those of the database.
class PlaceList {
  public:
    explicit PlaceList(Database& places) : places_(places) {}

    /// The first place, in the order of names, whose name is `text` or comes after it; `text` in either case.
    [[nodiscard]] Result<std::optional<Birthplace>> atOrAfter(BornIn where, std::string_view text);
    /// The place of exactly that name, blanks at its ends left out. The clerk may write it in either case and with
    /// accents: "Cantù" is found as "CANTU'".
    [[nodiscard]] Result<std::optional<Birthplace>> named(BornIn where, std::string_view name);

  private:
    Database& places_;
};

}  // namespace vorbano
