#include "reports/payments_due.h"

#include "overtime/meirin_periods.h"
#include "storage/numbers.h"
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

}  // namespace

Result<PaymentsDue> readPaymentsDue(FileSystem& files, const Election& election) {
    const auto path = election.employeeFile();
    if (!path) return path.error();
    const auto employees = RecordFile<EmployeeRecord>::open(files, *path);
    if (!employees) return employees.error();
    PaymentsDue due;
    const auto read = employees->scan([&](int, const EmployeeRecord& record) {
        for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
            const PaymentVoice& voice = paymentVoices[at];
            if (voice.sum == nullptr) continue;
            due.amounts[at] += record.pay.*voice.sum;
            due.rates[at] = record.pay.*voice.rate;
        }
    });
    if (!read) return read.error();
    const auto meirin = readMeirin(files, election);
    if (!meirin) return meirin.error();
    for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
        const PaymentVoice& voice = paymentVoices[at];
        if (voice.amount != nullptr) due.amounts[at] = (*meirin).*voice.amount;
        due.amounts[at] = cents(due.amounts[at]);
    }
    return due;
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
