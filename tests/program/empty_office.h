#pragma once

#include <string>

#include "platform/memory_database.h"
#include "platform/scripted_desktop.h"
#include "platform/staging_tables.h"
#include "program/program.h"
#include "storage/memory_file_system.h"

namespace vorbano::test {

/// Runs the program on `desktop`, in an office where nothing has been entered yet, and opens every screen of it. How
/// many there are beside the main window.
inline int openEveryScreen(Desktop& desktop) {
    MemoryFileSystem files;
    files.makeFolder("Params").ignore();
    MemoryDatabase staging(stagingTables());
    MemoryDatabase places{{}};
    RecordingPrintEngine printing;
    Program program(files, desktop, staging, places, printing);
    program.run();
    for (const std::string& name : program.names()) program.open(name);
    return static_cast<int>(program.names().size());
}

}  // namespace vorbano::test
