// A document from full staging tables to its pages and to its file, by number of employees. The time of a row has to be
// the same in a table of a hundred and in one of 32,767; beside it stands the same table as one single text document,
// whose time of a row grows with the table.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextDocument>

#include "platform/qt/installation.h"
#include "platform/qt/report_renderer.h"

namespace {

using namespace vorbano;

constexpr int most = 32767;
constexpr int peopleInStation = 7;

/// An installation with employees, or with the members of polling stations, in its staging tables.
class Office {
  public:
    enum class Holds { employees, stations };
    explicit Office(int count, Holds what = Holds::employees)
        : database_(root() + "/Stampe/dbStampa.mdb"), renderer_(database_, source()) {
        ok_ = folder_.isValid() && layInstallation(root()).ok() &&
              (what == Holds::employees ? fill(count) : fillStations(count));
    }

    [[nodiscard]] bool ok() const { return ok_; }
    [[nodiscard]] std::string root() const { return folder_.path().toStdString(); }
    Result<std::unique_ptr<ReportDocument>> document() { return renderer_.document("impstr.rpt", "IMPEGNO DI SPESA"); }
    Result<std::unique_ptr<ReportDocument>> sheets() { return renderer_.document("seggi.rpt", ""); }

  private:
    [[nodiscard]] LayoutSource source() const {
        return [stampe = folder_.filePath("Stampe/")](std::string_view name) -> Result<std::string> {
            QFile file(stampe + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
            if (!file.open(QIODevice::ReadOnly)) return Error{Failure::notFound, std::string(name)};
            return file.readAll().toStdString();
        };
    }

    bool fill(int employees) {
        if (!database_.begin()) return false;
        for (int number = 1; number <= employees; ++number) {
            Row row;
            row.setWhole("NDip", number).setWhole("Dipendenti", employees).setWhole("MonteOre", 60);
            row.setText("Nome", number % 7 == 0 ? "CASTELLANO PIGNATELLI FRANCESCO SAVERIO" : "ROSSI MARIA");
            row.setText("PrimoDal", "15-04-24").setText("PrimoAl", "14-05-24").setText("Categoria", "C1");
            for (const char* hours : {"A1fer", "A1fes", "A1Nf", "A2fer", "A2fes", "A2Nf", "A3fer", "A3fes", "A3Nf"}) {
                row.setWhole(hours, number % 30);
            }
            for (const char* amount :
                 {"CompDf", "CompNof", "CompNef", "Dovuto", "CpStato", "Irap", "TotaleSpesa", "CpDip", "FonCre"}) {
                row.set(amount, Amount{std::int64_t{number % 1000} * 12300});
            }
            if (!database_.append("Tabella3", row)) return false;
        }
        return database_.append("Tabella5", Row().setText("Comune", "PROVA")).ok() && database_.commit().ok();
    }

    /// Six members and a substitute each.
    bool fillStations(int stations) {
        if (!database_.begin()) return false;
        for (int number = 0; number < stations * peopleInStation; ++number) {
            const int place = number % peopleInStation + 1;
            Row row;
            row.setText("Elezione", "Comunali").setText("Data", "del 9 Giugno 2024");
            row.setWhole("Seggio", stations).setWhole("SonoSeggio", number / peopleInStation + 1);
            row.setWhole("CompoNum", place).setText("Qualifica", place == 1 ? "Presidente" : "Scrutatore");
            row.setText("Componente", place == 7 ? "CASTELLANO PIGNATELLI FRANCESCO SAVERIO" : "ROSSI MARIA");
            row.setText("Indirizzo", "VIA GARIBALDI 12").setText("Partecipazione", "SI");
            row.setText("CodiceFiscale", "RSSMRA80A41A944X").set("onorario", Amount{1200000});
            if (!database_.append("Tabella7", row)) return false;
        }
        return database_.append("Tabella5", Row().setText("Comune", "PROVA")).ok() && database_.commit().ok();
    }

    QTemporaryDir folder_;
    SqliteDatabase database_;
    QtRenderer renderer_;
    bool ok_ = false;
};

void perRow(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.counters["row"] = benchmark::Counter(static_cast<double>(state.iterations() * state.range(0)),
                                               benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void pagesOfADocument(benchmark::State& state) {
    Office office(static_cast<int>(state.range(0)));
    for (auto step : state) {
        const auto document = office.document();
        if (!office.ok() || !document) return state.SkipWithError("no document");
        state.counters["pages"] = (*document)->pages();
    }
    perRow(state);
}

void fileOfADocument(benchmark::State& state) {
    Office office(static_cast<int>(state.range(0)));
    for (auto step : state) {
        const auto document = office.document();
        if (!office.ok() || !document || !(*document)->savePdf(office.root() + "/impegno.pdf")) {
            return state.SkipWithError("no file");
        }
    }
    perRow(state);
}

/// A sheet for each polling station. The time of a station has to be the same whatever their number.
void pagesOfStations(benchmark::State& state) {
    Office office(static_cast<int>(state.range(0)), Office::Holds::stations);
    for (auto step : state) {
        const auto document = office.sheets();
        if (!office.ok() || !document) return state.SkipWithError("no document");
        state.counters["pages"] = (*document)->pages();
    }
    perRow(state);
}

void fileOfStations(benchmark::State& state) {
    Office office(static_cast<int>(state.range(0)), Office::Holds::stations);
    for (auto step : state) {
        const auto document = office.sheets();
        if (!office.ok() || !document || !(*document)->savePdf(office.root() + "/seggi.pdf")) {
            return state.SkipWithError("no file");
        }
    }
    perRow(state);
}

/// What is compared with: one text document that holds the whole table.
void oneTextDocument(benchmark::State& state) {
    QString html = "<table>";
    for (int row = 0; row < state.range(0); ++row) {
        html += "<tr>";
        for (int column = 0; column < 22; ++column) html += "<td>12,50</td>";
        html += "</tr>";
    }
    html += "</table>";
    for (auto step : state) {
        QTextDocument document;
        document.setHtml(html);
        document.setTextWidth(1000);
        benchmark::DoNotOptimize(document.size());
    }
    perRow(state);
}

BENCHMARK(pagesOfADocument)->Arg(100)->Arg(1000)->Arg(10000)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(fileOfADocument)->Arg(100)->Arg(1000)->Arg(10000)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(pagesOfStations)->Arg(100)->Arg(1000)->Arg(2600)->Unit(benchmark::kMillisecond);
BENCHMARK(fileOfStations)->Arg(100)->Arg(1000)->Arg(2600)->Unit(benchmark::kMillisecond);
BENCHMARK(oneTextDocument)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
