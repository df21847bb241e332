#include "statement/statement_terms.h"

#include <algorithm>
#include <array>

#include "storage/codepage.h"
#include "storage/file_system.h"

namespace vorbano {

namespace {

using C = CaricoCaption;
using L = CaricoLabel;
using N = PostalCaption;
using M = PrintedMatter;
using P = PostalExpenses;
using O = OvertimeCharge;
using F = FirstField;
using S = StoredAs;
using T = TprovUse;
constexpr bool yes = true;
constexpr bool no = false;

// clang-format off
constexpr std::array<StatementTerms, 11> allTerms = {{
    // type                   Frame19         Label5          Frame3  Frame9                 printed matter
    //                        postal expenses      overtime      begins at     typed  joint stored       Tprov.vbn
    {"Politiche",            C::pandemic,    L::hidden,      yes,    N::postali,            M::whole,
                              P::whole,            O::common,    F::carico,    no,    no,  S::plain,    T::majormis},
    {"Politiche_Regionali",  C::asDesigned,  L::asDesigned,  no,     N::cartoline,          M::regione,
                              P::typed,            O::byPeriod,  F::indennita, no,    no,  S::byBody,   T::none},
    {"Europee_Comunali",     C::asDesigned,  L::asDesigned,  yes,    N::postali,            M::comune,
                              P::halvesOrTyped,    O::common,    F::indennita, no,    no,  S::divided,  T::none},
    {"Referendum_Comunali",  C::pandemic,    L::hidden,      yes,    N::postali,            M::comune,
                              P::halvesOrTyped,    O::common,    F::indennita, yes,   yes, S::divided,  T::none},
    {"Referendum",           C::none,        L::empty,       yes,    N::postali,            M::whole,
                              P::whole,            O::common,    F::carico,    yes,   no,  S::plain,    T::none},
    {"Comunali",             C::none,        L::empty,       yes,    N::postali,            M::whole,
                              P::whole,            O::common,    F::carico,    no,    no,  S::plain,    T::majormis},
    {"Regionali",            C::none,        L::empty,       yes,    N::postali,            M::whole,
                              P::whole,            O::common,    F::carico,    no,    no,  S::plain,    T::majormis},
    {"Europee",              C::asDesigned,  L::asDesigned,  yes,    N::postali,            M::whole,
                              P::whole,            O::common,    F::indennita, no,    no,  S::europee,  T::none},
    {"Provinciali",          C::asDesigned,  L::asDesigned,  no,     N::altreNecessita,     M::whole,
                              P::whole,            O::common,    F::carico,    no,    no,  S::rotated,  T::majormis},
    {"Provinciali_Comunali", C::asDesigned,  L::asDesigned,  no,     N::altreNecessita,     M::provincia,
                              P::whole,            O::common,    F::carico,    no,    no,  S::rotated,  T::totProv},
    {"Politiche_Comunali",   C::asDesigned,  L::asDesigned,  no,     N::altreNecessita,     M::whole,
                              P::whole,            O::common,    F::carico,    no,    no,  S::plain,    T::majormis},
}};
// clang-format on

constexpr std::string_view referendumDay = "12-06-22";

/// The two other elections with expenses of the pandemic.
struct PandemicDay {
    std::string_view date;
    std::string_view type;
};
constexpr PandemicDay pandemicDays[] = {{"14-05-23", "Comunali"}, {"25-06-23", "Regionali"}};

}  // namespace

const StatementTerms* findStatementTerms(std::string_view type) {
    const auto* const found =
        std::ranges::find_if(allTerms, [&](const StatementTerms& terms) { return sameName(terms.type, trim(type)); });
    return found == allTerms.end() ? nullptr : found;
}

bool isReferendumDay(const Election& election) { return election.date == referendumDay; }

bool caricoIsTyped(const StatementTerms& terms, const Election& election) {
    return terms.caricoTyped && isReferendumDay(election);
}

bool paysFiveSixths(const StatementTerms& terms, const Election& election) {
    return terms.jointReferendum && isReferendumDay(election);
}

bool hasPrintedChoice(const StatementTerms& terms) {
    return terms.printed == PrintedMatter::regione || terms.printed == PrintedMatter::comune;
}

std::string_view caricoCaption(CaricoCaption caption) {
    switch (caption) {
        case CaricoCaption::asDesigned:
            return "Compenso lavoro straordinario";
        case CaricoCaption::pandemic:
            return pandemicCaption;
        case CaricoCaption::none:
            return {};
    }
    return {};
}

std::string_view postalCaption(PostalCaption caption) {
    switch (caption) {
        case PostalCaption::postali:
            return "Spese postali";
        case PostalCaption::cartoline:
            return "Spese spedizione cartoline";
        case PostalCaption::altreNecessita:
            return "Spese per altre necessità";
    }
    return {};
}

std::string_view postalCaptionEnd(PostalCaption caption) {
    return caption == PostalCaption::cartoline ? "agli elettori residenti all'estero" : std::string_view();
}

std::string_view divisionCaption(PrintedMatter printed) {
    return printed == PrintedMatter::comune ? "L'importo totale sarà ripartito 1/2 Comune  e  1/2 Stato"
                                            : "L'importo totale sarà ripartito 1/3 Regione  e  2/3 Stato";
}

std::string_view otherBody(PrintedMatter printed) { return printed == PrintedMatter::regione ? "Regione" : "Comune"; }

std::string_view caricoCaptionAt(const Election& election) {
    const bool pandemic = std::ranges::any_of(pandemicDays, [&](const PandemicDay& day) {
        return election.date == day.date && sameName(election.type, day.type);
    });
    return pandemic ? pandemicCaption : "Spese di viaggio presidenti di seggio";
}

std::string_view printedCaption(const StatementTerms* terms) {
    return terms != nullptr && terms->stored == StoredAs::rotated ? "Stampati non forniti dalla Provincia"
                                                                  : "Stampati non forniti dallo Stato";
}

}  // namespace vorbano
