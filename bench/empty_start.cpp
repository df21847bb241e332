// A process that does nothing but put an empty window of the toolkit on the screen, or, for any argument, a window with
// that text: what program_start is measured against. A window without a letter in it needs no fonts.

#include <QLabel>
#include <QMainWindow>
#include <cstdlib>

#include "first_paint.h"

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const vorbano::bench::FirstPaint paint([] { std::_Exit(0); });
    QMainWindow window;
    window.resize(760, 460);
    if (argc > 1) window.setCentralWidget(new QLabel(QString::fromUtf8(argv[1])));
    window.show();
    QApplication::exec();
    return EXIT_FAILURE;
}
