#pragma once

#include <string>

#include "base/result.h"

namespace vorbano {

/// Lays the delivered installation under a root folder (UTF-8): the folders Params and Stampe, every layout, the
/// staging database with its empty tables, the reference database of places, the list of municipalities. What is there
/// already stays untouched, whatever the case of its name. Each file is written beside its place and renamed into it,
/// so none is ever found half done. Fails with the file that could not be written.
Result<> layInstallation(const std::string& root);

}  // namespace vorbano
