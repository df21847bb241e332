#include "reports/conguaglio_rendiconto.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>

#include "records/adjustment_records.h"
#include "reports/payments_due.h"
#include "reports/rendiconto_layout.h"
#include "screens/staging_value.h"
#include "statement/sharing.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

/// The joint elections whose first period the State bears alone, and its share of the others.
struct SharedKind {
    std::string_view kind;
    BodyPart state;
};
constexpr std::array sharedKinds = {SharedKind{"Politiche_Comunali", twoThirds},
                                    SharedKind{"Europee_Comunali", oneHalf}};

const SharedKind* sharedKind(const Election& election) {
    const auto* const found = std::ranges::find(sharedKinds, election.type, &SharedKind::kind);
    return found == sharedKinds.end() ? nullptr : found;
}

/// Over all records of the file of the election; 0 of an empty one.
Result<Currency> sumOver(FileSystem& files, const Election& election, std::string_view name,
                         std::initializer_list<Currency AdjustmentRecord::*> amounts) {
    const auto path = election.file(name);
    if (!path) return path.error();
    const auto file = RecordFile<AdjustmentRecord>::open(files, *path);
    if (!file) return file.error();
    Currency sum;
    const auto read = file->scan([&](int, const AdjustmentRecord& record) {
        for (const auto amount : amounts) sum += record.*amount;
    });
    if (!read) return read.error();
    return sum;
}

Result<Currency> newTotal(FileSystem& files, const Election& election, std::string_view name) {
    using Record = AdjustmentRecord;
    return sumOver(files, election, name, {&Record::Dovuto, &Record::CpStato, &Record::Irap});
}

/// What is paid more, its charges, and INAIL.
Result<Currency> paidMore(FileSystem& files, const Election& election) {
    const auto sum = sumOver(files, election, congsFile, {&AdjustmentRecord::TotaleSpesa, &AdjustmentRecord::Pagato});
    if (!sum) return sum.error();
    const auto meirinc = readMeirinc(files, election);
    if (!meirinc) return meirinc.error();
    return *sum + meirinc->inail;
}

/// Two thirds to the nearest 1/10,000.
Currency unroundedTwoThirds(Currency whole) {
    const std::int64_t rest = whole.units() % 3;
    return Currency::fromUnits(whole.units() / 3 * 2 + (rest > 0 ? 1 : 0) - (rest < 0 ? 1 : 0));
}

void setShares(Row& statement, Currency whole, const Shares& shares) {
    statement.set("Conguaglio", amountValue(whole))
        .set("Conguaglio1", amountValue(shares.first))
        .set("Conguaglio2", amountValue(shares.second));
}

Result<Row> statementOf(FileSystem& files, const Election& election) {
    Row statement;
    if (election.type == "Politiche_Comunali") {
        if (auto added = Conguaglio(files, election, statement); !added) return added.error();
        return statement;
    }
    const auto more = paidMore(files, election);
    if (!more) return more.error();
    statement.set("straordinario", amountValue(*more));
    return statement;
}

}  // namespace

Result<> Conguaglio(FileSystem& files, const Election& election, Row& statement) {
    const auto old = newTotal(files, election, congs1File);
    if (!old) return old.error();
    const auto total = newTotal(files, election, congsFile);
    if (!total) return total.error();
    const SharedKind* const kind = sharedKind(election);
    if (kind == nullptr) {
        statement.set("Conguaglio", amountValue(*total));
        return {};
    }
    setShares(statement, *total, divide(*total - *old, kind->state));
    statement.set("ConguaglioStato", amountValue(*old));
    return {};
}

Result<> RiservaConguaglio(FileSystem& files, const Election& election, Row& statement) {
    const auto whole = paidMore(files, election);
    if (!whole) return whole.error();
    const Currency first = unroundedTwoThirds(*whole);
    setShares(statement, *whole, {first, *whole - first});
    return {};
}

Result<> addAdjustment(FileSystem& files, const Election& election, Row& statement) {
    const bool byPeriod = sharedKind(election) != nullptr || rendicontoPath(election.type) == RendicontoPath::common;
    return byPeriod ? Conguaglio(files, election, statement) : RiservaConguaglio(files, election, statement);
}

Result<> printCongRend(const Workplace& desk, const Election& election, const Heading& heading) {
    const auto statement = statementOf(desk.files, election);
    if (!statement) return statement.error();
    const std::string layout = election.type == "Politiche_Comunali" ? "Rendrippcong.rpt" : "Rendcong.rpt";
    return produce(desk, {.fill = [&]() -> Result<> {
                              if (auto done = desk.staging.append("Tabella9", *statement); !done) return done;
                              return appendHeading(desk.files, desk.staging, heading);
                          },
                          .job = {layout, "RENDICONTO A CONGUAGLIO", Destination::preview},
                          .clearing = Clearing::Cancella6});
}

}  // namespace vorbano
