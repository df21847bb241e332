// The lists: what was entered, the whole list with what is due, the whole list straight to the printer; of the
// adjustment what was entered and the whole list straight to the printer.

#include "payments/frmVersamenti.h"
#include "reports/conguaglio_versamenti.h"
#include "reports/contributi.h"
#include "reports/payment_rows.h"
#include "screens/well_done.h"

namespace vorbano {

void frmVersamenti::Check15_Click() {
    if (Check15.checked()) Check16.checked = false;
}

void frmVersamenti::Check16_Click() {
    if (Check16.checked()) Check15.checked = false;
}

void frmVersamenti::cmdVideo_Click() { printList(Destination::preview, "Anteprima Elenco"); }

void frmVersamenti::cmdStampa_Click() { printList(Destination::printer, "Stampa Elenco"); }

void frmVersamenti::cmdSoloElenco_Click() {
    if (anyDocument()) VedoElenco(Destination::printer, inailDate);
}

void frmVersamenti::printList(Destination destination, std::string_view title) {
    if (!Check15.checked() && !Check16.checked()) {
        desk_.desktop.tell({"Selezionare il tipo di elenco da stampare", std::string(title), Icon::warning});
        return;
    }
    if (!anyDocument()) return;
    if (onShow() == PaymentSet::adjustment) {
        Anteprimac(destination);
    } else if (Check16.checked()) {
        VedoVers(destination);
    } else {
        VedoElenco(destination, inailWithin);
    }
}

bool frmVersamenti::anyDocument() {
    if (!readAll()) return false;
    if (!documents_.empty()) return true;
    desk_.desktop.tell({"Per questo tipo di elezione non sono stati inseriti dati", "Versamenti", Icon::information});
    return false;
}

/// Its heading deliberately has no edition.
void frmVersamenti::VedoVers(Destination destination) {
    const LatePeriods late{election().hasPeriod(4, PeriodRule::stampe), election().hasPeriod(5, PeriodRule::stampe)};
    const Heading heading{.Elezione = lblElezione.text(), .Data = lbldata.text(), .Databall = std::nullopt};
    wellDone(printPayments(desk_, election(), late, heading,
                           {.layout = "Vers.rpt", .title = {}, .destination = destination}, Clearing::Deletebase),
             desk_.desktop);
}

/// The adjustment has one list, whichever is ticked.
void frmVersamenti::Anteprimac(Destination destination) {
    const Heading heading{.Elezione = lblElezione.text(), .Data = lbldata.text(), .Databall = std::nullopt};
    wellDone(printContributiConguaglio(desk_, election(), heading, destination), desk_.desktop);
}

void frmVersamenti::VedoElenco(Destination destination, std::string_view inailWords) {
    const PaymentCaptions captions{.Comune = lblComune.text(), .Elezioni = lblElezione.text(), .dataE = lbldata.text()};
    const PaymentAmounts amounts = amountsOnScreen();
    std::array<ClosingLine, paymentVoiceCount> lines;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        lines[at].amount = amounts[at];
        if (voices_[at].rate != nullptr) lines[at].rate = voices_[at].rate->text();
    }
    DocumentRun list;
    list.fill = [&]() -> Result<> {
        const auto rows =
            appendPayments(desk_.files, desk_.staging, election(), captions, inailWords, documentsFile(onShow()));
        if (!rows) return rows.error();
        return appendClosingRows(desk_.staging, lines);
    };
    list.job = {.layout = "ElenVers.rpt", .title = {}, .destination = destination};
    list.clearing = Clearing::VedoElenco;
    wellDone(produce(desk_, list), desk_.desktop);
}

}  // namespace vorbano
