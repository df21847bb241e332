#include "reports/rendiconto_row.h"

#include <array>

#include "reports/rendiconto_layout.h"
#include "screens/staging_value.h"
#include "statement/sharing.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

/// The three fields of a shared amount.
struct ShareFields {
    std::string_view whole;
    std::string_view first;
    std::string_view second;
};

/// A voice of the record and its fields. The amount goes by its place in the record, for all kinds: `ata` is the sixth,
/// which holds the part of the printed matter typed for the State, and in the two provincial kinds `assunzioni` and
/// `necessità` hold what those kinds keep there. The layouts know it.
struct VoiceFields {
    Voice voice;
    Currency RendiRecord::*amount;
    ShareFields fields;
};
constexpr std::array<VoiceFields, voices> voiceFields = {{
    {Voice::onorari, &RendiRecord::Onorari, {"onorari", "Stato1", "Onorari1"}},
    {Voice::straordinario, &RendiRecord::Straordinario, {"straordinario", "Stato2", "Straordinario1"}},
    {Voice::speciale, &RendiRecord::Speciali, {"speciale", "Stato3", "Speciale1"}},
    {Voice::indennita, &RendiRecord::Indennita, {"indennità", "Stato4", "Indennità1"}},
    {Voice::ata, &RendiRecord::TotStato, {"ata", "Stato5", "Ata1"}},
    {Voice::stampanti, &RendiRecord::Stampanti, {"stampanti", "Stato6", "Stampanti1"}},
    {Voice::trasporti, &RendiRecord::Trasporti, {"trasporti", "Stato7", "Trasporti1"}},
    {Voice::disciplina, &RendiRecord::Disciplina, {"disciplina", "Stato8", "Disciplina1"}},
    {Voice::assunzioni, &RendiRecord::Assunzioni, {"assunzioni", "Stato9", "Assunzioni1"}},
    {Voice::necessita, &RendiRecord::Postali, {"necessità", "Stato10", "Necessità1"}},
    {Voice::missioni, &RendiRecord::Missioni, {"missioni", "Stato11", "Missioni1"}},
}};

/// The fees of a kind of station, in a round: whole, the State's quota, and the two shares of what is left.
struct FeeFields {
    ShareFields shares;
    std::string_view quota;
};
constexpr FeeFields normalFees{{"onorari", "Stato1", "Onorari1"}, "Magonorari"};
constexpr FeeFields normalRunOff{{"onorariB", "Stato1B", "Onorari1B"}, "MagonorariB"};
constexpr FeeFields specialFees{{"speciale", "Stato3", "Speciale1"}, "MagSpeciale"};
constexpr FeeFields specialRunOff{{"specialeB", "Stato3B", "Speciale1B"}, "MagSpecialeB"};
constexpr FeeFields presidents{{"indennità", "Stato4", "Indennità1"}, "MagIndennità"};

void setAmount(Row& row, std::string_view field, Currency amount) { row.set(field, amountValue(amount)); }

void setShares(Row& row, const ShareFields& fields, const Shares& shares) {
    setAmount(row, fields.first, shares.first);
    setAmount(row, fields.second, shares.second);
}

void addTotals(Row& row, const RendiRecord& rendi) {
    setAmount(row, "totale", rendi.Totale);
    setAmount(row, "acconti", rendi.Acconti);
    setAmount(row, "differenza", rendi.Differenza);
}

void addPostalShares(Row& row, const RendiRecord& rendi) {
    setAmount(row, "CartStat", rendi.CartStato);
    setAmount(row, "CartReg", rendi.CartRegione);
}

/// Every voice whole and in its two shares, the printed matter as it was divided by hand where it was: those two
/// amounts stand even if they do not add up to the whole.
void addVoices(Row& row, const Election& election, const StatementFiles& files) {
    for (const VoiceFields& voice : voiceFields) {
        const Currency amount = files.rendi.*voice.amount;
        setAmount(row, voice.fields.whole, amount);
        const bool byHand = voice.voice == Voice::stampanti && files.divSt.has_value();
        setShares(row, voice.fields,
                  byHand ? Shares{files.divSt->TotStato, files.divSt->TotComune}
                         : divide(amount, partFor(election, voice.voice)));
    }
    setAmount(row, "TotProv", partOf(files.rendi.Stampanti, oneHalf));
}

/// The booths are one body's alone, but halved when European elections are held with others; the other half then stands
/// in a field that only the statements of the stations use otherwise.
void addBooths(Row& row, const Election& election, const RendiRecord& rendi) {
    if (!europeanWithOthers(election.type)) {
        setAmount(row, "cabine", rendi.Necessita);
        return;
    }
    const Shares shares = divide(rendi.Necessita, oneHalf);
    setAmount(row, "cabine", shares.first);
    setAmount(row, "MagonorariB", shares.second);
}

Row recordRow(const Election& election, const StatementFiles& files) {
    Row row;
    addVoices(row, election, files);
    setAmount(row, "carico", files.rendi.Carico);
    addBooths(row, election, files.rendi);
    addTotals(row, files.rendi);
    return row;
}

/// Of the statements rebuilt from the stations the second share is rounded too.
Shares divideRounded(Currency amount, BodyPart part) {
    const Shares shares = divide(amount, part);
    return {shares.first, cents(shares.second)};
}

void addFees(Row& row, const FeeFields& fields, Currency whole, Currency quota, BodyPart part) {
    setAmount(row, fields.shares.whole, whole);
    setAmount(row, fields.quota, quota);
    setShares(row, fields.shares, divideRounded(whole - quota, part));
}

/// The run-off is what the statement has beyond the first round as the stations are now; so a fee changed after the
/// statement was saved shows here too.
void addStations(Row& row, const Election& election, const RendiRecord& rendi, const BodyFiles& bodies) {
    const BodyPart fees = partFor(election, Voice::onorari);
    addFees(row, normalFees, bodies.normal.fees, bodies.normal.quota, fees);
    addFees(row, normalRunOff, rendi.Onorari - bodies.normal.fees, bodies.normal.runOffQuota, fees);
    const BodyPart special = partFor(election, Voice::speciale);
    addFees(row, specialFees, bodies.special.fees, bodies.special.quota, special);
    addFees(row, specialRunOff, rendi.Speciali - bodies.special.fees, bodies.special.runOffQuota, special);
    // Unlike the fees, the refunds stand in their field without the part that is taken off.
    const Currency refunds = rendi.Indennita - bodies.tprov.MagMis;
    setAmount(row, presidents.shares.whole, refunds);
    setAmount(row, presidents.quota, bodies.tprov.MagMis);
    setShares(row, presidents.shares, divideRounded(refunds, partFor(election, Voice::indennita)));
}

bool fromStations(Voice voice) {
    return voice == Voice::onorari || voice == Voice::speciale || voice == Voice::indennita;
}

/// The printed matter as divided by hand. Of provincial elections held with municipal ones the part of the Provincia is
/// kept in Tprov.vbn, and the first amount of DivSt.vbn is not used.
void addHandDivision(Row& row, const Election& election, const StatementFiles& files, const BodyFiles& bodies) {
    const DivStRecord divSt = files.divSt.value_or(DivStRecord{});
    const bool provincial = election.type == "Provinciali_Comunali";
    setAmount(row, "TotCom", divSt.TotComune);
    setAmount(row, "TotProv", provincial ? bodies.tprov.TotProv : divSt.TotStato);
}

}  // namespace

Row commonRow(const Election& election, const StatementFiles& files) { return recordRow(election, files); }

Row EuroComRow(const Election& election, const StatementFiles& files) {
    Row row = recordRow(election, files);
    // What the State does not take of `carico`: a sixth in the one referendum, nothing otherwise.
    const BodyPart part = sharedInSixths(election) ? fiveOfSix : theWhole;
    setAmount(row, "carico2", divide(files.rendi.Carico, part).second);
    addPostalShares(row, files.rendi);
    return row;
}

Row ProvSubRow(const Election& election, const StatementFiles& files, const BodyFiles& bodies) {
    Row row;
    addStations(row, election, files.rendi, bodies);
    for (const VoiceFields& voice : voiceFields) {
        if (fromStations(voice.voice)) continue;
        const Currency amount = files.rendi.*voice.amount;
        setAmount(row, voice.fields.whole, amount);
        setShares(row, voice.fields, divideRounded(amount, partFor(election, voice.voice)));
    }
    setAmount(row, "carico", files.rendi.Carico);
    setAmount(row, "cabine", files.rendi.Necessita);
    addHandDivision(row, election, files, bodies);
    addTotals(row, files.rendi);
    return row;
}

Row PolRegSubRow(const Election& election, const StatementFiles& files, const BodyFiles& bodies) {
    Row row = ProvSubRow(election, files, bodies);
    setAmount(row, "carico2", files.rendi.TotComune);
    addPostalShares(row, files.rendi);
    return row;
}

}  // namespace vorbano
