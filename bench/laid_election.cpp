#include "laid_election.h"

#include <array>
#include <span>
#include <vector>

#include "platform/qt/installation.h"
#include "records/overtime_records.h"
#include "records/tariff_records.h"
#include "storage/disk_file_system.h"
#include "storage/list_files.h"
#include "storage/only_record.h"

namespace vorbano::bench {

namespace {

constexpr std::array names = {"ROSSI MARIA", "CASTELLANO PIGNATELLI FRANCESCO SAVERIO", "D'ANGELO NICOLÒ",
                              "BIANCHI ANNA MARIA", "DE LUCA GIOVANNI BATTISTA"};

EmployeeRecord employee(int number, int all) {
    EmployeeRecord record{};
    record.pools.MonteOre = 40;
    record.pools.SonoDip = static_cast<std::int16_t>(number);
    record.pools.NumDip = static_cast<std::int16_t>(all);
    record.name = names[static_cast<std::size_t>(number) % names.size()];
    for (PeriodBlock& period : record.periods) {
        period.from = "15-04-24";
        period.to = "14-05-24";
        const int hours = number % 20;
        period.authorised = {static_cast<std::int16_t>(hours), static_cast<std::int16_t>(hours / 2), 3};
        record.totAut = static_cast<std::int16_t>(record.totAut + hours + hours / 2 + 3);
    }
    record.lblCat = "C1";
    record.lblCat2 = "-";
    record.pay.rates = {Currency::fromCents(1311), Currency::fromCents(1482), Currency::fromCents(1710)};
    record.pay.AliCpStato = Currency::fromCents(2380);
    record.pay.AliIrap = Currency::fromCents(850);
    record.pay.AliCpDip = Currency::fromCents(885);
    record.pay.AliFonCre = Currency::fromCents(35);
    return record;
}

Result<> layEmployees(FileSystem& files, int count) {
    if (auto made = makeElectionFolder(files, laidElection); !made) return made;
    const auto path = laidElection.employeeFile();
    if (!path) return path.error();
    auto file = RecordFile<EmployeeRecord>::open(files, *path);
    if (!file) return file.error();
    std::vector<EmployeeRecord> records;
    for (int number = 1; number <= count; ++number) records.push_back(employee(number, count));
    return file->raw().writeBlock(1, std::as_bytes(std::span(records)));
}

}  // namespace

Result<> layElection(const std::string& root, int employees) {
    if (auto laid = layInstallation(root); !laid) return laid;
    DiskFileSystem files(root);
    NameRecord ente;
    ente.name = "Borgo San Vorbano";
    if (auto named = storeOnlyRecord(files, enteFile, ente); !named) return named;
    if (auto done = storeOnlyRecord(files, pmDipFile, TariffTable()); !done) return done;
    if (auto done = storeOnlyRecord(files, conprevFile, ContribRates()); !done) return done;
    if (auto done = layEmployees(files, employees); !done) return done;
    const auto path = laidElection.file(meirinFile);
    return path ? storeOnlyRecord(files, *path, MeirinRecord()) : path.error();
}

}  // namespace vorbano::bench
