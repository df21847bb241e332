// Lays the delivered installation under the root: layouts, the two databases, the list of municipalities. What is there
// already stays as it is. With --window a failure is told in a window, for a clerk who has no terminal.

#include <QApplication>
#include <cstdio>

#include "platform/qt/installation.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/style.h"
#include "storage/disk_file_system.h"
#include "storage/system_text.h"

namespace {

int lay(const std::string& root, bool inWindow) {
    const auto done = vorbano::layInstallation(root);
    if (done) {
        std::printf("Installazione pronta in %s\n", root.c_str());
        return 0;
    }
    const std::string words = "L'installazione in " + root + " non è riuscita: " + done.error().subject;
    std::fprintf(stderr, "%s\n", words.c_str());
    if (inWindow) {
        vorbano::applyStyle(*qApp);
        vorbano::QtDesktop().tell({words, "Vorbano", vorbano::Icon::error});
    }
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    const auto words = vorbano::arguments(argc, argv);
    const bool inWindow = !words.empty() && words.front() == "--window";
    const std::string root = vorbano::utf8(vorbano::installationRoot());
    if (inWindow) {
        const QApplication application(argc, argv);
        return lay(root, true);
    }
    const QCoreApplication application(argc, argv);
    return lay(root, false);
}
