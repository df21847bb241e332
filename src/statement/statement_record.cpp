#include "statement/statement_record.h"

#include <utility>

#include "storage/only_record.h"

namespace vorbano {

namespace {

/// The lines that stand at one place for every type.
constexpr std::pair<Currency RendiRecord::*, Currency StatementAmounts::*> commonLines[] = {
    {&RendiRecord::Onorari, &StatementAmounts::onorari},
    {&RendiRecord::Straordinario, &StatementAmounts::straordinario},
    {&RendiRecord::Speciali, &StatementAmounts::speciali},
    {&RendiRecord::Carico, &StatementAmounts::carico},
    {&RendiRecord::Indennita, &StatementAmounts::indennita},
    {&RendiRecord::Stampanti, &StatementAmounts::stampanti},
    {&RendiRecord::Trasporti, &StatementAmounts::trasporti},
    {&RendiRecord::Disciplina, &StatementAmounts::disciplina},
    {&RendiRecord::Missioni, &StatementAmounts::missioni},
    {&RendiRecord::Totale, &StatementAmounts::totale},
    {&RendiRecord::Acconti, &StatementAmounts::acconti},
    {&RendiRecord::Differenza, &StatementAmounts::differenza},
};

/// What fills the places 72, 80 and 120.
struct ThreePlaces {
    Currency StatementAmounts::*assunzioni;
    Currency StatementAmounts::*postali;
    Currency StatementAmounts::*necessita;
};
ThreePlaces threePlaces(const StatementTerms& terms) {
    if (terms.stored == StoredAs::rotated)
        return {&StatementAmounts::postali, &StatementAmounts::cabine, &StatementAmounts::tempoDeterminato};
    return {&StatementAmounts::tempoDeterminato, &StatementAmounts::postali, &StatementAmounts::cabine};
}

Currency when(bool typed, Currency amount) { return typed ? amount : Currency{}; }

/// Reads the only record of a small file; zeros when it is empty.
template <class Record>
Result<Record> readSmall(FileSystem& files, const Election& election, std::string_view name) {
    const auto path = election.file(name);
    if (!path) return path.error();
    const auto stored = onlyRecord<Record>(files, *path);
    if (!stored) return stored.error();
    return stored->value_or(Record{});
}

template <class Record>
Result<> storeSmall(FileSystem& files, const Election& election, std::string_view name, const Record& record) {
    const auto path = election.file(name);
    if (!path) return path.error();
    return storeOnlyRecord(files, *path, record);
}

/// Only the types that write a small file read it; and for Politiche_Regionali, which never does, the amounts of the
/// Provincia are looked for all the same.
bool readsTprov(const StatementTerms& terms) {
    return terms.tprov != TprovUse::none || terms.stored == StoredAs::byBody;
}

/// The divided types keep the parts in the record too, and it alone tells whether they were typed the last time.
bool readsDivSt(const StatementTerms& terms) {
    return terms.printed == PrintedMatter::provincia || terms.printed == PrintedMatter::regione;
}

bool isSet(Currency one, Currency other) { return one != Currency{} || other != Currency{}; }

Result<> readParts(FileSystem& files, const Election& election, const StatementTerms& terms,
                   StatementAmounts& amounts) {
    if (readsTprov(terms)) {
        const auto tprov = readSmall<TprovRecord>(files, election, tprovFile);
        if (!tprov) return tprov.error();
        amounts.totProv = tprov->TotProv;
        amounts.magMis = tprov->MagMis;
    }
    if (readsDivSt(terms)) {
        const auto divSt = readSmall<DivStRecord>(files, election, divStFile);
        if (!divSt) return divSt.error();
        amounts.totStato = divSt->TotStato;
        amounts.totComune = divSt->TotComune;
    }
    return {};
}

Result<> DivStamp(FileSystem& files, const Election& election, const StatementAmounts& amounts) {
    return storeSmall(files, election, divStFile, DivStRecord{amounts.totStato, amounts.totComune});
}

Result<> majormis(FileSystem& files, const Election& election, const StatementAmounts& amounts) {
    auto record = readSmall<TprovRecord>(files, election, tprovFile);
    if (!record) return record.error();
    record->MagMis = amounts.magMis;
    return storeSmall(files, election, tprovFile, *record);
}

Result<> TotProv(FileSystem& files, const Election& election, const StatementAmounts& amounts) {
    return storeSmall(files, election, tprovFile, TprovRecord{amounts.totProv, amounts.magMis});
}

}  // namespace

RendiRecord recordOf(const StatementTerms& terms, const StatementAmounts& amounts, const TypedParts& typed,
                     const RendiRecord& before) {
    RendiRecord record = before;
    for (const auto& [place, line] : commonLines) record.*place = amounts.*line;
    const ThreePlaces three = threePlaces(terms);
    record.Assunzioni = amounts.*three.assunzioni;
    record.Postali = amounts.*three.postali;
    record.Necessita = amounts.*three.necessita;
    record.TotStato = Currency{};
    switch (terms.stored) {
        case StoredAs::plain:
        case StoredAs::rotated:
            break;
        case StoredAs::divided:
            record.TotStato = when(typed.printed, amounts.totStato);
            record.TotComune = when(typed.printed, amounts.totComune);
            record.CartRegione = when(typed.postal, amounts.cartRegione);
            record.CartStato = when(typed.postal, amounts.cartStato);
            break;
        case StoredAs::europee:
            record.Carico = record.TotComune = record.CartRegione = record.CartStato = Currency{};
            break;
        case StoredAs::byBody:
            record.TotComune = amounts.carico2;
            record.CartRegione = amounts.cartRegione;
            record.CartStato = amounts.cartStato;
            break;
    }
    return record;
}

StatementAmounts amountsOf(const StatementTerms& terms, const RendiRecord& record) {
    StatementAmounts amounts;
    for (const auto& [place, line] : commonLines) amounts.*line = record.*place;
    const ThreePlaces three = threePlaces(terms);
    amounts.*three.assunzioni = record.Assunzioni;
    amounts.*three.postali = record.Postali;
    amounts.*three.necessita = record.Necessita;
    const bool byBody = terms.stored == StoredAs::byBody;
    if (terms.stored == StoredAs::divided) {
        amounts.totStato = record.TotStato;
        amounts.totComune = record.TotComune;
    }
    if (byBody) amounts.carico2 = record.TotComune;
    if (byBody || terms.stored == StoredAs::divided) {
        amounts.cartRegione = record.CartRegione;
        amounts.cartStato = record.CartStato;
    }
    return amounts;
}

Result<StoredStatement> readStatement(FileSystem& files, const Election& election, const StatementTerms& terms) {
    const auto path = election.file(rendiFile);
    if (!path) return path.error();
    const auto record = onlyRecord<RendiRecord>(files, *path);
    if (!record) return record.error();
    if (!*record) return Error{Failure::notFound, *path};
    StoredStatement stored{.amounts = amountsOf(terms, **record)};
    if (auto done = readParts(files, election, terms, stored.amounts); !done) return done.error();
    stored.printedTyped = hasPrintedChoice(terms) && isSet(stored.amounts.totStato, stored.amounts.totComune);
    stored.postalTyped = isSet(stored.amounts.cartRegione, stored.amounts.cartStato);
    return stored;
}

Result<bool> hasStatement(FileSystem& files, const Election& election) {
    const auto path = election.file(rendiFile);
    if (!path) return path.error();
    const auto record = onlyRecord<RendiRecord>(files, *path);
    if (!record) return record.error();
    return record->has_value();
}

Result<> storeStatement(FileSystem& files, const Election& election, const StatementTerms& terms,
                        const StatementAmounts& amounts, const TypedParts& typed) {
    const auto before = readSmall<RendiRecord>(files, election, rendiFile);
    if (!before) return before.error();
    const RendiRecord record = recordOf(terms, amounts, typed, *before);
    if (auto done = storeSmall(files, election, rendiFile, record); !done) return done;
    const bool ofProvincia = terms.tprov == TprovUse::totProv;
    if (typed.printed || ofProvincia) {
        if (auto done = DivStamp(files, election, amounts); !done) return done;
    }
    if (ofProvincia) return TotProv(files, election, amounts);
    return terms.tprov == TprovUse::majormis ? majormis(files, election, amounts) : Result<>{};
}

}  // namespace vorbano
