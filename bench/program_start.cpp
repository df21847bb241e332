// The whole program up to its first window, and no further: what the clerk waits for in the morning. Beside it stands
// empty_start, the same for an empty window.

#include <cstdlib>
#include <optional>

#include "first_paint.h"
#include "start/start.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    std::optional<vorbano::bench::FirstPaint> paint;
    vorbano::runOnDesk(argc, argv, [&paint] { paint.emplace([] { std::_Exit(0); }); });
    return EXIT_FAILURE;  // it closed before it was on show
}
