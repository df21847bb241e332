#pragma once

// The list of the documents of an election, voice by voice, as lines of text.

#include <span>
#include <string>
#include <vector>

#include "records/payment_records.h"

namespace vorbano {

struct DocumentLine {
    std::string text;
    int record = 0;  ///< of the document that the line shows, from 1; 0 for the lines between
};

/// `vedolista` to `vedolista7`: a block for each voice that has documents, in the order of the voices. The number of
/// the record stands in the last four columns of the line of a document.
[[nodiscard]] std::vector<DocumentLine> vedolista(std::span<const PaymentRecord> documents);

/// A line can be clicked by its first letters: of a form, a mandate, a date, a receipt.
[[nodiscard]] bool showsDocument(std::string_view line);

}  // namespace vorbano
