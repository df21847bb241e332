#include "scenario/scenario_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "scenario/line_scanner.h"

namespace vorbano {

namespace {

using Words = std::vector<Word>;
/// What a line consists of: its words without the keyword, and what stands behind its "=".
struct Operands {
    Words words;
    std::string_view left;  ///< the words as they are written
    std::optional<std::string> value;
};

constexpr std::array<std::pair<std::string_view, State>, 7> states = {{{"enabled", State::enabled},
                                                                       {"disabled", State::disabled},
                                                                       {"visible", State::visible},
                                                                       {"hidden", State::hidden},
                                                                       {"ticked", State::ticked},
                                                                       {"unticked", State::unticked},
                                                                       {"focused", State::focused}}};
/// "Si" for the keyboards that have no "ì". The first word of an answer is the one on its button.
constexpr std::array<std::pair<std::string_view, Answer>, 4> answers = {
    {{"OK", Answer::ok}, {"Sì", Answer::yes}, {"Si", Answer::yes}, {"No", Answer::no}}};

template <class Table>
auto lookUp(const Table& table, std::string_view word) -> std::optional<decltype(table[0].second)> {
    const auto at = std::find_if(table.begin(), table.end(), [&](const auto& row) { return row.first == word; });
    if (at == table.end()) return std::nullopt;
    return at->second;
}

bool put(int& into, std::string_view word) {
    const auto number = numberOf(word);
    if (number) into = *number;
    return number.has_value();
}

bool readNothing(const Operands& from, Line&) { return from.words.empty() && !from.value; }

bool readName(const Operands& from, Line& line) {
    if (from.words.size() != 1 || from.value) return false;
    line.name = from.words[0].text;
    return !line.name.empty();
}

/// A folder or a picture; its name may hold blanks.
bool readPath(const Operands& from, Line& line) {
    if (from.words.empty() || from.value) return false;
    line.name = from.words.size() == 1 ? from.words[0].text : std::string(from.left);
    return !line.name.empty();
}

bool readNameAndText(const Operands& from, Line& line) {
    if (from.words.size() != 1 || !from.value) return false;
    line.name = from.words[0].text;
    line.text = *from.value;
    return std::none_of(line.text.begin(), line.text.end(),
                        [](char one) { return static_cast<unsigned char>(one) < ' '; });
}

bool readNameAndCount(const Operands& from, Line& line) {
    if (from.words.size() != 1 || !from.value) return false;
    line.name = from.words[0].text;
    return put(line.count, *from.value);
}

bool readPick(const Operands& from, Line& line) {
    if (from.words.size() != 3 || from.value) return false;
    line.name = from.words[0].text;
    return put(line.count, from.words[1].text) && put(line.column, from.words[2].text);
}

bool readBox(const Operands& from, Line& line) {
    if (from.words.size() != 4 || from.value || from.words[2].text != "->") return false;
    if (!from.words[0].quoted || !from.words[1].quoted) return false;
    line.title = from.words[0].text;
    line.text = from.words[1].text;
    const auto answer = lookUp(answers, from.words[3].text);
    if (answer) line.answer = *answer;
    return answer.has_value();
}

bool readReport(const Operands& from, Line& line) {
    const std::size_t words = from.words.size();
    if ((words != 2 && words != 3) || from.value) return false;
    line.name = from.words[0].text;
    if (words == 3) {
        if (!from.words[1].quoted) return false;
        line.title = from.words[1].text;
    }
    const std::string& where = from.words[words - 1].text;
    line.preview = where == "preview";
    return line.preview || where == "print";
}

bool readCell(const Operands& from, Line& line) {
    if (from.words.size() != 3 || !from.value) return false;
    line.name = from.words[0].text;
    line.field = from.words[2].text;
    line.text = *from.value;
    return put(line.count, from.words[1].text) && line.count > 0;
}

/// The path before the last `others` words; a path may hold blanks.
bool readPathBefore(const Operands& from, std::size_t others, Line& line) {
    if (from.words.size() <= others || !from.value) return false;
    const std::size_t pathWords = from.words.size() - others;
    if (pathWords == 1) {
        line.name = from.words[0].text;
    } else {
        const std::string_view last = from.words[pathWords - 1].source;
        line.name = from.left.substr(0, static_cast<std::size_t>(last.data() - from.left.data()) + last.size());
    }
    return !line.name.empty();
}

bool readFile(const Operands& from, Line& line) {
    if (!readPathBefore(from, 0, line)) return false;
    line.missing = *from.value == "missing";
    return line.missing || put(line.count, *from.value);
}

bool readBytes(const Operands& from, Line& line) {
    if (!readPathBefore(from, 1, line)) return false;
    const auto bytes = bytesOf(*from.value);
    if (bytes) line.text = *bytes;
    return bytes && put(line.count, from.words.back().text);
}

bool readRecord(const Operands& from, Line& line) {
    if (!readPathBefore(from, 2, line)) return false;
    line.field = from.words.back().text;
    line.text = *from.value;
    return put(line.count, from.words[from.words.size() - 2].text) && line.count > 0;
}

bool readExpect(const Operands& from, Line& line) {
    if (from.words.empty()) return false;
    line.name = from.words[0].text;
    if (!from.value) {
        const auto state = from.words.size() == 2 ? lookUp(states, from.words[1].text) : std::nullopt;
        line.kind = LineKind::expectState;
        if (state) line.state = *state;
        return state.has_value();
    }
    line.text = *from.value;
    switch (from.words.size()) {
        case 1:
            line.kind = line.name == "caption" ? LineKind::expectCaption : LineKind::expectText;
            return true;
        case 2:
            line.kind = LineKind::expectItems;
            line.name = from.words[1].text;
            return from.words[0].text == "items" && put(line.count, *from.value);
        case 3:
            line.kind = LineKind::expectCell;
            return put(line.count, from.words[1].text) && put(line.column, from.words[2].text);
        default:
            return false;
    }
}

bool readToday(const Operands& from, Line& line) {
    if (from.words.size() != 1 || from.value) return false;
    const auto date = isoDate(from.words[0].text);
    if (date) line.date = *date;
    return date.has_value();
}

/// One row a keyword: what the line looks like, and what reads it.
struct Syntax {
    std::string_view keyword;
    std::string_view form;
    LineKind kind;
    bool (*read)(const Operands&, Line&);
};

constexpr Syntax language[] = {
    {"menu", "menu ENTRY", LineKind::menu, readName},
    {"screen", "screen WINDOW", LineKind::screen, readName},
    {"type", "type FIELD = text", LineKind::type, readNameAndText},
    {"leave", "leave", LineKind::leave, readNothing},
    {"click", "click CONTROL", LineKind::click, readName},
    {"tick", "tick BOX", LineKind::tick, readName},
    {"untick", "untick BOX", LineKind::untick, readName},
    {"choose", "choose LIST = text", LineKind::choose, readNameAndText},
    {"pick", "pick GRID row column", LineKind::pick, readPick},
    {"press", "press FRAME", LineKind::press, readName},
    {"move", "move FRAME", LineKind::move, readName},
    {"tab", "tab PANEL = page", LineKind::tab, readNameAndCount},
    {"close", "close", LineKind::close, readNothing},
    {"box", "box \"title\" \"text\" -> OK | Sì | No", LineKind::box, readBox},
    {"report", "report LAYOUT \"title\" preview | print", LineKind::report, readReport},
    {"rows", "rows TABLE = number", LineKind::rows, readNameAndCount},
    {"cell", "cell TABLE row FIELD = value", LineKind::cell, readCell},
    {"save", "save NAME.pdf", LineKind::save, readPath},
    {"end", "end", LineKind::end, readNothing},
    {"expect",
     "expect CONTROL = text | expect CONTROL enabled|disabled|visible|hidden|ticked|unticked|focused | expect GRID row "
     "column = text | expect items LIST = number | expect caption = text",
     LineKind::expectText, readExpect},
    {"file", "file PATH = size | file PATH = missing", LineKind::file, readFile},
    {"bytes", "bytes PATH offset = hex", LineKind::bytes, readBytes},
    {"record", "record PATH number FIELD = text", LineKind::record, readRecord},
    {"screenshot", "screenshot NAME.png", LineKind::screenshot, readPath},
    {"today", "today YYYY-MM-DD", LineKind::today, readToday},
    {"copy", "copy FOLDER", LineKind::copy, readPath},
};

const Syntax* syntaxOf(std::string_view keyword) {
    const auto* at = std::find_if(std::begin(language), std::end(language),
                                  [&](const Syntax& one) { return one.keyword == keyword; });
    return at == std::end(language) ? nullptr : at;
}

/// Reads one line that is not empty; what was expected instead, or nothing when it is a line of the language.
std::optional<std::string> readLine(const LineParts& parts, Line& line) {
    if (!isUtf8(line.source)) return "text in UTF-8";
    const std::string_view keyword = parts.left.substr(0, parts.left.find_first_of(" \t\""));
    const Syntax* syntax = syntaxOf(keyword);
    if (syntax == nullptr) return "a line of the language";
    Operands operands;
    operands.left = stripped(parts.left.substr(keyword.size()));
    auto words = wordsOf(operands.left);
    if (!words) return std::string(syntax->form);
    operands.words = std::move(*words);
    if (parts.right) {
        operands.value = valueOf(*parts.right);
        if (!operands.value) return std::string(syntax->form);
    }
    line.kind = syntax->kind;
    if (!syntax->read(operands, line)) return std::string(syntax->form);
    return std::nullopt;
}

/// Which lines may stand where: the lines of a report stand together up to its `end`, and nothing is done meanwhile.
class Order {
  public:
    /// What was expected instead, or nothing.
    std::optional<std::string> accept(const Line& line) {
        const bool belongsToReport = line.kind == LineKind::rows || line.kind == LineKind::cell ||
                                     line.kind == LineKind::save || line.kind == LineKind::end;
        if (open_ == 0) {
            if (belongsToReport) return "a report before it";
            if (line.kind == LineKind::report) open_ = line.number;
            return std::nullopt;
        }
        if (!belongsToReport && line.kind <= LineKind::report) {
            return "the end of the report of line " + std::to_string(open_);
        }
        if (line.kind == LineKind::end) open_ = 0;
        return std::nullopt;
    }
    [[nodiscard]] bool isOpen() const { return open_ != 0; }

  private:
    int open_ = 0;  ///< line of the report; 0 when none is open
};

}  // namespace

std::string_view inWords(State state) {
    return std::find_if(states.begin(), states.end(), [&](const auto& row) { return row.second == state; })->first;
}

std::string_view inWords(Answer answer) {
    return std::find_if(answers.begin(), answers.end(), [&](const auto& row) { return row.second == answer; })->first;
}

Scenario readScenario(std::string_view text, std::string_view name) {
    Scenario scenario{std::string(name), {}, {}};
    const auto refuse = [&](int number, std::string_view expected, std::string_view was) {
        scenario.errors.push_back(scenario.name + ":" + std::to_string(number) + ": expected " + std::string(expected) +
                                  ", was " + std::string(was));
    };
    Order order;
    int number = 0;
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view source = stripped(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        ++number;
        const LineParts parts = cutLine(source);
        if (parts.left.empty() && !parts.right) continue;
        Line line;
        line.file = scenario.name;
        line.number = number;
        line.source = source;
        auto expected = readLine(parts, line);
        if (!expected) expected = order.accept(line);
        if (expected) {
            refuse(number, *expected, source);
        } else {
            scenario.lines.push_back(std::move(line));
        }
    }
    if (order.isOpen()) refuse(std::max(number, 1), "the end of the report", "the end of the file");
    return scenario;
}

}  // namespace vorbano
