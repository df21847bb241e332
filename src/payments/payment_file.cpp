#include "payments/payment_file.h"

#include "overtime/meirin_periods.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

bool sameDocument(const PaymentRecord& one, const PaymentRecord& other) {
    return one.Mother.trimmed() == other.Mother.trimmed() && one.Son.trimmed() == other.Son.trimmed() &&
           one.Numero == other.Numero && one.Data.trimmed() == other.Data.trimmed();
}

}  // namespace

Result<std::vector<PaymentRecord>> readDocuments(FileSystem& files, const Election& election) {
    const auto path = election.file(versumFile);
    if (!path) return path.error();
    const auto file = RecordFile<PaymentRecord>::open(files, *path);
    if (!file) return file.error();
    std::vector<PaymentRecord> documents;
    const auto read = file->scan([&](int, const PaymentRecord& document) { documents.push_back(document); });
    if (!read) return read.error();
    return documents;
}

Result<> storeDocument(FileSystem& files, const Election& election, int number, const PaymentRecord& document) {
    const auto path = election.file(versumFile);
    if (!path) return path.error();
    auto file = RecordFile<PaymentRecord>::open(files, *path);
    if (!file) return file.error();
    return number == 0 ? file->append(document) : file->write(number, document);
}

Result<> removeDocument(FileSystem& files, const Election& election, const PaymentRecord& document) {
    const auto path = election.file(versumFile);
    if (!path) return path.error();
    const auto companion = election.file(reversumFile);
    if (!companion) return companion.error();
    return rewrite<PaymentRecord>(files, *path, *companion,
                                  [&](int, const PaymentRecord& record) { return !sameDocument(record, document); });
}

Result<std::string> paymentDate(FileSystem& files, const Election& election, const PaymentVoice& voice) {
    const auto record = readMeirin(files, election);
    if (!record) return record.error();
    return ((*record).*voice.date).trimmed();
}

Result<> storePaymentDate(FileSystem& files, const Election& election, const PaymentVoice& voice,
                          std::string_view date) {
    return changeMeirin(files, election, [&](MeirinRecord& record) { record.*voice.date = date; });
}

Result<> storePaymentAmounts(FileSystem& files, const Election& election, const PaymentAmounts& amounts) {
    return changeMeirin(files, election, [&](MeirinRecord& record) {
        for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
            if (paymentVoices[at].amount != nullptr) record.*paymentVoices[at].amount = amounts[at];
        }
    });
}

}  // namespace vorbano
