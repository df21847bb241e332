// One document as a process of its own, from the record files to the PDF, and the same table as text for another
// program to print:
//
//     print_program lay ROOT EMPLOYEES    an installation with an election
//     print_program pdf ROOT FILE         its "IMPEGNO DI SPESA"
//     print_program csv ROOT FILE         the rows of that document

#include <QApplication>
#include <cstdio>
#include <fstream>
#include <string>
#include <string_view>

#include "laid_election.h"
#include "platform/qt/report_renderer.h"
#include "platform/qt/sqlite_database.h"
#include "platform/scripted_desktop.h"
#include "program/layouts.h"
#include "reports/impegno.h"
#include "storage/disk_file_system.h"

namespace {

using namespace vorbano;

/// The columns of the document.
constexpr std::array shownFields = {"NDip",   "Nome",        "Categoria", "A1fer",   "A1fes",  "A1Nf",
                                    "A2fer",  "A2fes",       "A2Nf",      "A3fer",   "A3fes",  "A3Nf",
                                    "TotAut", "CompDf",      "CompNof",   "CompNef", "Dovuto", "CpStato",
                                    "Irap",   "TotaleSpesa", "CpDip",     "FonCre"};

struct NoScreens : Screens {
    [[nodiscard]] bool has(std::string_view) const override { return false; }
    void open(std::string_view) override {}
};

/// Puts the document, or the rows that it would show, into a file.
class FileEngine : public PrintEngine {
  public:
    FileEngine(QtRenderer& renderer, Database& staging, std::string path, bool rowsOnly)
        : renderer_(renderer), staging_(staging), path_(std::move(path)), rowsOnly_(rowsOnly) {}

    Result<> run(const PrintJob& job) override {
        if (rowsOnly_) return writeRows();
        const auto document = renderer_.document(job.layout, job.title);
        return document ? (*document)->savePdf(path_) : document.error();
    }
    Result<> printPage(const PlainPage& /*page*/) override { return Error{Failure::refused, path_}; }

  private:
    Result<> writeRows() {
        std::ofstream file(path_);
        const auto count = staging_.count("Tabella3");
        if (!count) return count.error();
        for (int number = 1; number <= *count; ++number) {
            const auto row = staging_.read("Tabella3", number);
            if (!row) return row.error();
            for (const std::string_view field : shownFields) {
                const Value* value = row->find(field);
                file << '"' << (value == nullptr ? std::string() : shownValue(*value)) << "\";";
            }
            file << '\n';
        }
        return file ? Result<>() : Error{Failure::device, path_};
    }

    QtRenderer& renderer_;
    Database& staging_;
    std::string path_;
    bool rowsOnly_;
};

Result<> print(const std::string& root, const std::string& path, bool rowsOnly) {
    DiskFileSystem files(root);
    ScriptedDesktop desktop;
    SqliteDatabase staging(root + "/Stampe/dbStampa.mdb");
    SqliteDatabase places(root + "/Stampe/Comuni.mdb");
    QtRenderer renderer(staging, layoutsOf(files));
    FileEngine engine(renderer, staging, path, rowsOnly);
    NoScreens none;
    const Workplace desk{files, desktop, staging, engine, none, places};
    const Heading heading{.Elezione = electionCaption(bench::laidElection.type),
                          .Data = dateCaption(bench::laidElection.date).value_or(""),
                          .Databall = std::string(editionCaption)};
    return printImpegno(desk, bench::laidElection, {}, heading);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("print_program lay ROOT EMPLOYEES | pdf ROOT FILE | csv ROOT FILE\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const std::string_view order = argv[1];
    const auto done =
        order == "lay" ? bench::layElection(argv[2], std::atoi(argv[3])) : print(argv[2], argv[3], order == "csv");
    if (!done) std::fprintf(stderr, "%s\n", done.error().subject.c_str());
    return done ? 0 : 1;
}
