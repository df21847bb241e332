#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "base/result.h"

namespace vorbano {

/// A place of birth: a municipality or a foreign state, in force or past.
struct Place {
    QString code;      ///< the four characters that end a fiscal code
    QString province;  ///< two letters, "EE" for a state
    QString name;      ///< upper case, an accent written as a following apostrophe
    bool inForce = false;
};

/// Reads a delivered list: UTF-8, one heading line, then code, province, name and "1" or "0" between tabs. `damaged`
/// names the file and the line.
Result<std::vector<Place>> readPlaces(const QByteArray& text, const QString& fileName);

/// The record file of the names in force, in the order of the list: 60 bytes each, blank padded, in the code page of
/// the record files.
[[nodiscard]] QByteArray namesInForce(const std::vector<Place>& places);

}  // namespace vorbano
