#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/database.h"
#include "platform/desktop.h"

namespace vorbano {

/// Opens a list of the older format; it need not be usable.
using OpensOlder = std::function<std::unique_ptr<Database>(const std::string& path)>;

/// By what the system has for it.
[[nodiscard]] std::unique_ptr<Database> openOlderPlaces(const std::string& path);

/// The list of places of an installation (its root in UTF-8): "Stampe/Comuni.mdb", also when it is of the older format
/// and this machine can read it. Where it cannot, the delivered list stands in for it, beside it under a name of its
/// own, and the clerk is told so when that file is made. Nothing of the older file is changed.
[[nodiscard]] std::unique_ptr<Database> choosePlaces(const std::string& root, Desktop& desktop,
                                                     const OpensOlder& opensOlder = openOlderPlaces);

}  // namespace vorbano
