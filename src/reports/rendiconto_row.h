#pragma once

// The row of the statement (`Tabella9`): every voice whole, the share of the first body (`Stato1` and so on) and what
// remains for the other (`Onorari1` and so on). The names say "Stato", but the first body is the one that the layout
// names: the Provincia of provincial elections.

#include <optional>

#include "platform/database.h"
#include "records/statement_records.h"
#include "storage/election.h"

namespace vorbano {

/// What the files of the election say of its statement.
struct StatementFiles {
    RendiRecord rendi;
    std::optional<DivStRecord> divSt;  ///< nothing when the printed matter was not divided by hand
};

/// The fees of one kind of station.
struct StationCosts {
    Currency fees;         ///< first round, members and substitutes
    Currency quota;        ///< of it, what is the State's whatever the others share
    Currency runOffQuota;  ///< the same of the run-off
};
/// What an election whose fees are kept apart has besides.
struct BodyFiles {
    TprovRecord tprov;
    StationCosts normal;
    StationCosts special;
};

/// The common path.
[[nodiscard]] Row commonRow(const Election& election, const StatementFiles& files);
/// `EuroCom`.
[[nodiscard]] Row EuroComRow(const Election& election, const StatementFiles& files);
/// `ProvSub`.
[[nodiscard]] Row ProvSubRow(const Election& election, const StatementFiles& files, const BodyFiles& bodies);
/// `PolRegSub`.
[[nodiscard]] Row PolRegSubRow(const Election& election, const StatementFiles& files, const BodyFiles& bodies);

}  // namespace vorbano
