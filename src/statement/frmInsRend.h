#pragma once

#include "statement/statement_screen.h"

namespace vorbano {

inline constexpr StatementScreenTerms entryTerms = {
    .form = "frmInsRend",
    .caption = "Vorbano    Inserimento Rendiconto",
    .correction = false,
    .presidents = "Rimborso spese ai presidenti di seggio",
    .halvesOfEuropean = "L'importo totale sarà ripartito  al 50%",
};

/// Draws up the statement of costs of an election: fetches fees and overtime, lets the other lines be typed, stores. An
/// election that has a statement is refused.
struct frmInsRend : StatementScreen {
    explicit frmInsRend(const Workplace& workplace);

    void cmdAnteprima_Click();

  private:
    void straordinari(const Sources& sources);
};

}  // namespace vorbano
