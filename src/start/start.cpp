#include "start/start.h"

#include <QApplication>

#include "platform/qt/places_choice.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/report_engine.h"
#include "platform/qt/report_renderer.h"
#include "platform/qt/sqlite_database.h"
#include "platform/qt/style.h"
#include "platform/qt/typefaces.h"
#include "program/layouts.h"
#include "program/program.h"
#include "storage/disk_file_system.h"
#include "storage/system_text.h"

namespace vorbano {

int runOnDesk(int argc, char** argv, const std::function<void()>& begun) {
    const std::future<void> typefaces = readTypefaces();
    QApplication application(argc, argv);
    applyStyle(application);
    if (begun) begun();

    const auto root = installationRoot();
    DiskFileSystem files(root);
    SqliteDatabase staging(utf8(root / "Stampe" / "dbStampa.mdb"));
    // Opened while the typefaces are being read; the main window says what is wrong with it.
    staging.check().ignore();
    typefaces.wait();
    QtDesktop desktop;
    const auto places = choosePlaces(utf8(root), desktop);
    const auto above = [&desktop] { return desktop.frontWindow(); };
    QtRenderer renderer(staging, layoutsOf(files));
    QtPrinter printer(above);
    QtPrintEngine printing(renderer, printer, above);

    Program program(files, desktop, staging, *places, printing);
    program.run();
    return 0;
}

}  // namespace vorbano
