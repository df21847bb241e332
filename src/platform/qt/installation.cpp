#include "platform/qt/installation.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSaveFile>
#include <utility>
#include <vector>

#include "platform/qt/file_names.h"
#include "platform/qt/installed_databases.h"
#include "platform/qt/places.h"

// The delivered files are part of the program; a library has to bring them in by name, outside of any namespace.
static void bringInDeliveredFiles() { Q_INIT_RESOURCE(installation); }

namespace vorbano {

namespace {

const QString delivered = QStringLiteral(":/installation/");

Error failure(Failure kind, const QString& path) { return {kind, QFileInfo(path).fileName().toStdString()}; }

Result<> makeFolder(const QString& path) { return QDir().mkpath(path) ? Result<>() : failure(Failure::refused, path); }

Result<QByteArray> deliveredFile(const QString& name) {
    QFile file(delivered + name);
    if (!file.open(QIODevice::ReadOnly)) return failure(Failure::notFound, name);
    return file.readAll();
}

/// Writes a file that is not there yet.
Result<> lay(const QString& path, const QByteArray& content) {
    const QString target = asOnDisk(path);
    if (QFile::exists(target)) return {};
    if (Result<> folder = makeFolder(QFileInfo(target).path()); !folder) return folder;
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly)) return failure(Failure::refused, target);
    file.write(content);
    return file.commit() ? Result<>() : failure(Failure::device, target);
}

Result<> layLayouts(const QString& root) {
    QDirIterator files(delivered + "Stampe", QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString relative = files.next().mid(delivered.size());
        const auto content = deliveredFile(relative);
        if (!content) return content.error();
        if (Result<> laid = lay(root + '/' + relative, *content); !laid) return laid;
    }
    return {};
}

/// Makes a database that is not there yet: `make` fills a companion, which then takes its place.
template <class Make>
Result<> layDatabase(const QString& path, const Make& make) {
    const QString target = asOnDisk(path);
    if (QFile::exists(target)) return {};
    const QString companion = target + ".nuovo";
    QFile::remove(companion);
    if (Result<> made = make(companion); !made) {
        QFile::remove(companion);
        return made;
    }
    return QFile::rename(companion, target) ? Result<>() : failure(Failure::refused, target);
}

/// The two delivered lists of places.
struct PlaceLists {
    std::vector<Place> municipalities, states;
};

Result<PlaceLists> deliveredLists() {
    PlaceLists lists;
    const std::pair<QString, std::vector<Place>*> files[] = {{"dati/comuni.tsv", &lists.municipalities},
                                                             {"dati/stati.tsv", &lists.states}};
    for (const auto& [name, list] : files) {
        const auto text = deliveredFile(name);
        if (!text) return text.error();
        auto places = readPlaces(*text, QFileInfo(name).fileName());
        if (!places) return places.error();
        *list = std::move(*places);
    }
    return lists;
}

Result<> layPlaces(const QString& path, const PlaceLists& lists) {
    return layDatabase(
        path, [&](const QString& companion) { return makePlaces(companion, lists.municipalities, lists.states); });
}

Result<> layPlacesAndNames(const QString& root) {
    const QString database = root + "/Stampe/Comuni.mdb";
    const QString names = root + "/Params/Comuni.dat";
    if (QFile::exists(asOnDisk(database)) && QFile::exists(asOnDisk(names))) return {};
    const auto lists = deliveredLists();
    if (!lists) return lists.error();
    const Result<> made = layPlaces(database, *lists);
    return made ? lay(names, namesInForce(lists->municipalities)) : made;
}

}  // namespace

Result<> layInstallation(const std::string& rootName) {
    bringInDeliveredFiles();
    if (rootName.empty()) return Error{Failure::badName, rootName};
    const QString root = asOnDisk(QString::fromStdString(rootName));
    for (const char* folder : {"", "/Params", "/Stampe"}) {
        if (Result<> made = makeFolder(asOnDisk(root + folder)); !made) return made;
    }
    if (Result<> layouts = layLayouts(root); !layouts) return layouts;
    const Result<> staging = layDatabase(root + "/Stampe/dbStampa.mdb", makeStagingDatabase);
    return staging ? layPlacesAndNames(root) : staging;
}

Result<DeliveredPlaces> layDeliveredPlaces(const std::string& rootName) {
    bringInDeliveredFiles();
    const QString path = asOnDisk(QString::fromStdString(rootName) + "/Stampe/Comuni consegnati.mdb");
    if (QFile::exists(path)) return DeliveredPlaces{path.toStdString(), false};
    const auto lists = deliveredLists();
    if (!lists) return lists.error();
    if (const Result<> made = layPlaces(path, *lists); !made) return made.error();
    return DeliveredPlaces{path.toStdString(), true};
}

}  // namespace vorbano
