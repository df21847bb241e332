#pragma once

class QStyle;

namespace vorbano {

/// The drawing of what a style sheet cannot draw. The application takes it over.
[[nodiscard]] QStyle* makeHouseStyle();

}  // namespace vorbano
