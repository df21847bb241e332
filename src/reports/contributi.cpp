#include "reports/contributi.h"

#include <array>

#include "reports/payment_rows.h"
#include "storage/dates.h"
#include "storage/list_files.h"
#include "storage/only_record.h"

namespace vorbano {

namespace {

/// The first text that is a date of a period in use.
std::optional<std::string> firstInUse(const std::array<DateText, 3>& dates) {
    for (const DateText& date : dates) {
        const std::string text = date.trimmed();
        if (!text.empty() && !isExcluded(text)) return text;
    }
    return std::nullopt;
}

void tellNoDates(Desktop& desktop) { desktop.tell({"Data di Elezione inesistente!", "Errore!", Icon::warning}); }

}  // namespace

std::optional<LegalDates> datesOfOvertime(const EmployeeRecord& record) {
    const auto& periods = record.periods;
    const auto first = firstInUse({periods[0].from, periods[1].from, periods[2].from});
    const auto last = firstInUse({periods[2].to, periods[1].to, periods[0].to});
    if (!first || !last) return std::nullopt;
    return LegalDates{*first, *last};
}

Result<> printPayments(const Workplace& desk, const Election& election, LatePeriods late, const Heading& heading,
                       const PrintJob& job, Clearing clearing) {
    const auto employees = readEmployees(desk.files, election, late);
    if (!employees) return employees.error();
    const auto dates = employees->empty() ? std::nullopt : datesOfOvertime(employees->front().record);
    if (!dates) {
        tellNoDates(desk.desktop);
        return {};
    }
    const auto ente = onlyRecord<NameRecord>(desk.files, enteFile);
    if (!ente) return ente.error();
    const PaymentCaptions captions{
        .Comune = *ente ? (*ente)->name.trimmed() : std::string(), .Elezioni = heading.Elezione, .dataE = heading.Data};
    OvertimeDocument document{.job = job, .dates = *dates, .clearing = clearing};
    document.more = [&]() -> Result<> {
        const auto rows = appendPayments(desk.files, desk.staging, election, captions, inailWithin);
        return rows ? Result<>() : rows.error();
    };
    return printOvertime(desk, election, late, heading, document);
}

Result<> printContributi(const Workplace& desk, const Election& election, LatePeriods late, const Heading& heading) {
    // Nothing is due where there are no employees; the documents of the payments must not be set to nothing by that.
    const auto employees = readEmployees(desk.files, election, {});
    if (!employees) return employees.error();
    if (employees->empty()) {
        tellNoDates(desk.desktop);
        return {};
    }
    const auto due = readPaymentsDue(desk.files, election);
    if (!due) return due.error();
    if (auto done = Kontrol(desk.files, election, due->amounts); !done) return done;
    return printPayments(desk, election, late, heading,
                         {.layout = "vers.rpt", .title = "CONTRIBUTI E RITENUTE (Allegato A)"}, Clearing::Cancella7);
}

}  // namespace vorbano
