#pragma once

class QStyle;

namespace vorbano {

/// The drawing of what a style sheet cannot draw, and, when `compact`, half the air between the rows of a window. The
/// application takes it over.
[[nodiscard]] QStyle* makeHouseStyle(bool compact);

}  // namespace vorbano
