#include "reports/payments_due.h"

#include <functional>

#include "overtime/meirin_periods.h"
#include "storage/numbers.h"
#include "storage/only_record.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

/// Whether the document differs from what is due; then it has the amount due.
bool follow(PaymentRecord& record, const PaymentAmounts& due) {
    const std::size_t voice = paymentVoiceOf(record.Mother.trimmed());
    if (voice == paymentVoices.size() || !paymentVoices[voice].followed) return false;
    if (record.Importo == due[voice]) return false;
    record.Importo = due[voice];
    return true;
}

/// Adds the voices that are summed over all records of a file; the rates are those of its last record.
template <class Record>
Result<> addAll(FileSystem& files, std::string_view path, PaymentsDue& due, auto amountsOf, auto sourceOf) {
    const auto file = RecordFile<Record>::open(files, path);
    if (!file) return file.error();
    return file->scan([&](int, const Record& record) {
        const auto& amounts = amountsOf(record);
        for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
            const auto& source = sourceOf(paymentVoices[at]);
            if (source.sum == nullptr) continue;
            due.amounts[at] += amounts.*source.sum;
            due.rates[at] = amounts.*source.rate;
        }
    });
}

/// Takes the other voices from the one record that holds them, and holds all to cents.
void takeAmounts(PaymentsDue& due, const auto& record, auto sourceOf) {
    for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
        const auto& source = sourceOf(paymentVoices[at]);
        if (source.amount != nullptr) due.amounts[at] = record.*source.amount;
        due.amounts[at] = cents(due.amounts[at]);
    }
}

}  // namespace

Result<PaymentsDue> readPaymentsDue(FileSystem& files, const Election& election) {
    const auto path = election.employeeFile();
    if (!path) return path.error();
    PaymentsDue due;
    const auto sourceOf = [](const PaymentVoice& voice) -> const PaymentVoice& { return voice; };
    const auto payOf = [](const EmployeeRecord& record) -> const Pay& { return record.pay; };
    if (auto added = addAll<EmployeeRecord>(files, *path, due, payOf, sourceOf); !added) return added.error();
    const auto meirin = readMeirin(files, election);
    if (!meirin) return meirin.error();
    takeAmounts(due, *meirin, sourceOf);
    return due;
}

Result<PaymentsDue> readAdjustmentDue(FileSystem& files, const Election& election) {
    const auto path = election.file(congsFile);
    if (!path) return path.error();
    PaymentsDue due;
    const auto sourceOf = [](const PaymentVoice& voice) -> const AdjustmentSource& { return voice.adjusted; };
    if (auto added = addAll<AdjustmentRecord>(files, *path, due, std::identity{}, sourceOf); !added)
        return added.error();
    const auto meirinc = readMeirinc(files, election);
    if (!meirinc) return meirinc.error();
    takeAmounts(due, *meirinc, sourceOf);
    return due;
}

Result<MeirincRecord> readMeirinc(FileSystem& files, const Election& election) {
    const auto path = election.file(meirincFile);
    if (!path) return path.error();
    const auto stored = onlyRecord<MeirincRecord>(files, *path);
    if (!stored) return stored.error();
    return stored->value_or(MeirincRecord{});
}

std::string rateText(Currency rate) {
    std::string text = format(rate, Mask::digits);
    while (text.ends_with('0')) text.pop_back();
    if (text.ends_with(',')) text.pop_back();
    return text + "%";
}

Result<> Kontrol(FileSystem& files, const Election& election, const PaymentAmounts& due) {
    const auto path = election.file(versumFile);
    if (!path) return path.error();
    const auto companion = election.file(reversumFile);
    if (!companion) return companion.error();
    bool differs = false;
    {
        const auto file = RecordFile<PaymentRecord>::open(files, *path);
        if (!file) return file.error();
        auto read = file->scan([&](int, PaymentRecord record) { differs = follow(record, due) || differs; });
        if (!read) return read;
    }
    if (!differs) return {};
    return rewrite<PaymentRecord>(files, *path, *companion, [&](int, PaymentRecord& record) {
        follow(record, due);
        return true;
    });
}

}  // namespace vorbano
