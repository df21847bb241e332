#include "platform/qt/file_names.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace vorbano {

namespace {

/// The entry of `folder` that has this name without regard to case, of several the first in the order of their letters;
/// the name itself when there is none.
QString entry(const QString& folder, const QString& name) {
    QString found;
    for (QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System); all.hasNext();) {
        all.next();
        const QString one = all.fileName();
        if (one.compare(name, Qt::CaseInsensitive) == 0 && (found.isEmpty() || one < found)) found = one;
    }
    return found.isEmpty() ? name : found;
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
