#include "manual_pages.h"

#include <cctype>
#include <fstream>
#include <iterator>
#include <sstream>

#include "surface_list.h"

namespace vorbano::test {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view filledIn = "…";

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream source(text);
    for (std::string line; std::getline(source, line);) lines.push_back(line);
    return lines;
}

std::vector<std::string> split(std::string_view text, std::string_view at) {
    std::vector<std::string> parts;
    for (std::size_t end = text.find(at); end != std::string_view::npos; end = text.find(at)) {
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end + at.size());
    }
    parts.emplace_back(text);
    return parts;
}

/// What stands between backquotes; each piece is a line of the message.
std::string codeIn(const std::string& cell) {
    const std::vector<std::string> pieces = split(cell, "`");
    std::string text;
    for (std::size_t at = 1; at < pieces.size(); at += 2) text += (at == 1 ? "" : "\n") + pieces[at];
    return text;
}

/// Behind the bracket that closes the one at `at`; literals may hold brackets of their own.
std::size_t behindBracket(const std::string& source, std::size_t at) {
    int depth = 0;
    for (; at < source.size(); ++at) {
        const char one = source[at];
        if (one == '"') {
            for (++at; at < source.size() && source[at] != '"'; ++at) at += source[at] == '\\' ? 1 : 0;
        } else if (one == '(' || one == '{') {
            ++depth;
        } else if ((one == ')' || one == '}') && --depth == 0) {
            return at + 1;
        }
    }
    return at;
}

/// As the pages of a forge and the packaged manual make it: small letters, figures, hyphens for blanks.
std::string anchorOf(std::string_view heading) {
    std::string anchor;
    for (std::size_t at = 0; at < heading.size(); ++at) {
        const auto one = static_cast<unsigned char>(heading[at]);
        if (one == 0xC3 && at + 1 < heading.size()) {  // the accented letters
            const auto next = static_cast<unsigned char>(heading[++at]);
            anchor += heading[at - 1];
            anchor += static_cast<char>(next < 0xA0 ? next + 0x20 : next);
        } else if (one == ' ') {
            anchor += '-';
        } else if (one < 0x80 && (std::isalnum(one) != 0 || one == '-')) {
            anchor += static_cast<char>(std::tolower(one));
        }
    }
    return anchor;
}

}  // namespace

std::map<std::string, std::string> manualPages(const fs::path& folder) {
    std::map<std::string, std::string> pages;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != ".md") continue;
        std::ifstream source(entry.path(), std::ios::binary);
        pages[entry.path().filename().string()] = {std::istreambuf_iterator<char>(source), {}};
    }
    return pages;
}

std::vector<ManualMessage> messagesIn(const std::string& page) {
    std::vector<ManualMessage> messages;
    for (const std::string& line : linesOf(page)) {
        const std::vector<std::string> cells = split(line, " | ");
        if (!line.starts_with("| `") || cells.size() < 2) continue;
        messages.push_back({codeIn(cells[0]), codeIn(cells[1])});
    }
    return messages;
}

std::string trimmedLines(std::string_view text) {
    std::string trimmed;
    for (const std::string& line : split(text, "\n")) {
        const std::size_t from = line.find_first_not_of(' ');
        if (from == std::string::npos) continue;
        trimmed += (trimmed.empty() ? "" : "\n") + line.substr(from, line.find_last_not_of(' ') - from + 1);
    }
    return trimmed;
}

bool fits(std::string_view said, const std::string& manual) {
    const std::string text = trimmedLines(said);
    const std::vector<std::string> parts = split(trimmedLines(manual), filledIn);
    if (parts.size() == 1) return text == parts.front();
    std::size_t at = parts.front().size();
    if (!text.starts_with(parts.front()) || !text.ends_with(parts.back())) return false;
    for (std::size_t part = 1; part + 1 < parts.size(); ++part) {
        at = text.find(parts[part], at);
        if (at == std::string::npos) return false;
        at += parts[part].size();
    }
    return at + parts.back().size() <= text.size();
}

std::vector<std::string> fixedParts(const std::string& manual) {
    std::vector<std::string> parts;
    for (const std::string& part : split(manual, filledIn)) {
        if (std::string trimmed = trimmedLines(part); !trimmed.empty()) parts.push_back(std::move(trimmed));
    }
    return parts;
}

std::vector<std::string> wordsOfBoxes(const std::string& source) {
    std::vector<std::string> words;
    for (const std::string_view opening : {"tell(", "ask(", "Message{"}) {
        for (std::size_t at = source.find(opening); at != std::string::npos; at = source.find(opening, at + 1)) {
            const std::size_t bracket = at + opening.size() - 1;
            const std::size_t end = behindBracket(source, bracket);
            for (std::string& text : wordsIn(source.substr(bracket, end - bracket))) words.push_back(std::move(text));
        }
    }
    return words;
}

std::vector<std::string> linksIn(const std::string& page) {
    std::vector<std::string> links;
    for (std::size_t at = page.find("]("); at != std::string::npos; at = page.find("](", at + 1))
        links.push_back(page.substr(at + 2, page.find(')', at) - at - 2));
    return links;
}

std::set<std::string> anchorsIn(const std::string& page) {
    std::set<std::string> anchors;
    for (const std::string& line : linesOf(page)) {
        const std::size_t text = line.find_first_not_of('#');
        if (text != 0 && text != std::string::npos && line[text] == ' ')
            anchors.insert(anchorOf(line.substr(text + 1)));
    }
    return anchors;
}

}  // namespace vorbano::test
