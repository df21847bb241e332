#include "scenario/unseen_screen.h"

#include <QDir>
#include <QTemporaryFile>

namespace vorbano {

namespace {

constexpr auto officeScreen =
    R"({"screens": [{"name": "ufficio", "x": 0, "y": 0, "width": 1366, "height": 768, "logicalDpi": 96, "dpr": 1}]})";

}  // namespace

void useUnseenScreen() {
    // The platform reads the file when the application starts; it goes away with the process.
    static QTemporaryFile description(QDir::tempPath() + "/vorbano-schermo-XXXXXX.json");
    if (!description.open() || description.write(officeScreen) < 0 || !description.flush()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + description.fileName().toUtf8());
}

}  // namespace vorbano
