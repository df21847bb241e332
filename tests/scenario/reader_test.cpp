#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "scenario/scenario_reader.h"

namespace vorbano {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// The only line of a scenario.
Line lineOf(const std::string& text) {
    Scenario scenario = readScenario(text, "x.scenario");
    EXPECT_THAT(scenario.errors, IsEmpty());
    EXPECT_THAT(scenario.lines, SizeIs(1));
    return scenario.lines.empty() ? Line{} : scenario.lines.front();
}

std::vector<std::string> errorsOf(const std::string& text) { return readScenario(text, "x.scenario").errors; }

TEST(ScenarioReader, EmptyLinesAndCommentsAreNoLines) {
    const Scenario scenario = readScenario("\n# a comment = with signs\n   \t\n  # another\n", "x.scenario");
    EXPECT_THAT(scenario.lines, IsEmpty());
    EXPECT_THAT(scenario.errors, IsEmpty());
}

TEST(ScenarioReader, ALineKnowsItsFileItsNumberAndItsText) {
    const Scenario scenario = readScenario("# first\n\n  leave  \r\nclose", "folder/x.scenario");
    ASSERT_THAT(scenario.lines, SizeIs(2));
    EXPECT_EQ(scenario.lines[0].file, "folder/x.scenario");
    EXPECT_EQ(scenario.lines[0].number, 3);
    EXPECT_EQ(scenario.lines[0].source, "leave");
    EXPECT_EQ(scenario.lines[1].number, 4);
    EXPECT_EQ(scenario.lines[1].kind, LineKind::close);
}

TEST(ScenarioReader, AByteOrderMarkIsNoText) { EXPECT_EQ(lineOf("\xEF\xBB\xBFleave").kind, LineKind::leave); }

struct Named {
    const char* text;
    LineKind kind;
    const char* name;
};

class LinesWithAName : public testing::TestWithParam<Named> {};

TEST_P(LinesWithAName, AreRead) {
    const Line line = lineOf(GetParam().text);
    EXPECT_EQ(line.kind, GetParam().kind);
    EXPECT_EQ(line.name, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    All, LinesWithAName,
    testing::Values(Named{"menu mnu1°TurnoN", LineKind::menu, "mnu1°TurnoN"},
                    Named{"screen frmCompStraord", LineKind::screen, "frmCompStraord"},
                    Named{"click cmdAttiva  # comment", LineKind::click, "cmdAttiva"},
                    Named{"tick Check2", LineKind::tick, "Check2"}, Named{"untick Check2", LineKind::untick, "Check2"},
                    Named{"press Frame1", LineKind::press, "Frame1"}, Named{"move Frame1", LineKind::move, "Frame1"},
                    Named{"screenshot authorisation.png", LineKind::screenshot, "authorisation.png"},
                    Named{"screenshot with blanks.png", LineKind::screenshot, "with blanks.png"},
                    Named{"copy anno 2013", LineKind::copy, "anno 2013"},
                    Named{"copy \"anno  2013\"", LineKind::copy, "anno  2013"}));

TEST(ScenarioReader, ATypedTextGoesUpToTheEndOfTheLine) {
    const Line line = lineOf("type txtIndennità =   via Roma, 1 = x  ");
    EXPECT_EQ(line.kind, LineKind::type);
    EXPECT_EQ(line.name, "txtIndennità");
    EXPECT_EQ(line.text, "via Roma, 1 = x");
}

TEST(ScenarioReader, ATextInQuotesKeepsItsBlanksAndKnowsThreeSigns) {
    EXPECT_EQ(lineOf(R"(expect Label1 = "  a\nb \"c\" \\ ")").text, "  a\nb \"c\" \\ ");
}

TEST(ScenarioReader, OutsideQuotesABackslashIsItself) { EXPECT_EQ(lineOf(R"(expect Label31 = \)").text, "\\"); }

TEST(ScenarioReader, ASignOfTheClerkIsNoComment) {
    EXPECT_EQ(lineOf("type txtDataEle = #").text, "#");
    EXPECT_EQ(lineOf("type txtDataEle = 09#06").text, "09#06");
    EXPECT_EQ(lineOf("type txtDataEle = 09 #06").text, "09 #06");
    EXPECT_EQ(lineOf("type txtDataEle = \"# 9\"").text, "# 9");
}

TEST(ScenarioReader, ACommentCanFollowAText) {
    EXPECT_EQ(lineOf("type txtDataEle = 09/06/24   # the date = of June").text, "09/06/24");
    EXPECT_EQ(lineOf("type txtDataEle = \"09\" # why").text, "09");
    EXPECT_EQ(lineOf("expect txtDataEle = # nothing in it").text, "");
}

TEST(ScenarioReader, ATextCanBeEmpty) { EXPECT_EQ(lineOf("type txtDataEle =").text, ""); }

TEST(ScenarioReader, AChoice) {
    const Line line = lineOf("choose Combo1 = Europee");
    EXPECT_EQ(line.kind, LineKind::choose);
    EXPECT_EQ(line.text, "Europee");
}

TEST(ScenarioReader, APickedCell) {
    const Line line = lineOf("pick MSFlexGrid1 3 0");
    EXPECT_EQ(line.kind, LineKind::pick);
    EXPECT_EQ(line.count, 3);
    EXPECT_EQ(line.column, 0);
}

TEST(ScenarioReader, APageOfAPanel) {
    const Line line = lineOf("tab SSTab1 = 1");
    EXPECT_EQ(line.kind, LineKind::tab);
    EXPECT_EQ(line.count, 1);
}

TEST(ScenarioReader, ABoxHasTitleTextAndAnswer) {
    const Line line = lineOf(R"(box "Titolo = 1" "Prima\nSeconda # x" -> Sì)");
    EXPECT_EQ(line.kind, LineKind::box);
    EXPECT_EQ(line.title, "Titolo = 1");
    EXPECT_EQ(line.text, "Prima\nSeconda # x");
    EXPECT_EQ(line.answer, Answer::yes);
    EXPECT_EQ(lineOf(R"(box "" "" -> OK)").answer, Answer::ok);
    EXPECT_EQ(lineOf(R"(box "a" "b" -> No)").answer, Answer::no);
    EXPECT_EQ(lineOf(R"(box "a" "b" -> Si)").answer, Answer::yes);
}

TEST(ScenarioReader, AReportWithItsLines) {
    const Scenario scenario = readScenario(
        "report impstr.rpt \"IMPEGNO DI SPESA\" preview\n  rows Tabella3 = 12\n"
        "  cell Tabella3 1 Dovuto = 170,05\n  screenshot a.png\n  save impegno.pdf\nend\n"
        "report tariffe.rpt print\nend\n",
        "x");
    EXPECT_THAT(scenario.errors, IsEmpty());
    ASSERT_THAT(scenario.lines, SizeIs(8));
    EXPECT_EQ(scenario.lines[0].name, "impstr.rpt");
    EXPECT_EQ(scenario.lines[0].title, "IMPEGNO DI SPESA");
    EXPECT_TRUE(scenario.lines[0].preview);
    EXPECT_EQ(scenario.lines[1].count, 12);
    EXPECT_EQ(scenario.lines[2].name, "Tabella3");
    EXPECT_EQ(scenario.lines[2].count, 1);
    EXPECT_EQ(scenario.lines[2].field, "Dovuto");
    EXPECT_EQ(scenario.lines[2].text, "170,05");
    EXPECT_EQ(scenario.lines[4].name, "impegno.pdf");
    EXPECT_EQ(scenario.lines[6].title, "");
    EXPECT_FALSE(scenario.lines[6].preview);
}

TEST(ScenarioReader, ExpectationsOfAllKinds) {
    EXPECT_EQ(lineOf("expect txtSonoDip = 2").kind, LineKind::expectText);
    EXPECT_EQ(lineOf("expect caption = Liquidazione").kind, LineKind::expectCaption);
    const Line items = lineOf("expect items Combo2 = 3");
    EXPECT_EQ(items.kind, LineKind::expectItems);
    EXPECT_EQ(items.name, "Combo2");
    EXPECT_EQ(items.count, 3);
    const Line cell = lineOf("expect MSFlexGrid1 1 2 = 20,00");
    EXPECT_EQ(cell.kind, LineKind::expectCell);
    EXPECT_EQ(cell.count, 1);
    EXPECT_EQ(cell.column, 2);
    EXPECT_EQ(cell.text, "20,00");
}

TEST(ScenarioReader, ExpectationsOfAState) {
    const std::pair<const char*, State> words[] = {{"enabled", State::enabled}, {"disabled", State::disabled},
                                                   {"visible", State::visible}, {"hidden", State::hidden},
                                                   {"ticked", State::ticked},   {"unticked", State::unticked},
                                                   {"focused", State::focused}};
    for (const auto& [word, state] : words) {
        const Line line = lineOf(std::string("expect cmdSalva ") + word);
        EXPECT_EQ(line.kind, LineKind::expectState);
        EXPECT_EQ(line.state, state) << word;
        EXPECT_EQ(inWords(state), word);
    }
}

TEST(ScenarioReader, Files) {
    const Line sized = lineOf("file Elezioni/Europee/09-06-24/Meirin.vbn = 86");
    EXPECT_EQ(sized.kind, LineKind::file);
    EXPECT_EQ(sized.name, "Elezioni/Europee/09-06-24/Meirin.vbn");
    EXPECT_EQ(sized.count, 86);
    EXPECT_FALSE(sized.missing);
    EXPECT_TRUE(lineOf("file Params/Ente.dat = missing").missing);
    EXPECT_EQ(lineOf("file Elezioni/due  nomi/a.vbn = 1").name, "Elezioni/due  nomi/a.vbn");
}

TEST(ScenarioReader, BytesInHexWithOrWithoutBlanks) {
    const Line line = lineOf("bytes Params/PmDip.dat 30 = 10 27 00aF");
    EXPECT_EQ(line.name, "Params/PmDip.dat");
    EXPECT_EQ(line.count, 30);
    EXPECT_EQ(line.text, std::string("\x10\x27\x00\xAF", 4));
}

TEST(ScenarioReader, ARecordsField) {
    const Line line = lineOf("record Elezioni/Europee/09-06-24/09-06-24.vbn 2 txtDovuto = 170,05");
    EXPECT_EQ(line.kind, LineKind::record);
    EXPECT_EQ(line.name, "Elezioni/Europee/09-06-24/09-06-24.vbn");
    EXPECT_EQ(line.count, 2);
    EXPECT_EQ(line.field, "txtDovuto");
    EXPECT_EQ(line.text, "170,05");
}

TEST(ScenarioReader, ADay) {
    using std::chrono::June;
    EXPECT_EQ(lineOf("today 2024-06-10").date, std::chrono::year(2024) / June / 10);
}

class NoLines : public testing::TestWithParam<const char*> {};

TEST_P(NoLines, AreRefusedWithFileAndLine) {
    const Scenario scenario = readScenario(std::string("leave\n") + GetParam() + "\nleave\n", "x.scenario");
    EXPECT_THAT(scenario.errors, ElementsAre(testing::StartsWith("x.scenario:2: expected ")));
    EXPECT_THAT(scenario.errors, ElementsAre(HasSubstr(", was ")));
    EXPECT_THAT(scenario.lines, SizeIs(2));
}

INSTANTIATE_TEST_SUITE_P(
    All, NoLines,
    testing::Values("jump", "Click cmdSalva", "= 3", "click", "click a b", "click a = b", "leave now", "close x",
                    "type txtNome", "type = 3", "type a b = 3", "type a = \"open", "type a = \"x\" y",
                    "type a = \"\\q\"", "type a = \"x\\ny\"", "choose Combo1", "pick Grid 1", "pick Grid a 1",
                    "pick Grid -1 0", "pick Grid 1 99999999999", "tab SSTab1 = x", "tab SSTab1", "tab SSTab1 = -1",
                    "box \"a\" \"b\"", "box a b -> OK", "box \"a\" \"b\" -> Yes", "box \"a\" \"b\" OK",
                    "box \"a\"\"b\" -> OK", "box \"a\" \"b -> OK", "report", "report a.rpt",
                    "report a.rpt title preview", "report a.rpt \"t\" screen", "rows T = 1", "cell T 1 F = 2",
                    "save a.pdf", "end", "expect", "expect a", "expect a broken", "expect a b = 3", "expect a b c = 3",
                    "expect items a = many", "expect a 1 2 3 = 4", "file = 3", "file a", "file a = big",
                    "file a = ", "bytes a = 00", "bytes a x = 00", "bytes a 0 = 0", "bytes a 0 = 0g",
                    "bytes a 0 =", "record a 1 = x", "record a 0 F = x", "record a x F = 1", "today",
                    "today 10/06/2024", "today 2024-02-30", "today 2024-13-01", "today 2024-6-1", "copy", "screenshot",
                    "type a = \xE8", "type a = \xC3", "type a = \xE2\x82"));

TEST(ScenarioReader, NothingIsDoneInsideAReport) {
    EXPECT_THAT(errorsOf("report a.rpt preview\nclick cmdSalva\nend\n"), ElementsAre(HasSubstr("x.scenario:2: ")));
    EXPECT_THAT(errorsOf("report a.rpt preview\nreport b.rpt preview\nend\n"), ElementsAre(HasSubstr(":2: ")));
    EXPECT_THAT(errorsOf("report a.rpt preview\nbox \"a\" \"b\" -> OK\nend\n"), ElementsAre(HasSubstr(":2: ")));
}

TEST(ScenarioReader, AReportMustEnd) {
    EXPECT_THAT(errorsOf("report a.rpt preview\nrows T = 1\n"),
                ElementsAre("x.scenario:2: expected the end of the report, was the end of the file"));
}

TEST(ScenarioReader, EveryMistakeIsTold) { EXPECT_THAT(errorsOf("jump\nleave\nfly\n"), SizeIs(2)); }

}  // namespace
}  // namespace vorbano
