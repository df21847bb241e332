// Lays the delivered installation under the root: layouts, the two databases, the list of municipalities. What is there
// already stays as it is.

#include <QCoreApplication>
#include <cstdio>

#include "platform/qt/installation.h"
#include "storage/disk_file_system.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const std::string root = vorbano::installationRoot().string();
    if (const auto done = vorbano::layInstallation(root); !done) {
        std::fprintf(stderr, "L'installazione in %s non è riuscita: %s\n", root.c_str(), done.error().subject.c_str());
        return 1;
    }
    std::printf("Installazione pronta in %s\n", root.c_str());
    return 0;
}
