#include "stations/station_tariff_half.h"

#include <algorithm>
#include <utility>

#include "screens/well_done.h"
#include "storage/election.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

constexpr std::string_view noType = "TARIFFE";
constexpr std::string_view ofType = "TARIFFE ";

Lines namesOfTypes() {
    Lines names;
    for (const ElectionType& type : electionTypes) names.emplace_back(type.name);
    return names;
}

/// For the names of the types, which are plain letters.
std::string inCapitals(std::string text) {
    const auto capital = [](char one) { return one >= 'a' && one <= 'z' ? static_cast<char>(one - 'a' + 'A') : one; };
    std::ranges::transform(text, text.begin(), capital);
    return text;
}

template <std::size_t Fees, std::size_t... At>
std::array<CheckBox, Fees + 2> makeBoxes(Frame& frame, Frame& quotaFrame, const TariffHalfNames<Fees>& names,
                                         std::index_sequence<At...>) {
    return {{CheckBox(At < Fees ? frame : quotaFrame, std::string(names.amounts[At].box), "Modifica")...}};
}

template <std::size_t Fees, std::size_t... At>
std::array<TextBox, Fees + 2> makeAmounts(Frame& frame, Frame& quotaFrame, const TariffHalfNames<Fees>& names,
                                          std::index_sequence<At...>) {
    return {{TextBox(At < Fees ? frame : quotaFrame, std::string(names.amounts[At].field))...}};
}

}  // namespace

template <std::size_t Fees>
StationTariffHalf<Fees>::StationTariffHalf(Form& form, const TariffHalfNames<Fees>& names, const Workplace& workplace)
    : frame(form, std::string(names.frame), std::string(noType)),
      quotaFrame(frame, std::string(names.quotaFrame), "Quota a carico Stato"),
      type(frame, std::string(names.type), namesOfTypes()),
      all(frame, std::string(names.all), "Attiva tutte le modifiche"),
      boxes(makeBoxes(frame, quotaFrame, names, std::make_index_sequence<amountCount>())),
      amounts(makeAmounts(frame, quotaFrame, names, std::make_index_sequence<amountCount>())),
      save(frame, std::string(names.save), "Salva modifiche"),
      names_(names),
      desk_(workplace) {
    for (std::size_t at = 0; at < amountCount; ++at) {
        boxes[at].clicked.calls([this, at] { openOne(at); });
        amounts[at].lostFocus.calls([this, at] { leaveAmount(amounts[at]); });
    }
    followBoxes();
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::choose() {
    lookUp();
    // The type is fast now and cannot hold the cursor.
    if (all.checked() && type.form().focused() == &type) type.form().focus(amounts.front());
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::lookUp() {
    const bool quota = hasQuota();
    for (std::size_t at = Fees; at < amountCount; ++at) {
        show(at, std::nullopt);
        boxes[at].enabled = quota;
    }
    const Search fees = search(names_.feeFile);
    if (!wellDone(fees ? Result<>() : fees.error(), desk_.desktop)) return forgetType();
    const Search quotas = quota ? search(names_.quotaFile) : openOnly(names_.quotaFile);
    if (!wellDone(quotas ? Result<>() : quotas.error(), desk_.desktop)) return forgetType();

    for (std::size_t at = 0; at < Fees; ++at) show(at, *fees ? std::optional((*fees)->row.amounts[at]) : std::nullopt);
    if (!*fees) {
        frame.text = std::string(noType);
        if (!ask("Bisogna inserire le tariffe. Attivare l'inserimento?")) return;
        all.checked = true;
    }
    if (quota && *quotas) {
        show(Fees, (*quotas)->row.amounts.front());
        show(Fees + 1, (*quotas)->row.amounts.back());
    } else if (quota) {
        if (!ask("Bisogna inserire la quota a carico dello Stato. Attivare l'inserimento?")) return;
        boxes[Fees].checked = true;
    }
    // After a No the frame deliberately keeps the caption that it had.
    frame.text = inCapitals(std::string(ofType) + chosen());
}

template <std::size_t Fees>
auto StationTariffHalf<Fees>::search(std::string_view path) const -> Search {
    const auto file = RecordFile<Row>::open(desk_.files, path);
    if (!file) return file.error();
    return findTariff(*file, chosen());
}

template <std::size_t Fees>
auto StationTariffHalf<Fees>::openOnly(std::string_view path) const -> Search {
    const auto file = RecordFile<Row>::open(desk_.files, path);
    if (!file) return file.error();
    return std::optional<FoundTariff<Fees>>();
}

template <std::size_t Fees>
bool StationTariffHalf<Fees>::ask(std::string_view question) {
    return desk_.desktop.ask({std::string(question), std::string(ofType) + chosen(), Icon::question});
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::show(std::size_t at, std::optional<Currency> amount) {
    amounts[at].text = amount ? format(*amount, Mask::amount) : std::string();
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::forgetType() {
    for (std::size_t at = 0; at < amountCount; ++at) show(at, std::nullopt);
    type.selection = -1;
    type.text = std::string();
    frame.text = std::string(noType);
}

template <std::size_t Fees>
bool StationTariffHalf<Fees>::takenBack(CheckBox& box) {
    if (!box.checked() || !chosen().empty()) return false;
    box.checked = false;
    return true;
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::openAll() {
    if (takenBack(all)) return;
    Form& form = type.form();
    if (!all.checked()) {
        lockAll();
        form.focus(type);
        return;
    }
    followBoxes();
    if (form.focused() == &all) form.focus(amounts.front());
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::openOne(std::size_t at) {
    if (takenBack(boxes[at])) return;
    followBoxes();
    if (boxes[at].checked()) {
        type.form().focus(amounts[at]);
    } else {
        type.form().focus(type);
    }
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::followBoxes() {
    bool anyOpen = all.checked();
    for (std::size_t at = 0; at < amountCount; ++at) {
        const bool mayOpen = at < Fees || hasQuota();
        amounts[at].enabled = mayOpen && (all.checked() || boxes[at].checked());
        anyOpen = anyOpen || boxes[at].checked();
    }
    type.enabled = !anyOpen;
    save.enabled = anyOpen;
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::lockAll() {
    all.checked = false;
    for (CheckBox& box : boxes) box.checked = false;
    followBoxes();
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::leaveAmount(TextBox& field) {
    field.text = format(amountOrZero(field.text()), Mask::amount);
}

template <std::size_t Fees>
Currency StationTariffHalf<Fees>::take(std::size_t at) {
    const Currency amount = cents(amountOrZero(amounts[at].text()));
    show(at, amount);
    return amount;
}

template <std::size_t Fees>
template <class Fill>
Result<> StationTariffHalf<Fees>::put(std::string_view path, Fill&& fill) const {
    auto file = RecordFile<Row>::open(desk_.files, path);
    if (!file) return file.error();
    const auto found = findTariff(*file, chosen());
    if (!found) return found.error();
    const auto count = file->count();
    if (!count) return count.error();
    Row row = *found ? (*found)->row : Row{};
    row.Tipo = chosen();
    fill(row.amounts);
    return file->write(*found ? (*found)->number : *count + 1, row);
}

template <std::size_t Fees>
void StationTariffHalf<Fees>::store() {
    const auto fees = [this](auto& row) {
        for (std::size_t at = 0; at < Fees; ++at) row[at] = take(at);
    };
    // The amount between the two of a row of three is nobody's, and stays.
    const auto quotas = [this](auto& row) {
        row.front() = take(Fees);
        row.back() = take(Fees + 1);
    };
    if (!wellDone(put(names_.feeFile, fees), desk_.desktop)) return;
    if (hasQuota() && !wellDone(put(names_.quotaFile, quotas), desk_.desktop)) return;
    lockAll();
    type.form().focus(type);
}

template class StationTariffHalf<3>;
template class StationTariffHalf<2>;

}  // namespace vorbano
