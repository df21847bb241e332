#include "platform/qt/layout_text.h"

#include "platform/qt/layout_reader.h"

namespace vorbano {

namespace {

/// Parts may include parts; deeper than this they include one another.
constexpr int deepest = 8;
constexpr std::string_view inclusion = "[include ";

Result<> addLines(std::vector<LayoutLine>& lines, const std::string& file, const LayoutSource& source, int depth);

Result<> include(std::vector<LayoutLine>& lines, const LayoutLine& line, const LayoutSource& source, int depth) {
    const std::string_view text = withoutBlanks(line.text);
    if (text.back() != ']') return layoutError(line.origin, "manca la parentesi ] alla fine della riga");
    const std::string_view name = withoutBlanks(text.substr(inclusion.size(), text.size() - inclusion.size() - 1));
    // A part is a plain name, so that a layout cannot reach outside the folder of the layouts.
    if (name.empty() || name.find_first_of("/\\.: ") != std::string_view::npos) {
        return layoutError(line.origin, "nome di parte non valido: " + std::string(name));
    }
    const std::string part = "parti/" + std::string(name) + ".part";
    if (depth == deepest) return layoutError(line.origin, "le parti si includono a vicenda: " + part);
    Result<> added = addLines(lines, part, source, depth + 1);
    if (!added && added.error().kind != Failure::damaged) return layoutError(line.origin, "non trovato: " + part);
    return added;
}

Result<> addLines(std::vector<LayoutLine>& lines, const std::string& file, const LayoutSource& source, int depth) {
    const Result<std::string> content = source(file);
    if (!content) return content.error();
    std::string_view rest = *content;
    if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);
    for (int number = 1; !rest.empty(); ++number) {
        const auto end = rest.find('\n');
        std::string_view text = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
        if (text.ends_with('\r')) text.remove_suffix(1);
        LayoutLine line{std::string(text), {file, number}};
        if (!text.starts_with(inclusion)) {
            lines.push_back(std::move(line));
        } else if (Result<> included = include(lines, line, source, depth); !included) {
            return included;
        }
    }
    return {};
}

}  // namespace

Result<std::vector<LayoutLine>> layoutLines(std::string_view name, const LayoutSource& source) {
    std::vector<LayoutLine> lines;
    if (Result<> added = addLines(lines, std::string(name), source, 0); !added) return added.error();
    return lines;
}

std::string_view withoutBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string> pieces(std::string_view text, char separator) {
    std::vector<std::string> result;
    while (true) {
        const auto end = text.find(separator);
        const std::string_view piece = withoutBlanks(text.substr(0, end));
        if (separator != ' ' || !piece.empty()) result.emplace_back(piece);
        if (end == std::string_view::npos) return result;
        text.remove_prefix(end + 1);
    }
}

}  // namespace vorbano
