#pragma once

#include <string>
#include <string_view>

#include "platform/database.h"
#include "platform/desktop.h"
#include "platform/print_engine.h"
#include "storage/file_system.h"

namespace vorbano {

/// Opens the working screens by name, so that a screen that leads to another need not know it.
class Screens {
  public:
    virtual ~Screens() = default;
    /// Whether the program has a screen of that name ("frmTutteStampe").
    [[nodiscard]] virtual bool has(std::string_view name) const = 0;
    /// Opens it modally; returns when it is closed.
    virtual void open(std::string_view name) = 0;
};

/// What a screen is handed when it is made; nothing is global.
struct Workplace {
    FileSystem& files;
    Desktop& desktop;
    Database& staging;  ///< dbStampa.mdb
    PrintEngine& printing;
    Screens& screens;
    Database& places;  ///< Comuni.mdb
};

}  // namespace vorbano
