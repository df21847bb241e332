#pragma once

#include "stations/station_correction.h"

namespace vorbano {

inline constexpr CorrectionTerms modSpecialeTerms = {
    .form = "frmModSpeciale",
    .caption = "Vorbano     Modifica Componenti dei Seggi Speciali 1° turno",
    .kind = StationKind::special,
    .addsAndRemoves = false,
};

/// Corrects the members of the special stations, whose number and members are fixed at their entry.
struct frmModSpeciale : StationCorrection {
    explicit frmModSpeciale(const Workplace& workplace);
};

}  // namespace vorbano
