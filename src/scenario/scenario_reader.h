#pragma once

// Reads the text of an operator scenario into lines: each is one gesture of the clerk or one look at what is there. The
// language stands as one table in scenario_reader.cpp. Standard library only, and safe on any bytes.

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorbano {

enum class LineKind : std::uint8_t {
    // gestures
    menu,
    type,
    leave,
    click,
    tick,
    untick,
    choose,
    pick,
    press,
    move,
    tab,
    close,
    // what comes inside a gesture
    box,
    report,
    rows,
    cell,
    save,
    end,
    // looks
    screen,
    expectText,
    expectState,
    expectCell,
    expectItems,
    expectCaption,
    file,
    bytes,
    record,
    screenshot,
    // the world around
    today,
    copy
};

/// What `expect NAME ...` can ask of a control besides its text.
enum class State : std::uint8_t { enabled, disabled, visible, hidden, ticked, unticked, focused };
[[nodiscard]] std::string_view inWords(State state);

/// The answers to a message box: OK to one that tells, Sì or No to a question.
enum class Answer : std::uint8_t { ok, yes, no };
[[nodiscard]] std::string_view inWords(Answer answer);

/// One line; what it does not have is left empty.
struct Line {
    std::string file;  ///< as given to the reader
    int number = 0;    ///< of the line in the file, from 1
    LineKind kind = LineKind::leave;
    std::string source;  ///< as it is written, without blanks around it

    std::string name;   ///< the control, window, table, layout, folder or picture; of file, bytes and record the path
    std::string field;  ///< of cell and record
    int count = 0;      ///< row, record, page, number of rows or items, size or offset in bytes
    int column = 0;
    std::string text;      ///< what is typed, chosen, expected; the bytes of `bytes`; the text of a box
    std::string title;     ///< of a box or a report
    bool missing = false;  ///< of file: it must not be there
    bool preview = false;  ///< of report: it goes to the preview, not to the printer
    State state = State::enabled;
    Answer answer = Answer::ok;
    std::chrono::year_month_day date{};
};

struct Scenario {
    std::string name;
    std::vector<Line> lines;
    /// "FILE:LINE: ..." for each line that is none of the language; a scenario that has any cannot be played.
    std::vector<std::string> errors;
};

/// `name` is what the lines and errors call the file.
[[nodiscard]] Scenario readScenario(std::string_view text, std::string_view name);

}  // namespace vorbano
