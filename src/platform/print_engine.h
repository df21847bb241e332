#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace vorbano {

/// Where a document goes: to a preview window, or straight to the default printer.
enum class Destination : std::uint8_t { preview = 0, printer = 1 };

/// What a report procedure hands over when its tables are full: the layout's file name in "Stampe", the title of the
/// window ("" when none is set), the destination.
struct PrintJob {
    std::string layout;
    std::string title;
    Destination destination = Destination::preview;
};

/// A page without layout and tables: lines of text, in a fixed pitch so that columns made with blanks stand one below
/// the other. It goes straight to the printer. Lines too many for one sheet go on on the next; a line too wide makes
/// all of them smaller, so that nothing is cut.
struct PlainPage {
    std::string title;    ///< of the document, and of the PDF where there is no printer
    std::string heading;  ///< above the lines, larger: the municipality; "" for none
    std::vector<std::string> lines;
};

/// Runs a layout over the whole of the staging tables; returns when the clerk has closed the preview or the document is
/// with the printer. `notFound` when the layout is not there, `damaged` when it cannot be read (the subject names file,
/// line and what is wrong).
class PrintEngine {
  public:
    virtual ~PrintEngine() = default;
    virtual Result<> run(const PrintJob& job) = 0;
    /// Prints a plain page; returns when it is with the printer.
    virtual Result<> printPage(const PlainPage& page) = 0;
};

/// A finished document: pages that can be shown, printed or saved.
class Document {
  public:
    virtual ~Document() = default;
    [[nodiscard]] virtual int pages() const = 0;
    /// Writes it as PDF/A-1b to a file of this machine (an absolute path, UTF-8).
    virtual Result<> savePdf(const std::string& path) = 0;
};

/// Makes a document from a layout and what is in the tables now.
class Renderer {
  public:
    virtual ~Renderer() = default;
    virtual Result<std::unique_ptr<Document>> render(std::string_view layout, std::string_view title) = 0;
};

/// The default printer; where there is none, it asks the clerk for the file of a PDF.
class Printer {
  public:
    virtual ~Printer() = default;
    virtual Result<> print(Document& document, std::string_view title) = 0;
};

}  // namespace vorbano
