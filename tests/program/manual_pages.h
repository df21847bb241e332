#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vorbano::test {

/// A message of the appendix as the manual gives it: "…" stands for what the program puts in, "\n" for a new line.
struct ManualMessage {
    std::string title;
    std::string text;
};

/// The pages of the manual (name of the file, text).
[[nodiscard]] std::map<std::string, std::string> manualPages(const std::filesystem::path& folder);

/// The rows of the tables of a page that begin with two cells in `code`: title and text.
[[nodiscard]] std::vector<ManualMessage> messagesIn(const std::string& page);

/// Whether a text on the screen is what the manual says; blanks at the ends of lines, which nobody sees, do not count.
[[nodiscard]] bool fits(std::string_view said, const std::string& manual);

/// The fixed parts of a text of the manual: what stands around "…".
[[nodiscard]] std::vector<std::string> fixedParts(const std::string& manual);

/// Without the blanks at both ends of each line, and without empty lines at the ends.
[[nodiscard]] std::string trimmedLines(std::string_view text);

/// The literals of two words and more that a source hands to a message box directly: inside `tell(...)`, `ask(...)` and
/// `Message{...}`.
[[nodiscard]] std::vector<std::string> wordsOfBoxes(const std::string& source);

/// The targets of the links and pictures of a page.
[[nodiscard]] std::vector<std::string> linksIn(const std::string& page);

/// The names by which links reach the headings of a page.
[[nodiscard]] std::set<std::string> anchorsIn(const std::string& page);

}  // namespace vorbano::test
