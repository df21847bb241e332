#pragma once

// What must hold after every gesture, whatever the operator did. Each tells in English what does not hold; "" when all
// does.

#include <string>
#include <string_view>

#include "platform/form.h"
#include "storage/file_system.h"

namespace vorbano::test {

/// The focus stands on a control that can have it, what is chosen is there, every text can be shown.
[[nodiscard]] std::string wrongIn(const Form& form);
/// A file of the installation is one that the program knows, no companion stays behind, and it holds whole records
/// (Meirin.vbn as a removal leaves it too). A path without a file is well.
[[nodiscard]] std::string wrongIn(FileSystem& files, std::string_view path);

}  // namespace vorbano::test
