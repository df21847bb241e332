#pragma once

namespace vorbano {

/// Where there is no screen, the toolkit complains of each thing that only a screen can do; that is left out of what it
/// says.
void quietenUnseenScreen();

}  // namespace vorbano
