#include "reports/determina.h"

#include <string>

#include "screens/staging_value.h"

namespace vorbano {

namespace {

std::string layoutOfAllPeriods(LatePeriods late) {
    if (late.fifth) return "strvideop.rpt";
    return late.fourth ? "strvideoq.rpt" : "strvideo.rpt";
}

/// INAIL is paid in two parts: the first goes with the first period, the second with the second.
void addInail(Row& totals, const MeirinRecord& meirin, int period) {
    if (period == 1) totals.set("InailPrimo", amountValue(meirin.inailUno));
    if (period == 2) totals.set("InailSecondo", amountValue(meirin.inailDue));
}

}  // namespace

PrintJob determinaJob(int period, LatePeriods late) {
    PrintJob job{layoutOfAllPeriods(late), "LIQUIDAZIONE PER DETERMINAZIONE", Destination::preview};
    if (period != allPeriods) {
        const std::string number = std::to_string(period);
        job.layout = "strvideo" + number + ".rpt";
        job.title += " " + number + "° PERIODO";
    }
    return job;
}

Result<> printDetermina(const Workplace& desk, const Election& election, LatePeriods late, int period,
                        const Heading& heading) {
    return printOvertime(
        desk, election, late, heading,
        {.job = determinaJob(period, late),
         .dates = fixedLegalDates,
         .clearing = Clearing::Cancella2,
         .addToTotals = [period](Row& totals, const MeirinRecord& meirin) { addInail(totals, meirin, period); }});
}

}  // namespace vorbano
