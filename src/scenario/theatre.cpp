#include "scenario/theatre.h"

#include <QTemporaryDir>
#include <cstdlib>
#include <system_error>

#include "platform/qt/installation.h"
#include "platform/qt/places_choice.h"
#include "platform/qt/report_renderer.h"
#include "platform/qt/sqlite_database.h"
#include "platform/staging_tables.h"
#include "program/layouts.h"
#include "program/program.h"
#include "program/record_files.h"
#include "scenario/out_folder.h"
#include "scenario/window_play.h"
#include "storage/disk_file_system.h"
#include "storage/noticing_file_system.h"
#include "storage/system_text.h"

namespace vorbano {

namespace {

namespace fs = std::filesystem;

std::string playIn(const fs::path& root, const Scenario& scenario, const Orders& orders, const fs::path& out) {
    if (const auto laid = layInstallation(utf8(root)); !laid) {
        return scenario.name + ":1: expected an installation in " + utf8(root) + ", was " + inWords(laid.error());
    }
    DiskFileSystem files(root);
    SqliteDatabase staging(utf8(root / "Stampe" / "dbStampa.mdb"));
    QtRenderer renderer(staging, layoutsOf(files));
    const char* surfaceFile = std::getenv("VORBANO_SURFACE");
    Surface surface(surfaceFile == nullptr ? fs::path() : pathOf(surfaceFile));
    const Stage stage{files, staging, recordFiles(), stagingTables(), out, &surface};
    NoticingFileSystem noted(
        files, [](const Unwritten&) {}, [&surface] { surface.wrote(); });
    const Start start = [&](Desktop& desktop, PrintEngine& printing) {
        const auto places = choosePlaces(utf8(root), desktop);
        Program(noted, desktop, staging, *places, printing).run();
    };
    if (!orders.window) return playBare(scenario, stage, renderer, start);
    return playInWindows(scenario, stage, renderer, start, orders.watch ? Pace::slow : Pace::quick);
}

}  // namespace

std::string playFile(const std::string& file, const Orders& orders, const fs::path& out) {
    const auto text = contentOfFile(pathOf(file));
    if (!text) return file + ":1: expected a scenario, was a file that cannot be read";
    const Scenario scenario = readScenario(*text, file);
    if (!scenario.errors.empty()) {
        std::string told;
        for (const std::string& error : scenario.errors) told += (told.empty() ? "" : "\n") + error;
        return told;
    }
    if (!orders.root.empty()) return playIn(fs::absolute(pathOf(orders.root)), scenario, orders, out);
    const FreshFolder root;
    return playIn(root.path(), scenario, orders, out);
}

FreshFolder::FreshFolder() {
    QTemporaryDir folder;
    folder.setAutoRemove(false);
    path_ = pathOf(folder.path().toStdString());
}

FreshFolder::~FreshFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace vorbano
