#include "stations/fee_proposal.h"

#include "records/station_tariff_records.h"
#include "screens/well_done.h"
#include "storage/codepage.h"
#include "storage/numbers.h"

namespace vorbano {

void FeeProposal::propose(std::string_view tariff, std::string_view role) {
    if (!trim(field_.text()).empty() && field_.text() != proposed_) return;
    field_.text = std::string();
    proposed_.clear();
    const auto known = stationRole(role);
    if (!known) return;
    const std::string name(trim(tariff));
    const auto fee = stationFeeFor(desk_.files, kind_, name, *known);
    if (!fee) {
        wellDone(fee.error(), desk_.desktop);
        return;
    }
    if (!*fee) {
        desk_.desktop.tell({name + "Tariffe non inserite", "Tariffe", Icon::warning});
        return;
    }
    proposed_ = format(**fee, Mask::amount);
    field_.text = proposed_;
}

}  // namespace vorbano
