#pragma once

#include "stations/station_correction.h"

namespace vorbano {

inline constexpr CorrectionTerms modSeggiTerms = {
    .form = "frmModSeggi",
    .caption = "Vorbano     Modifica Componenti dei Seggi normali 1° turno",
    .kind = StationKind::normal,
    .addsAndRemoves = true,
};

/// Corrects the members of the normal stations.
struct frmModSeggi : StationCorrection {
    explicit frmModSeggi(const Workplace& workplace);
};

}  // namespace vorbano
