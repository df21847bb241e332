// The program on the clerk's desk: the disk under the installation root, real windows, the staging database, the
// layouts of "Stampe", the printer.

#include <QApplication>

#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/report_engine.h"
#include "platform/qt/report_renderer.h"
#include "platform/qt/sqlite_database.h"
#include "platform/qt/style.h"
#include "program/layouts.h"
#include "program/program.h"
#include "storage/disk_file_system.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    vorbano::applyStyle(application);

    const auto root = vorbano::installationRoot();
    vorbano::DiskFileSystem files(root);
    vorbano::SqliteDatabase staging((root / "Stampe" / "dbStampa.mdb").string());
    vorbano::SqliteDatabase places((root / "Stampe" / "Comuni.mdb").string());
    vorbano::QtDesktop desktop;
    const auto above = [&desktop] { return desktop.frontWindow(); };
    vorbano::QtRenderer renderer(staging, vorbano::layoutsOf(files));
    vorbano::QtPrinter printer(above);
    vorbano::QtPrintEngine printing(renderer, printer, above);

    vorbano::Program program(files, desktop, staging, places, printing);
    program.run();
    return 0;
}
