#pragma once

#include <QString>

namespace vorbano {

/// The path as it stands on the disk: names are compared without regard to case, folder by folder, so that an
/// installation copied from another system is found as it is. What is not there keeps the name it was asked for.
[[nodiscard]] QString asOnDisk(const QString& path);

}  // namespace vorbano
