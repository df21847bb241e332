#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "platform/qt/report_renderer.h"
#include "platform/qt/sqlite_database.h"
#include "prova.h"
#include "scenario/window_play.h"
#include "storage/memory_file_system.h"
#include "support/temporary_folder.h"

namespace vorbano::test {

enum class Way { bare, windows };
inline void PrintTo(Way way, std::ostream* out) { *out << (way == Way::bare ? "bare" : "windows"); }

/// Plays a scenario on the small forms, both ways.
class Playing : public testing::TestWithParam<Way> {
  protected:
    Playing();

    /// The scenario stands in the file "x.scenario" of `folder`; its main window is frmProva. "" when every line holds.
    std::string play(const std::string& text);
    /// Everything up to and including the given line holds, and that line fails; the rest of the message.
    std::string failureAt(int line, const std::string& text);
    void tell(const std::string& title, const std::string& text) { desktop->tell({text, title, Icon::information}); }
    bool ask(const std::string& title, const std::string& text) { return desktop->ask({text, title, Icon::question}); }
    Result<> print(const std::string& layout, const std::string& title, Destination where) {
        return printing->run({layout, title, where});
    }

    TemporaryFolder folder;
    MemoryFileSystem files;
    SqliteDatabase staging;
    /// Its layout "prova.rpt" is there, "guasto.rpt" is damaged, every other is missing.
    QtRenderer renderer;
    int rendered = 0;
    std::unique_ptr<frmProva> prova = std::make_unique<frmProva>();
    frmSopra sopra;
    frmMarca splash;
    /// What the program does before its main window opens.
    std::function<void()> beforeStart;
    /// While the scenario is played.
    Desktop* desktop = nullptr;
    PrintEngine* printing = nullptr;
};

}  // namespace vorbano::test
