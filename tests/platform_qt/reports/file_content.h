#pragma once

#include <QFile>
#include <filesystem>
#include <string>

namespace vorbano::test {

/// The bytes of a file on disk; none when it is not there.
[[nodiscard]] inline std::string fileContent(const std::filesystem::path& path) {
    QFile file(QString::fromStdString(path.string()));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

}  // namespace vorbano::test
