#include "report_desk.h"

#include "file_content.h"
#include "platform/qt/installation.h"

namespace vorbano::test {

LayoutSource sourceOf(Layouts layouts) {
    return [layouts = std::move(layouts)](std::string_view name) -> Result<std::string> {
        const auto found = layouts.find(name);
        if (found == layouts.end()) return Error{Failure::notFound, std::string(name)};
        return found->second;
    };
}

LayoutSource sourceUnder(const std::string& root) {
    return [root](std::string_view name) -> Result<std::string> {
        const std::filesystem::path path = root + "/Stampe/" + std::string(name);
        if (!std::filesystem::exists(path)) return Error{Failure::notFound, std::string(name)};
        return fileContent(path);
    };
}

ReportDesk::ReportDesk() : root_((folder_.path() / "Vorbanet").string()), database_(root_ + "/Stampe/dbStampa.mdb") {
    // No document needs the places, and what is there already is not made again.
    std::filesystem::create_directories(root_ + "/Stampe");
    std::filesystem::create_directories(root_ + "/Params");
    for (const char* places : {"/Stampe/Comuni.mdb", "/Params/Comuni.dat"}) {
        QFile file(QString::fromStdString(root_ + places));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_THAT(layInstallation(root_), Succeeds());
}

Result<std::unique_ptr<ReportDocument>> ReportDesk::render(const std::string& text, Layouts parts) {
    parts["prova.rpt"] = text;
    return QtRenderer(database_, sourceOf(std::move(parts))).document("prova.rpt", "");
}

Result<std::unique_ptr<ReportDocument>> ReportDesk::renderDelivered(std::string_view layout, std::string_view title) {
    return QtRenderer(database_, sourceUnder(root_)).document(layout, title);
}

void ReportDesk::append(std::string_view table, const Row& row) {
    EXPECT_THAT(database_.append(table, row), Succeeds());
}

void ReportDesk::appendHeading(const std::string& municipality) {
    Row row;
    row.setText("Comune", municipality).setText("Elezione", "Europee e Comunali");
    row.setText("Data", "del 9 Giugno 2024").setText("Databall", "{Vorbano 3.9 edizione 2014}");
    append("Tabella5", row);
}

void ReportDesk::appendEmployees(int count) {
    EXPECT_THAT(database_.begin(), Succeeds());
    for (int number = 1; number <= count; ++number) {
        Row row;
        row.setWhole("NDip", number).setWhole("Dipendenti", count).setWhole("MonteOre", 60);
        row.setText("Nome", "DIPENDENTE " + std::to_string(number)).setText("Categoria", "C1").setText("Livello", "-");
        row.setText("PrimoDal", "15-04-24").setText("PrimoAl", "14-05-24");
        row.setText("SecDal", "15-05-24").setText("SecAl", "09-06-24");
        row.setText("TerDal", "//      ").setText("TerAl", "//      ");
        row.setText("QuartusDal", "00/00/00").setText("QuartusAl", "00/00/00");
        row.setText("PentiumDal", "00/00/00").setText("PentiumAl", "00/00/00");
        for (const char* hours : {"A1fes", "A1Nf", "A2fer", "A2fes", "A2Nf", "A3fer", "A3fes", "A3Nf", "A4Fer", "A4Fes",
                                  "A4Nf", "A5Fer", "A5Fes", "A5Nf"}) {
            row.setWhole(hours, 0);
        }
        row.setWhole("A1fer", 2);
        row.set("CompDf", Amount{100000}).set("CompNof", Amount{113000}).set("CompNef", Amount{131000});
        row.set("Dovuto", Amount{200000}).set("CpStato", Amount{47600}).set("Irap", Amount{17000});
        row.set("TotaleSpesa", Amount{264600}).set("CpDip", Amount{17700}).set("FonCre", Amount{700});
        append("Tabella3", row);
    }
    EXPECT_THAT(database_.commit(), Succeeds());
}

}  // namespace vorbano::test
