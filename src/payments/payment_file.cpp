#include "payments/payment_file.h"

#include "overtime/meirin_periods.h"
#include "storage/only_record.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

bool sameDocument(const PaymentRecord& one, const PaymentRecord& other) {
    return one.Mother.trimmed() == other.Mother.trimmed() && one.Son.trimmed() == other.Son.trimmed() &&
           one.Numero == other.Numero && one.Data.trimmed() == other.Data.trimmed();
}

/// Lets `change(record, sourceOf)` at the one record that holds the payments of the set; `sourceOf` tells where it
/// holds those of a voice.
Result<> changePayments(FileSystem& files, const Election& election, PaymentSet set, auto change) {
    if (set == PaymentSet::liquidation) {
        return changeMeirin(files, election, [&](MeirinRecord& record) {
            change(record, [](const PaymentVoice& voice) -> const PaymentVoice& { return voice; });
        });
    }
    auto record = readMeirinc(files, election);
    if (!record) return record.error();
    change(*record, [](const PaymentVoice& voice) -> const AdjustmentSource& { return voice.adjusted; });
    const auto path = election.file(meirincFile);
    if (!path) return path.error();
    return storeOnlyRecord(files, *path, *record);
}

}  // namespace

Result<std::vector<PaymentRecord>> readDocuments(FileSystem& files, const Election& election, PaymentSet set) {
    const auto path = election.file(documentsFile(set));
    if (!path) return path.error();
    const auto file = RecordFile<PaymentRecord>::open(files, *path);
    if (!file) return file.error();
    std::vector<PaymentRecord> documents;
    const auto read = file->scan([&](int, const PaymentRecord& document) { documents.push_back(document); });
    if (!read) return read.error();
    return documents;
}

Result<> storeDocument(FileSystem& files, const Election& election, PaymentSet set, int number,
                       const PaymentRecord& document) {
    const auto path = election.file(documentsFile(set));
    if (!path) return path.error();
    auto file = RecordFile<PaymentRecord>::open(files, *path);
    if (!file) return file.error();
    return number == 0 ? file->append(document) : file->write(number, document);
}

Result<> removeDocument(FileSystem& files, const Election& election, PaymentSet set, const PaymentRecord& document) {
    const auto path = election.file(documentsFile(set));
    if (!path) return path.error();
    const auto companion = election.file(reversumFile);
    if (!companion) return companion.error();
    return rewrite<PaymentRecord>(files, *path, *companion,
                                  [&](int, const PaymentRecord& record) { return !sameDocument(record, document); });
}

Result<std::string> paymentDate(FileSystem& files, const Election& election, PaymentSet set,
                                const PaymentVoice& voice) {
    if (set == PaymentSet::adjustment) {
        const auto record = readMeirinc(files, election);
        if (!record) return record.error();
        return ((*record).*voice.adjusted.date).trimmed();
    }
    const auto record = readMeirin(files, election);
    if (!record) return record.error();
    return ((*record).*voice.date).trimmed();
}

Result<> storePaymentDate(FileSystem& files, const Election& election, PaymentSet set, const PaymentVoice& voice,
                          std::string_view date) {
    return changePayments(files, election, set,
                          [&](auto& record, auto sourceOf) { record.*sourceOf(voice).date = date; });
}

Result<> storePaymentAmounts(FileSystem& files, const Election& election, PaymentSet set,
                             const PaymentAmounts& amounts) {
    return changePayments(files, election, set, [&](auto& record, auto sourceOf) {
        for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
            const auto amount = sourceOf(paymentVoices[at]).amount;
            if (amount != nullptr) record.*amount = amounts[at];
        }
    });
}

Result<bool> hasAdjustment(FileSystem& files, const Election& election) {
    const auto path = election.file(congsFile);
    if (!path) return path.error();
    const auto file = RecordFile<AdjustmentRecord>::open(files, *path);
    if (!file) return file.error();
    const auto count = file->count();
    if (!count) return count.error();
    return *count > 0;
}

}  // namespace vorbano
