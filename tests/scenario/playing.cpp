#include "playing.h"

#include "platform/qt/installed_databases.h"
#include "platform/staging_tables.h"
#include "record_layouts.h"

namespace vorbano::test {

Playing::Playing()
    : staging((folder.path() / "dbStampa.mdb").string()),
      renderer(staging, [this](std::string_view name) -> Result<std::string> {
          ++rendered;
          if (name == "guasto.rpt") return std::string("[html]\n<p>Elenco</p>\n[tabella]\n");
          if (!sameName(name, "prova.rpt")) return Error{Failure::notFound, std::string(name)};
          return std::string("[html]\n<p>Elenco</p>\n[new-page]\n[html]\n<p>Fine</p>\n");
      }) {
    EXPECT_TRUE(makeStagingDatabase(QString::fromStdString((folder.path() / "dbStampa.mdb").string())));
}

std::string Playing::play(const std::string& text) {
    const Scenario scenario = readScenario(text, (folder.path() / "x.scenario").string());
    const Stage stage{files, staging, recordLayouts(), stagingTables(), folder.path() / "out"};
    const Start start = [this](Desktop& desk, PrintEngine& engine) {
        desktop = &desk;
        printing = &engine;
        if (beforeStart) beforeStart();
        desk.show(prova->form);
    };
    std::string failure = GetParam() == Way::bare ? playBare(scenario, stage, renderer, start)
                                                  : playInWindows(scenario, stage, renderer, start);
    const std::string name = scenario.name + ":";
    if (failure.starts_with(name)) failure.erase(0, name.size());
    return failure;
}

std::string Playing::failureAt(int line, const std::string& text) {
    const std::string failure = play(text);
    const std::string where = std::to_string(line) + ": ";
    EXPECT_THAT(failure, testing::StartsWith(where));
    return failure.starts_with(where) ? failure.substr(where.size()) : failure;
}

}  // namespace vorbano::test
