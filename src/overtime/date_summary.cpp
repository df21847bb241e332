#include "overtime/date_summary.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace vorbano {

namespace {

constexpr std::size_t labelWidth = 13;
constexpr std::size_t columnWidth = 12;
constexpr int periodsAlways = 4;

/// The blanks of the names come and go from period to period, deliberately.
constexpr std::array<std::string_view, 5> columnNames = {"1°Periodo", "2°Periodo", "3°Periodo", "4° Periodo",
                                                         "5° Periodo"};

struct SummaryRow {
    std::string_view label;
    std::string SummaryPeriod::*figure;  ///< nullptr: a heading of the rows below it
};
constexpr std::array<SummaryRow, 8> rows = {{{"dal          ", &SummaryPeriod::dal},
                                             {"al           ", &SummaryPeriod::al},
                                             {"Monte ore    ", nullptr},
                                             {"Limite       ", &SummaryPeriod::limite},
                                             {"Individuale  ", &SummaryPeriod::individuale},
                                             {"Mensile      ", &SummaryPeriod::mensile},
                                             {"Utilizzato   ", &SummaryPeriod::utilizzato},
                                             {"Residuo      ", &SummaryPeriod::residuo}}};

/// Characters of a UTF-8 text.
std::size_t characters(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

std::string toTheRight(std::string_view text) {
    const std::size_t length = characters(text);
    return std::string(length < columnWidth ? columnWidth - length : 1, ' ').append(text);
}

/// Nothing in a column is a zero; nothing at all is a period that the election does not have.
std::string cellOf(const std::vector<SummaryPeriod>& periods, int period, std::string SummaryPeriod::*figure) {
    const auto found = std::ranges::find(periods, period, &SummaryPeriod::period);
    if (found == periods.end()) return toTheRight("-");
    const std::string& text = (*found).*figure;
    return toTheRight(text.empty() ? "0" : text);
}

}  // namespace

PlainPage dateSummary(const std::string& comune, const std::string& type, const std::string& date,
                      const std::vector<SummaryPeriod>& periods) {
    int columns = periodsAlways;
    for (const SummaryPeriod& one : periods) columns = std::max(columns, one.period);
    const std::string dashes(labelWidth + columnWidth * static_cast<std::size_t>(columns), '-');

    PlainPage page;
    page.title = "Resoconto dell'elezione " + type + " del " + date;
    if (!comune.empty()) page.heading = "Comune di " + comune;
    page.lines = {"RESOCONTO DELL'ELEZIONE: " + type + " del " + date, "SITUAZIONE DOPO LA MODIFICA", dashes};
    std::string heading(labelWidth, ' ');
    for (int period = 1; period <= columns; ++period) {
        heading += toTheRight(columnNames.at(static_cast<std::size_t>(period) - 1));
    }
    page.lines.push_back(heading);
    for (const SummaryRow& row : rows) {
        std::string line(row.label);
        for (int period = 1; row.figure != nullptr && period <= columns; ++period) {
            line += cellOf(periods, period, row.figure);
        }
        page.lines.push_back(line);
    }
    page.lines.push_back(dashes);
    return page;
}

}  // namespace vorbano
