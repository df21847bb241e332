#pragma once

#include "statement/statement_screen.h"

namespace vorbano {

/// The presidents' line speaks of the telephones, and a caption of the European has one blank where the entry has two:
/// deliberately, as the office has them.
inline constexpr StatementScreenTerms correctionTerms = {
    .form = "frmModRend",
    .caption = "Vorbano     Modifica Rendiconto",
    .correction = true,
    .presidents = "Spese collegamenti telefonici",
    .halvesOfEuropean = "L'importo totale sarà ripartito al 50%",
};

/// Corrects a statement of costs. It is shown as it was saved, whatever has become of stations and overtime since.
struct frmModRend : StatementScreen {
    explicit frmModRend(const Workplace& workplace);

    void cmdRicerca_Click();
    void Check1_Click();
};

}  // namespace vorbano
