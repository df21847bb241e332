#pragma once

// Which procedure makes the statement of costs of an election, and which layout shows it.

#include <cstdint>
#include <optional>
#include <string_view>

#include "storage/election.h"

namespace vorbano {

/// The four ways of making the row of the statement, by the names of their procedures.
enum class RendicontoPath : std::uint8_t {
    common,     ///< one record shared voice by voice
    ProvSub,    ///< rebuilt from the stations, since the fees of each body are kept apart
    PolRegSub,  ///< as ProvSub, with the overtime of a second body
    EuroCom,    ///< as the common one, with the postal expenses by body
};
[[nodiscard]] RendicontoPath rendicontoPath(std::string_view kind);

/// The layout by path, kind and date; the first line that holds. Nothing when no line of the path does.
[[nodiscard]] std::optional<std::string_view> rendicontoLayout(RendicontoPath path, const Election& election);

/// Two elections held together, the first of them European.
[[nodiscard]] bool europeanWithOthers(std::string_view kind);

}  // namespace vorbano
