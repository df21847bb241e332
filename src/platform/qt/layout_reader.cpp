#include "platform/qt/layout_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "platform/qt/layout_text.h"

namespace vorbano {

namespace {

/// A length or size written with a point, not negative and of a sensible magnitude.
std::optional<double> positive(std::string_view text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return std::isfinite(value) && value >= 0 && value <= 2000 ? std::optional(value) : std::nullopt;
}

std::optional<Alignment> alignmentOf(std::string_view name) {
    constexpr std::array<std::string_view, 4> names = {"left", "right", "centre", "comma"};
    const auto at = std::find(names.begin(), names.end(), name);
    if (at == names.end()) return std::nullopt;
    return static_cast<Alignment>(at - names.begin());
}

/// Walks the lines of a layout; each section has a function for its heading and one for its lines.
class Reader {
  public:
    Result<Layout> read(const std::vector<LayoutLine>& lines);

  private:
    using Words = std::vector<std::string>;
    struct Keyword {
        std::string_view name;
        Result<> (Reader::*begin)(const Words& words);
        Result<> (Reader::*line)(const LayoutLine& line);
    };

    Result<> fail(const std::string& what) const { return layoutError(origin_, what); }
    Result<> beginSection(const LayoutLine& line);
    Result<> finishSection();

    Result<> beginPage(const Words& words);
    Result<> beginStyle(const Words& words);
    Result<> beginRow(const Words& words) { return beginQuery(words, true); }
    Result<> beginRows(const Words& words) { return beginQuery(words, false); }
    Result<> beginQuery(const Words& words, bool single);
    Result<> beginHtml(const Words& words);
    Result<> beginTable(const Words& words);
    Result<> beginSpace(const Words& words);
    Result<> beginNewPage(const Words& words);

    Result<> noLine(const LayoutLine& line) const;
    Result<> pageLine(const LayoutLine& line);
    Result<> styleLine(const LayoutLine& line);
    Result<> queryLine(const LayoutLine& line);
    Result<> displayLine(std::string_view text);
    Result<> htmlLine(const LayoutLine& line);
    Result<> tableLine(const LayoutLine& line);
    Result<> tableProperty(std::string_view word, std::string_view value, const LayoutLine& line);
    Result<> columnLine(std::string_view text);
    Result<> blockLine(std::vector<BlockLine>& lines, std::string_view from);

    Result<> finishHtml(HtmlSection& section) const;
    Result<> finishTable(const TableSection& section) const;
    Result<> margins(std::string_view value);
    Result<> textSize(double& into, std::string_view value) const;
    Result<> text(TextTemplate& into, std::string_view from) const;
    [[nodiscard]] bool knows(const std::string& query) const;

    static const std::array<Keyword, 8> keywords;
    const Keyword* section_ = nullptr;
    Origin origin_;
    Layout layout_;
    int group_ = -1;
};

const std::array<Reader::Keyword, 8> Reader::keywords = {{
    {"page", &Reader::beginPage, &Reader::pageLine},
    {"style", &Reader::beginStyle, &Reader::styleLine},
    {"row", &Reader::beginRow, &Reader::queryLine},
    {"rows", &Reader::beginRows, &Reader::queryLine},
    {"html", &Reader::beginHtml, &Reader::htmlLine},
    {"table", &Reader::beginTable, &Reader::tableLine},
    {"space", &Reader::beginSpace, nullptr},
    {"new-page", &Reader::beginNewPage, nullptr},
}};

Result<Layout> Reader::read(const std::vector<LayoutLine>& lines) {
    for (const LayoutLine& line : lines) {
        const bool opens = line.text.starts_with('[');
        // An empty line is part of a text, a comment is not.
        const bool html = section_ != nullptr && section_->name == "html";
        if (line.text.starts_with('#') || (!html && withoutBlanks(line.text).empty())) continue;
        origin_ = line.origin;
        Result<> done;
        if (opens) {
            done = beginSection(line);
        } else if (section_ == nullptr || section_->line == nullptr) {
            done = noLine(line);
        } else {
            done = (this->*section_->line)(line);
        }
        if (!done) return done.error();
    }
    if (Result<> finished = finishSection(); !finished) return finished.error();
    return std::move(layout_);
}

Result<> Reader::beginSection(const LayoutLine& line) {
    if (Result<> finished = finishSection(); !finished) return finished;
    origin_ = line.origin;
    const std::string_view heading = withoutBlanks(line.text);
    if (heading.back() != ']') return fail("manca la parentesi ] alla fine della riga");
    Words words = pieces(heading.substr(1, heading.size() - 2));
    const auto keyword = std::find_if(keywords.begin(), keywords.end(),
                                      [&](const Keyword& one) { return !words.empty() && one.name == words.front(); });
    if (keyword == keywords.end()) return fail("sezione sconosciuta: " + std::string(heading));
    section_ = &*keyword;
    words.erase(words.begin());
    return (this->*section_->begin)(words);
}

Result<> Reader::finishSection() {
    if (section_ == nullptr) return {};
    if (section_->name == "html") return finishHtml(std::get<HtmlSection>(layout_.sections.back()));
    if (section_->name == "table") return finishTable(std::get<TableSection>(layout_.sections.back()));
    const bool query = section_->name == "row" || section_->name == "rows";
    if (query && withoutBlanks(layout_.queries.back().sql).empty()) {
        return layoutError(layout_.queries.back().origin, "manca l'interrogazione SQL");
    }
    return {};
}

bool Reader::knows(const std::string& query) const {
    return std::any_of(layout_.queries.begin(), layout_.queries.end(),
                       [&](const LayoutQuery& one) { return one.name == query; });
}

Result<> Reader::noLine(const LayoutLine& line) const { return fail("riga fuori posto: " + line.text); }

Result<> Reader::text(TextTemplate& into, std::string_view from) const {
    auto read = TextTemplate::read(from);
    if (!read) return fail("segnaposto non valido in: " + std::string(from));
    into = std::move(*read);
    return {};
}

Result<> Reader::beginPage(const Words& words) { return words.empty() ? Result<>() : fail("[page] non ha opzioni"); }

Result<> Reader::pageLine(const LayoutLine& line) {
    const auto equals = line.text.find('=');
    if (equals == std::string::npos) return noLine(line);
    const std::string_view whole = line.text;
    const std::string_view name = withoutBlanks(whole.substr(0, equals));
    const std::string_view value = withoutBlanks(whole.substr(equals + 1));
    PageSetup& page = layout_.page;
    if (name == "size") {
        page.size = std::string(value);
    } else if (name == "orientation") {
        if (value != "portrait" && value != "landscape") return fail("orientamento sconosciuto: " + std::string(value));
        page.landscape = value == "landscape";
    } else if (name == "margins") {
        return margins(value);
    } else if (name == "font") {
        page.fonts = pieces(value, ',');
    } else if (name == "text") {
        return textSize(page.textSize, value);
    } else if (name == "foot") {
        return text(page.foot, value);
    } else {
        return fail("proprietà di pagina sconosciuta: " + std::string(name));
    }
    return {};
}

Result<> Reader::margins(std::string_view value) {
    const Words words = pieces(value);
    PageSetup& page = layout_.page;
    double* const sides[] = {&page.left, &page.top, &page.right, &page.bottom};
    if (words.size() != std::size(sides)) return fail("i margini sono quattro, in mm: sinistro alto destro basso");
    for (std::size_t at = 0; at < words.size(); ++at) {
        const auto length = positive(words[at]);
        if (!length || *length > 100) return fail("margine non valido: " + words[at]);
        *sides[at] = *length;
    }
    return {};
}

Result<> Reader::textSize(double& into, std::string_view value) const {
    const auto size = positive(value);
    if (!size || *size < 4 || *size > 40) return fail("altezza del testo non valida: " + std::string(value));
    into = *size;
    return {};
}

Result<> Reader::beginStyle(const Words& words) { return words.empty() ? Result<>() : fail("[style] non ha opzioni"); }

Result<> Reader::styleLine(const LayoutLine& line) {
    layout_.style += line.text + '\n';
    return {};
}

Result<> Reader::beginQuery(const Words& words, bool single) {
    if (words.size() != 1) return fail("manca il nome dell'interrogazione");
    if (knows(words.front())) return fail("interrogazione già presente: " + words.front());
    if (words.front().find('.') != std::string::npos) return fail("nome non valido: " + words.front());
    layout_.queries.push_back({words.front(), single, {}, {}, origin_});
    return {};
}

Result<> Reader::queryLine(const LayoutLine& line) {
    if (line.text.starts_with('@')) return displayLine(std::string_view(line.text).substr(1));
    layout_.queries.back().sql += line.text + '\n';
    return {};
}

Result<> Reader::displayLine(std::string_view text) {
    Words words = pieces(text);
    ResultDisplay display;
    const std::string keyword = words.empty() ? std::string() : words.front();
    std::size_t first = 1;
    if (keyword == "amount") {
        display.kind = ResultDisplay::Kind::amount;
    } else if (keyword == "whole") {
        display.kind = ResultDisplay::Kind::whole;
    } else if (keyword == "mask") {
        display.mask = words.size() > 1 ? Mask::read(words[1]) : std::nullopt;
        if (!display.mask) return fail("maschera non valida: " + (words.size() > 1 ? words[1] : std::string()));
        first = 2;
    } else {
        return fail("direttiva sconosciuta: @" + keyword);
    }
    if (words.size() <= first) return fail("mancano i nomi dei campi dopo @" + keyword);
    auto& displays = layout_.queries.back().displays;
    for (std::size_t at = first; at < words.size(); ++at) {
        const auto known =
            std::find_if(displays.begin(), displays.end(), [&](const auto& one) { return one.first == words[at]; });
        ResultDisplay& of =
            known == displays.end() ? displays.emplace_back(words[at], ResultDisplay{}).second : known->second;
        if (display.mask) {
            of.mask = display.mask;
        } else {
            of.kind = display.kind;
        }
    }
    return {};
}

Result<> Reader::beginHtml(const Words& words) {
    HtmlSection section;
    for (const std::string& word : words) {
        if (word != "together" && word != "with-previous") return fail("opzione sconosciuta: " + word);
        section.together = section.together || word == "together";
        section.withPrevious = section.withPrevious || word == "with-previous";
    }
    layout_.sections.emplace_back(std::move(section));
    return {};
}

Result<> Reader::htmlLine(const LayoutLine& line) {
    auto& section = std::get<HtmlSection>(layout_.sections.back());
    section.text += line.text + '\n';
    section.lines.push_back(line.origin);
    return {};
}

Result<> Reader::finishHtml(HtmlSection& section) const {
    TagScan scan = scanTags(section.text);
    if (!scan.mistake.empty()) {
        return layoutError(section.lines[static_cast<std::size_t>(scan.mistakeLine)], scan.mistake);
    }
    section.tags = std::move(scan.tags);
    return {};
}

Result<> Reader::beginTable(const Words& words) {
    if (words.size() != 1) return fail("manca il nome dell'interrogazione della tabella");
    TableSection section;
    section.query = words.front();
    section.origin = origin_;
    layout_.sections.emplace_back(std::move(section));
    group_ = -1;
    return {};
}

Result<> Reader::tableLine(const LayoutLine& line) {
    auto& table = std::get<TableSection>(layout_.sections.back());
    const std::string_view whole = withoutBlanks(line.text);
    const auto blank = whole.find_first_of(" =");
    const std::string_view word = whole.substr(0, blank);
    const std::string_view rest = blank == std::string_view::npos ? "" : withoutBlanks(whole.substr(blank));
    if (word == "column") return columnLine(rest);
    if (word == "group") {
        if (group_ >= 0) return fail("il gruppo precedente non è chiuso con end");
        group_ = static_cast<int>(table.groups.size());
        table.groupOrigins.push_back(origin_);
        return text(table.groups.emplace_back(), rest);
    }
    if (word == "end") {
        if (group_ < 0) return fail("end senza group");
        group_ = -1;
        return {};
    }
    if (word == "above") return blockLine(table.above, rest);
    if (word == "below") return blockLine(table.below, rest);
    return tableProperty(word, rest.starts_with('=') ? withoutBlanks(rest.substr(1)) : std::string_view(), line);
}

Result<> Reader::tableProperty(std::string_view word, std::string_view value, const LayoutLine& line) {
    auto& table = std::get<TableSection>(layout_.sections.back());
    if (word == "totals" && !value.empty()) {
        table.totals = std::string(value);
        return {};
    }
    if (word == "text") return textSize(table.textSize, value);
    if (word == "when" && !value.empty()) return text(table.when, value);
    if (word == "block" && !value.empty()) {
        table.blockOrigin = origin_;
        return text(table.block, value);
    }
    if (word == "blocks" && value == "apart") {
        table.apart = true;
        return {};
    }
    if (word == "row") {
        const auto height = positive(value);
        if (!height || *height > 100) return fail("altezza della riga non valida: " + std::string(value));
        table.leastRow = *height;
        return {};
    }
    return noLine(line);
}

Result<> Reader::blockLine(std::vector<BlockLine>& lines, std::string_view from) {
    const auto bar = from.find('|');
    const Words words = pieces(from.substr(0, bar));
    const auto alignment = words.size() == 3 ? alignmentOf(words[2]) : std::nullopt;
    const bool weight = words.size() == 3 && (words[1] == "bold" || words[1] == "plain");
    if (bar == std::string_view::npos || !weight || !alignment || *alignment == Alignment::comma) {
        return fail("riga non valida: above o below ALTEZZA bold|plain ALLINEAMENTO | testo");
    }
    BlockLine& line = lines.emplace_back();
    line.bold = words[1] == "bold";
    line.alignment = *alignment;
    line.origin = origin_;
    if (Result<> size = textSize(line.textSize, words[0]); !size) return size;
    return text(line.text, from.substr(bar + 1));
}

Result<> Reader::columnLine(std::string_view from) {
    auto& table = std::get<TableSection>(layout_.sections.back());
    const Words fields = pieces(from, '|');
    const Words first = pieces(fields.front());
    if (first.size() != 2 || fields.size() < 3 || fields.size() > 5) {
        return fail("colonna non valida: column LARGHEZZA ALLINEAMENTO | titolo | testo | totale | totale del blocco");
    }
    TableColumn column;
    column.group = group_;
    column.origin = origin_;
    const auto width = first[0] == "*" ? std::optional(0.0) : positive(first[0]);
    if (!width || (*width <= 0 && first[0] != "*")) return fail("larghezza non valida: " + first[0]);
    column.width = *width;
    const auto alignment = alignmentOf(first[1]);
    if (!alignment) return fail("allineamento sconosciuto: " + first[1]);
    column.alignment = *alignment;
    if (Result<> title = text(column.title, fields[1]); !title) return title;
    if (Result<> cell = text(column.cell, fields[2]); !cell) return cell;
    if (fields.size() > 3) {
        if (Result<> total = text(column.total, fields[3]); !total) return total;
    }
    if (fields.size() > 4) {
        if (Result<> total = text(column.blockTotal, fields[4]); !total) return total;
    }
    table.columns.push_back(std::move(column));
    return {};
}

Result<> Reader::finishTable(const TableSection& section) const {
    if (group_ >= 0) return layoutError(section.groupOrigins.back(), "il gruppo non è chiuso con end");
    if (section.columns.empty()) return layoutError(section.origin, "la tabella non ha colonne");
    const bool ofBlocks = section.apart || !section.above.empty() || !section.below.empty() ||
                          std::any_of(section.columns.begin(), section.columns.end(),
                                      [](const TableColumn& column) { return !column.blockTotal.empty(); });
    if (ofBlocks && section.block.empty()) return layoutError(section.origin, "manca block = testo del blocco");
    return {};
}

Result<> Reader::beginSpace(const Words& words) {
    const auto height = words.size() == 1 ? positive(words.front()) : std::nullopt;
    if (!height) return fail("altezza non valida: [space mm]");
    layout_.sections.emplace_back(SpaceSection{*height});
    return {};
}

Result<> Reader::beginNewPage(const Words& words) {
    if (!words.empty()) return fail("[new-page] non ha opzioni");
    layout_.sections.emplace_back(NewPageSection{});
    return {};
}

}  // namespace

Result<Layout> readLayout(std::string_view name, const LayoutSource& source) {
    const auto lines = layoutLines(name, source);
    if (!lines) return lines.error();
    return Reader().read(*lines);
}

Error layoutError(const Origin& origin, const std::string& what) {
    return {Failure::damaged, origin.file + ":" + std::to_string(origin.line) + ": " + what};
}

}  // namespace vorbano
