#include "platform/qt/file_names.h"

#include <QDir>
#include <QFileInfo>

namespace vorbano {

namespace {

/// The entry of `folder` that has this name without regard to case; the name itself when there is none.
QString entry(const QString& folder, const QString& name) {
    const QStringList all = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString& one : all) {
        if (one.compare(name, Qt::CaseInsensitive) == 0) return one;
    }
    return name;
}

}  // namespace

QString asOnDisk(const QString& path) {
    QString clean = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (QFileInfo::exists(clean)) return clean;
    const QFileInfo info(clean);
    if (info.isRoot()) return clean;
    const QString folder = asOnDisk(info.path());
    return QDir(folder).filePath(entry(folder, info.fileName()));
}

}  // namespace vorbano
