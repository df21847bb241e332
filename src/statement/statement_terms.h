#pragma once

// In what the statements of the eleven types of election differ: captions, divisions, what is stored. One table, one
// row a type; the exceptions by date stand beside it. Both screens of the statement and its printing read it.

#include <cstdint>
#include <string_view>

#include "storage/election.h"

namespace vorbano {

/// Caption of the line of the first body (`Frame19`) that the type sets.
enum class CaricoCaption : std::uint8_t { asDesigned, pandemic, none };
/// What stands beside the line of the first body: `Label5` with its words, without any, or hidden.
enum class CaricoLabel : std::uint8_t { asDesigned, empty, hidden };
/// Caption of the postal line (`Frame9`) and of what follows it (`Label8`).
enum class PostalCaption : std::uint8_t { postali, cartoline, altreNecessita };
/// How the printed matter is divided.
enum class PrintedMatter : std::uint8_t {
    whole,
    regione,    ///< 1/3 Regione and 2/3 Stato, or typed
    comune,     ///< 1/2 Comune and 1/2 Stato, or typed
    provincia,  ///< the parts of Provincia and Comune are always typed
};
/// How the postal expenses are divided.
enum class PostalExpenses : std::uint8_t {
    whole,
    typed,          ///< REGIONE and STATO, always
    halvesOrTyped,  ///< 50 percent each, or COMUNE and STATO typed
};
/// How the overtime is charged.
enum class OvertimeCharge : std::uint8_t {
    common,
    byPeriod,  ///< period 1 to the first body, period 2 to the second, the rest common
};
/// Where an entry begins.
enum class FirstField : std::uint8_t {
    carico,     ///< the line of the first body where it can be typed, otherwise the printed matter
    indennita,  ///< the presidents' refunds, which begin at 0
};
/// What the record of the statement holds in the places that not all types use.
enum class StoredAs : std::uint8_t {
    plain,    ///< `TotStato` 0; `TotComune` and the postal shares stay as they are
    divided,  ///< `TotStato`, `TotComune` and the postal shares when they are typed, otherwise 0
    europee,  ///< `Carico`, `TotStato`, `TotComune` and the postal shares 0
    byBody,   ///< `TotStato` 0, `TotComune` is the overtime of the second body; the postal shares
    rotated,  ///< as plain, with three fields in another order
};
/// What goes to Tprov.vbn.
enum class TprovUse : std::uint8_t {
    none,
    majormis,  ///< the "Maggiorazione"
    totProv,   ///< the part of the Provincia and the "Maggiorazione"; and the part of the Comune to DivSt.vbn
};

struct StatementTerms {
    std::string_view type;
    CaricoCaption carico;
    CaricoLabel caricoLabel;
    bool presidents;  ///< sets the caption of the presidents' line (`Frame3`)
    PostalCaption postalCaption;
    PrintedMatter printed;
    PostalExpenses postal;
    OvertimeCharge overtime;
    FirstField first;
    bool caricoTyped;  ///< the line of the first body is typed, on the day of the referendum of 2022 alone
    /// The referendum held with communal elections: its division is chosen from the start, and on the same day the
    /// Stato pays five sixths.
    bool jointReferendum;
    StoredAs stored;
    TprovUse tprov;
};

/// nullptr when the type (trimmed, in any case) is none of the eleven.
[[nodiscard]] const StatementTerms* findStatementTerms(std::string_view type);

/// 12-06-22, the referendum of 2022: fixed in the rules of the office.
[[nodiscard]] bool isReferendumDay(const Election& election);
/// The line of the first body is typed for this election.
[[nodiscard]] bool caricoIsTyped(const StatementTerms& terms, const Election& election);
/// The Stato pays five sixths of this election, and the difference is taken from them.
[[nodiscard]] bool paysFiveSixths(const StatementTerms& terms, const Election& election);
/// The parts of the printed matter can be typed instead of a fixed division.
[[nodiscard]] bool hasPrintedChoice(const StatementTerms& terms);

/// What the type says of the captions.
[[nodiscard]] std::string_view caricoCaption(CaricoCaption caption);
[[nodiscard]] std::string_view postalCaption(PostalCaption caption);
[[nodiscard]] std::string_view postalCaptionEnd(PostalCaption caption);
[[nodiscard]] std::string_view divisionCaption(PrintedMatter printed);
/// The other body beside the Stato.
[[nodiscard]] std::string_view otherBody(PrintedMatter printed);
/// `Frame19` once the date is known: the expenses of the pandemic on two days that are fixed in the rules of the
/// office, whatever the type had set otherwise.
[[nodiscard]] std::string_view caricoCaptionAt(const Election& election);
/// `Frame7`.
[[nodiscard]] std::string_view printedCaption(const StatementTerms* terms);

inline constexpr std::string_view pandemicCaption =
    "Spese straordinarie per fronteggiare gli effetti della pandemia da Covid 19";

}  // namespace vorbano
