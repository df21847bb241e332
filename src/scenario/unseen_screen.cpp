#include "scenario/unseen_screen.h"

#include <QByteArray>
#include <QDir>
#include <QList>
#include <QTemporaryFile>

namespace vorbano {

namespace {

/// "1920x1080" in VORBANO_SCREEN for another desk than that of a small office.
QByteArray screenDescription() {
    const QList<QByteArray> size = qgetenv("VORBANO_SCREEN").split('x');
    const bool given = size.size() == 2 && size[0].toInt() > 0 && size[1].toInt() > 0;
    return QByteArrayLiteral(R"({"screens": [{"name": "ufficio", "x": 0, "y": 0, "width": )") +
           QByteArray::number(given ? size[0].toInt() : 1366) + QByteArrayLiteral(R"(, "height": )") +
           QByteArray::number(given ? size[1].toInt() : 768) + QByteArrayLiteral(R"(, "logicalDpi": 96, "dpr": 1}]})");
}

}  // namespace

void useUnseenScreen() {
    // The platform reads the file when the application starts; it goes away with the process.
    static QTemporaryFile description(QDir::tempPath() + "/vorbano-schermo-XXXXXX.json");
    // A colon ends the name of the file, which so cannot lie on a drive.
    const bool named = !description.fileTemplate().contains(':');
    if (!named || !description.open() || description.write(screenDescription()) < 0 || !description.flush()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.fileName().toUtf8());
}

}  // namespace vorbano
