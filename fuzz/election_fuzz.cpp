// Any bytes as a file of an election, or as all of them: everything that reads an election reads it. The first byte of
// the input says which file it is (none: all), the second which type and date the election has.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzzing.h"
#include "overtime/late_records.h"
#include "overtime/meirin_periods.h"
#include "overtime/rendi_kontrol.h"
#include "overtime/staff.h"
#include "payments/document_list.h"
#include "program/record_files.h"
#include "records/payment_records.h"
#include "records/station_files.h"
#include "records/station_tariff_records.h"
#include "reports/overtime_rows.h"
#include "reports/payments_due.h"
#include "reports/station_sums.h"
#include "statement/statement_record.h"
#include "statement/statement_sources.h"
#include "statement/station_quotas.h"
#include "stations/station_changes.h"
#include "storage/memory_file_system.h"

namespace vorbano {
namespace {

using fuzzing::require;

void fill(FileSystem& files, const Election& election, unsigned which, std::string_view content) {
    require(makeElectionFolder(files, election).ok() && files.makeFolder("Params").ok());
    const auto infos = recordFiles();
    const std::size_t chosen = which % (infos.size() + 1);
    for (std::size_t at = 0; at < infos.size(); ++at) {
        if (chosen != infos.size() && chosen != at) continue;
        const std::string name(infos[at].file);
        if (name.ends_with(".dat")) {
            require(writeWhole(files, "Params/" + name, content).ok());
        } else {
            const auto path = name == "<data>.vbn" ? election.employeeFile() : election.file(name);
            require(path.ok() && writeWhole(files, *path, content).ok());
        }
    }
}

void readOvertime(FileSystem& files, const Election& election) {
    const LateInUse late = lateInUse(election, PeriodRule::stampe);
    const auto employees = searchElection(files, election);
    require(employees.ok());
    const auto staff = readStaff(files, election, late);
    if (staff) {
        for (const StoredEmployee& employee : *staff) static_cast<void>(spansOf(employee, late));
    }
    for (const int number : {0, 1, 2, *employees, *employees + 1}) {
        readEmployee(files, election, late, number).ignore();
        usedHours(files, election, late, number).ignore();
    }
    for (int period = 1; period <= maxPeriods; ++period) {
        for (const HoursShown shown : {HoursShown::authorised, HoursShown::paid}) {
            elencami(files, election, late, period, shown).ignore();
        }
    }
    if (const auto meirin = readMeirin(files, election)) {
        for (int period = 1; period <= maxPeriods; ++period) static_cast<void>(meirinPeriod(*meirin, period));
        static_cast<void>(electionAmounts(*meirin));
    }
}

void readStationsOf(FileSystem& files, const Election& election) {
    for (const StationKind kind : {StationKind::normal, StationKind::special}) {
        for (const Round round : {Round::first, Round::runOff}) {
            const auto members = readMembers(files, election, kind, round);
            const auto substitutes = readSubstitutes(files, election, kind, round);
            require(members.ok() && substitutes.ok());
            for (const StationSum& sum : stationSums(*members, *substitutes, std::nullopt)) {
                static_cast<void>(sharesOf(sum, election.type));
            }
            require(withMember(*members, 1, MemberRecord{}).size() <= members->size() + 1);
            require(withoutMember(*members, 1).size() <= members->size());
            require(withoutSubstitute(*substitutes, 1, 1).size() <= substitutes->size());
            stationQuotas(files, election, kind, round).ignore();
        }
        for (const StationRole role : {StationRole::presidente, StationRole::scrutatore, StationRole::segretario}) {
            stationFeeFor(files, kind, election.type, role).ignore();
            stationQuotaFor(files, kind, election.type, role).ignore();
        }
    }
}

void readCosts(FileSystem& files, const Election& election) {
    onorari(files, election).ignore();
    Speciali(files, election).ignore();
    if (const auto cost = readOvertimeCost(files, election)) static_cast<void>(divideByPeriod(*cost));
    const StatementTerms* terms = findStatementTerms(election.type);
    require(terms != nullptr);
    const auto statement = readStatement(files, election, *terms);
    if (statement) {
        const TypedParts typed{statement->printedTyped, statement->postalTyped};
        const RendiRecord record = recordOf(*terms, statement->amounts, typed, RendiRecord{});
        static_cast<void>(amountsOf(*terms, record));
    }
    if (const auto documents = readAll<PaymentRecord>(files, *election.file(versumFile))) {
        for (const DocumentLine& line : vedolista(*documents)) {
            require(line.record >= 0 && line.record <= static_cast<int>(documents->size()));
            static_cast<void>(showsDocument(line.text));
        }
    }
    readPaymentsDue(files, election).ignore();
    readEmployees(files, election, {true, true}).ignore();
    electionTotals(files, election).ignore();
}

/// Those that read to write what follows from it.
void bringInStep(FileSystem& files, const Election& election) {
    createLateRecords(files, election, lateInUse(election, PeriodRule::stampe)).ignore();
    RendiKontrol(files, election).ignore();
    Rendikontrol2(files, election).ignore();
    changeMeirin(files, election, [](MeirinRecord& record) { put(record.pool4, 40000); }).ignore();
    removeMember(files, election, 1, 1).ignore();
    removeSubstitute(files, election, StationKind::normal, 1, 1).ignore();
}

}  // namespace
}  // namespace vorbano

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vorbano;
    constexpr std::array dates = {"09-06-24", "12-06-22", "26-05-13", "06-05-12"};
    fuzzing::Input input(data, size);
    const unsigned which = input.byte();
    const unsigned kind = input.byte();
    const Election election{std::string(electionTypes[kind % electionTypes.size()].name),
                            dates[kind / electionTypes.size() % dates.size()]};
    MemoryFileSystem files;
    fill(files, election, which, input.rest());
    for (int round = 0; round < 2; ++round) {
        readOvertime(files, election);
        readStationsOf(files, election);
        readCosts(files, election);
        if (round == 0) bringInStep(files, election);
    }
    return 0;
}
