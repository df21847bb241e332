#include "reports/payment_rows.h"

#include "screens/staging_value.h"
#include "storage/record_file.h"

namespace vorbano {

namespace {

Row rowOf(const PaymentRecord& record, const PaymentCaptions& captions, std::string_view inailWords) {
    const std::string key = record.Mother.trimmed();
    const std::size_t voice = paymentVoiceOf(key);
    const bool withoutDocument = voice < paymentVoices.size() && paymentVoices[voice].paidBy == PaidBy::date;
    Row row;
    row.setText("Comune", captions.Comune).setText("Elezioni", captions.Elezioni).setText("dataE", captions.dataE);
    row.setText("Mother", key)
        .setText("Son", withoutDocument ? std::string(inailWords) : record.Son.trimmed())
        .setText("Percent", record.Percent.trimmed())
        .set("Importo", amountValue(record.Importo))
        .setWhole("Numero", record.Numero)
        .setText("Data", record.Data.trimmed())
        .setText("Sonocosi", record.Sonocosi.trimmed());
    return row;
}

}  // namespace

Result<int> appendPayments(FileSystem& files, Database& staging, const Election& election,
                           const PaymentCaptions& captions, std::string_view inailWords, std::string_view documents) {
    const auto path = election.file(documents);
    if (!path) return path.error();
    const auto file = RecordFile<PaymentRecord>::open(files, *path);
    if (!file) return file.error();
    int rows = 0;
    Result<> appended;
    const auto read = file->scan([&](int, const PaymentRecord& record) {
        if (!appended) return;
        appended = staging.append("Tabella11", rowOf(record, captions, inailWords));
        ++rows;
    });
    if (!read) return read.error();
    if (!appended) return appended.error();
    return rows;
}

Result<> appendClosingRows(Database& staging, const std::array<ClosingLine, paymentVoiceCount>& lines) {
    for (std::size_t at = 0; at < paymentVoices.size(); ++at) {
        const PaymentVoice& voice = paymentVoices[at];
        if (!voice.followed) continue;
        Row row;
        row.setText("Mother", std::string(voice.key))
            .setText("Percent", voice.rate == nullptr ? "-" : lines[at].rate + " ")
            .set("Importo", amountValue(lines[at].amount));
        if (auto appended = staging.append("Tabella11", row); !appended) return appended;
    }
    return {};
}

}  // namespace vorbano
