#pragma once

#include <string>
#include <vector>

#include "base/result.h"

namespace vorbano {

/// What a failure of the disk, a database or a layout means to the clerk, in Italian.
[[nodiscard]] std::string inItalian(const Error& error);
/// So too, where the subject is a folder that could not be made; "" is that of the installation.
[[nodiscard]] std::string folderInItalian(const Error& error);
/// The first five, one a line, and then only how many files more.
[[nodiscard]] std::string inOneBox(const std::vector<std::string>& sentences);

}  // namespace vorbano
