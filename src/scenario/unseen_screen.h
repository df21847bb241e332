#pragma once

namespace vorbano {

/// Where nobody looks, windows stand on a screen in memory, of the size of the smallest one in an office:
/// 1366 x 768, or of that in VORBANO_SCREEN ("1920x1080").
/// Before the application object is made.
void useUnseenScreen();

}  // namespace vorbano
