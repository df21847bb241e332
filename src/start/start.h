#pragma once

#include <functional>

namespace vorbano {

/// The program on the clerk's desk: the disk under the installation root, real windows, the staging database, the
/// layouts of "Stampe", the printer. Returns when the main window has closed, with what the process ends with.
/// `begun` is called once, when the toolkit is ready and nothing of the program is on show yet.
int runOnDesk(int argc, char** argv, const std::function<void()>& begun = {});

}  // namespace vorbano
