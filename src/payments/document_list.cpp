#include "payments/document_list.h"

#include "records/payment_voices.h"
#include "storage/numbers.h"

namespace vorbano {

namespace {

constexpr std::size_t numberWidth = 4;

/// "  n." and the number of the record, right-aligned.
std::string recordNumber(int number) {
    const std::string digits = std::to_string(number);
    const std::size_t blanks = digits.size() < numberWidth ? numberWidth - digits.size() : 0;
    return "  n." + std::string(blanks, ' ') + digits;
}

/// The lines above the documents of a voice.
std::vector<std::string> headOf(const PaymentVoice& voice, Currency amount) {
    const std::string paid = "importo versato  " + format(amount, Mask::amount);
    if (voice.paidBy == PaidBy::mandateOrForm) return {std::string(voice.words), "   " + paid};
    return {std::string(voice.words), paid, "verrà versata l'imposta"};
}

std::string lineOf(const PaymentVoice& voice, const PaymentRecord& document) {
    const std::string kind = document.Son.trimmed();
    const std::string date = document.Data.trimmed();
    switch (voice.paidBy) {
        case PaidBy::mandateOrForm:
            return kind + "         n.    " + std::to_string(document.Numero) + "  del " + date;
        case PaidBy::form:
            return kind + " in data " + date;
        case PaidBy::date:
            return "in data " + date;
    }
    return {};
}

}  // namespace

bool showsDocument(std::string_view line) {
    return line.starts_with("Mo") || line.starts_with("Ma") || line.starts_with("in") || line.starts_with("Q");
}

std::vector<DocumentLine> vedolista(std::span<const PaymentRecord> documents) {
    std::vector<DocumentLine> lines;
    for (const PaymentVoice& voice : paymentVoices) {
        bool opened = false;
        for (std::size_t at = 0; at < documents.size(); ++at) {
            const PaymentRecord& document = documents[at];
            if (document.Mother.trimmed() != voice.key) continue;
            if (!opened) {
                for (std::string& text : headOf(voice, document.Importo)) lines.push_back({std::move(text)});
                opened = true;
            }
            const int number = static_cast<int>(at) + 1;
            lines.push_back({lineOf(voice, document) + recordNumber(number), number});
        }
    }
    return lines;
}

}  // namespace vorbano
