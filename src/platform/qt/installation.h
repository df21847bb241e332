#pragma once

#include <string>

#include "base/result.h"

namespace vorbano {

/// Lays the delivered installation under a root folder (UTF-8): the folders Params and Stampe, every layout, the
/// staging database with its empty tables, the reference database of places, the list of municipalities. What is there
/// already stays untouched, whatever the case of its name. Each file is written beside its place and renamed into it,
/// so none is ever found half done. Fails with the file that could not be written.
Result<> layInstallation(const std::string& root);

/// The delivered list of places under a name of its own.
struct DeliveredPlaces {
    std::string path;    ///< UTF-8
    bool isNew = false;  ///< it was made just now
};

/// Lays the delivered list of places beside "Stampe/Comuni.mdb", for the office whose own list cannot be read on this
/// machine; one that is there already stays as it is.
Result<DeliveredPlaces> layDeliveredPlaces(const std::string& root);

}  // namespace vorbano
