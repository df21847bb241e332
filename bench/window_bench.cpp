// How long the clerk waits: the first window of the program, beside an empty window of the toolkit in the same run, the
// largest screens, and a key in the field that finds the place of birth, beside a key in a field that finds nothing.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <memory>
#include <string_view>

#include "first_paint.h"
#include "fiscalcode/frmCodFisc.h"
#include "overtime/frmCompStraord.h"
#include "parameters/frmParametri.h"
#include "platform/memory_database.h"
#include "platform/qt/form_window.h"
#include "platform/qt/installation.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/sqlite_database.h"
#include "platform/qt/style.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "program/program.h"
#include "storage/list_files.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"

namespace {

using namespace vorbano;
using bench::FirstPaint;

/// An installation that is ready for work, so that no box comes up.
struct Office {
    MemoryFileSystem files;
    MemoryDatabase staging{stagingTables()};
    MemoryDatabase places{{}};
    RecordingPrintEngine printing;
    QtDesktop desktop;

    Office() {
        files.makeFolder("Params").ignore();
        NameRecord ente;
        ente.name = "Borgo San Vorbano";
        RecordFile<NameRecord>::open(files, enteFile)->append(ente).ignore();
        RecordFile<TariffTable>::open(files, pmDipFile)->append(TariffTable()).ignore();
        RecordFile<ContribRates>::open(files, conprevFile)->append(ContribRates()).ignore();
    }
};

struct NoScreens : Screens {
    [[nodiscard]] bool has(std::string_view) const override { return false; }
    void open(std::string_view) override {}
};

void closeFront(QtDesktop& desktop) {
    if (Form* front = desktop.front()) front->close();
}

void emptyWindowOfTheToolkit(benchmark::State& state) {
    for (auto _ : state) {
        QDialog window;
        window.resize(760, 460);
        const FirstPaint paint([&window] { window.accept(); });
        window.exec();
    }
}
BENCHMARK(emptyWindowOfTheToolkit)->Unit(benchmark::kMillisecond);

void firstWindowOfTheProgram(benchmark::State& state) {
    Office office;
    for (auto _ : state) {
        Program program(office.files, office.desktop, office.staging, office.places, office.printing);
        const FirstPaint paint([&office] { closeFront(office.desktop); });
        program.run();
    }
}
BENCHMARK(firstWindowOfTheProgram)->Unit(benchmark::kMillisecond);

template <class Screen>
void screenOnShow(benchmark::State& state) {
    Office office;
    NoScreens none;
    const Workplace workplace{office.files, office.desktop, office.staging, office.printing, none, office.places};
    for (auto _ : state) {
        const auto screen = std::make_unique<Screen>(workplace);
        const FirstPaint paint([&office] { closeFront(office.desktop); });
        office.desktop.show(screen->form);
    }
}
BENCHMARK(screenOnShow<frmParametri>)->Unit(benchmark::kMillisecond);
BENCHMARK(screenOnShow<frmCompStraord>)->Unit(benchmark::kMillisecond);

/// The window of the fiscal code over the list of places of an installation.
struct FiscalCodeDesk {
    QTemporaryDir folder;
    Office office;
    NoScreens none;
    bool laid = layInstallation(folder.path().toStdString()).ok();
    SqliteDatabase places{folder.path().toStdString() + "/Stampe/Comuni.mdb"};
    frmCodFisc screen{Workplace{office.files, office.desktop, office.staging, office.printing, none, places}};
    FormWindow window{screen.form};
    FormStack stack;

    FiscalCodeDesk() {
        window.show();
        QApplication::setActiveWindow(&window);
        stack.push(screen.form);
        QApplication::processEvents();
    }
};

/// One key after the other of a long name, each with all that the window does after it, until it is painted again. With
/// `inPlace` the name is completed at every key.
void keyOfAName(benchmark::State& state, bool inPlace) {
    FiscalCodeDesk desk;
    TextBox& box = inPlace ? desk.screen.Text1 : desk.screen.txtCognome;
    QWidget* field = desk.window.widgetOf(box);
    field->setFocus();
    QApplication::processEvents();
    if (!desk.laid || desk.screen.form.focused() != &box) {
        state.SkipWithError("the list of places could not be laid");
        return;
    }
    constexpr std::string_view name = "SAN GIOVANNI IN PERSICETO";
    std::size_t at = 0;
    for (auto _ : state) {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar::fromLatin1(name[at])));
        QApplication::sendEvent(field, &key);
        QApplication::processEvents();
        if (++at < name.size()) continue;
        state.PauseTiming();
        if (inPlace && desk.screen.Text3.text() != "G467") state.SkipWithError("the place was not found");
        at = 0;
        box.text = std::string();
        QApplication::processEvents();
        state.ResumeTiming();
    }
    desk.screen.form.close();
}
BENCHMARK_CAPTURE(keyOfAName, thatFindsThePlaceOfBirth, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(keyOfAName, thatFindsNothing, false)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    vorbano::applyStyle(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
