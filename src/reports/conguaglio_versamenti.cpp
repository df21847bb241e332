#include "reports/conguaglio_versamenti.h"

#include "reports/payment_rows.h"
#include "storage/list_files.h"
#include "storage/only_record.h"

namespace vorbano {

Result<> printContributiConguaglio(const Workplace& desk, const Election& election, const Heading& heading,
                                   Destination destination) {
    const auto ente = onlyRecord<NameRecord>(desk.files, enteFile);
    if (!ente) return ente.error();
    const PaymentCaptions captions{
        .Comune = *ente ? (*ente)->name.trimmed() : std::string(), .Elezioni = heading.Elezione, .dataE = heading.Data};
    const auto fill = [&]() -> Result<> {
        if (auto done = appendHeading(desk.files, desk.staging, heading); !done) return done;
        const auto rows = appendPayments(desk.files, desk.staging, election, captions, inailDate, versumcFile);
        return rows ? Result<>() : rows.error();
    };
    return produce(desk, {.fill = fill,
                          .job = {.layout = "versc.rpt", .title = {}, .destination = destination},
                          .clearing = Clearing::Anteprimac});
}

}  // namespace vorbano
