// Plays operator scenarios on the whole program and tells which of them hold.

#include <QApplication>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "platform/qt/style.h"
#include "scenario/quiet_screen.h"
#include "scenario/theatre.h"
#include "scenario/unseen_screen.h"
#include "storage/system_text.h"

namespace {

using vorbano::Orders;

bool isUnseen(const QByteArray& platform) { return platform.startsWith("offscreen") || platform.startsWith("minimal"); }

#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
constexpr bool alwaysHasDisplay = false;
#else
constexpr bool alwaysHasDisplay = true;
#endif

bool hasDisplay() {
    return alwaysHasDisplay || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int misused(const std::string& why) {
    std::fputs((why + std::string(vorbano::usage())).c_str(), stderr);
    return 2;
}

int play(const Orders& orders) {
    std::optional<vorbano::FreshFolder> fresh;
    if (orders.out.empty()) fresh.emplace();
    const auto out = fresh ? fresh->path() : std::filesystem::absolute(orders.out);
    int passed = 0;
    int failed = 0;
    for (const std::string& file : orders.files) {
        const std::string failure = vorbano::playFile(file, orders, out);
        ++(failure.empty() ? passed : failed);
        if (!failure.empty()) std::puts(failure.c_str());
        std::fflush(stdout);
    }
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const auto orders = vorbano::readOrders(vorbano::arguments(argc, argv));
    if (!orders) return misused({});
    if (orders->help) {
        std::fputs(vorbano::usage().data(), stdout);
        return 0;
    }
    const bool unseen = !hasDisplay() || isUnseen(qgetenv("QT_QPA_PLATFORM"));
    if (orders->watch && unseen) return misused("--watch needs a display.\n");
    // The bare forms need no window, but documents are made all the same, and making them needs fonts.
    if (unseen || (!orders->window && !alwaysHasDisplay)) vorbano::useUnseenScreen();
    vorbano::quietenUnseenScreen();
    QApplication application(argc, argv);
    vorbano::applyStyle(application);
    return play(*orders);
}
