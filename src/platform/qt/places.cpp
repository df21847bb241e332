#include "platform/qt/places.h"

#include <QList>
#include <QStringView>

namespace vorbano {

namespace {
constexpr int fieldsInLine = 4;
constexpr qsizetype nameWidth = 60;
}  // namespace

Result<std::vector<Place>> readPlaces(const QByteArray& text, const QString& fileName) {
    std::vector<Place> places;
    const QString content = QString::fromUtf8(text);
    const QList<QStringView> lines = QStringView(content).split(u'\n');
    for (qsizetype at = 1; at < lines.size(); ++at) {
        if (lines[at].isEmpty() && at == lines.size() - 1) break;
        const QList<QStringView> fields = lines[at].split(u'\t');
        if (fields.size() != fieldsInLine || (fields[3] != u"0" && fields[3] != u"1")) {
            return Error{Failure::damaged, QStringLiteral("%1:%2").arg(fileName).arg(at + 1).toStdString()};
        }
        places.push_back({fields[0].toString(), fields[1].toString(), fields[2].toString(), fields[3] == u"1"});
    }
    return places;
}

// The names are plain ASCII (accents are apostrophes), and Latin-1 is the code page of the record files as far as names
// of places go.
QByteArray namesInForce(const std::vector<Place>& places) {
    QByteArray records;
    for (const Place& place : places) {
        if (place.inForce) records += place.name.left(nameWidth).toLatin1().leftJustified(nameWidth, ' ');
    }
    return records;
}

}  // namespace vorbano
