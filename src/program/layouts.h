#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "storage/file_system.h"

namespace vorbano {

/// Reads the layouts of the installation's folder "Stampe" by name.
[[nodiscard]] inline std::function<Result<std::string>(std::string_view)> layoutsOf(FileSystem& files) {
    return [&files](std::string_view name) { return readWhole(files, "Stampe/" + std::string(name)); };
}

}  // namespace vorbano
