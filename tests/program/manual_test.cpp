// The manual is held against the program: every message box with its own words, every window with a picture, every
// layout by name, and no link that leads nowhere.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "manual_pages.h"
#include "scenario/scenario_reader.h"
#include "surface_list.h"

namespace {

using namespace vorbano::test;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

const fs::path sources = VORBANO_SOURCE_DIR;
const fs::path manual = sources / "docs" / "manuale";

std::string contentOf(const fs::path& file) {
    std::ifstream source(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(source), {}};
}

std::vector<fs::path> filesIn(const fs::path& folder, const std::string& extension) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == extension) files.push_back(entry.path());
    }
    return files;
}

/// The boxes that the scenarios meet: titles and texts as they are on the screen.
std::vector<ManualMessage> readBoxes() {
    std::vector<ManualMessage> boxes;
    for (const fs::path& file : filesIn(sources / "scenarios", ".scenario")) {
        const auto scenario = vorbano::readScenario(contentOf(file), file.filename().string());
        for (const vorbano::Line& line : scenario.lines) {
            if (line.kind == vorbano::LineKind::box) boxes.push_back({line.title, line.text});
        }
    }
    return boxes;
}

const std::vector<ManualMessage>& boxesOfScenarios() {
    static const std::vector<ManualMessage> boxes = readBoxes();
    return boxes;
}

const std::vector<ManualMessage>& appendix() {
    static const std::vector<ManualMessage> messages = messagesIn(contentOf(manual / "messaggi.md"));
    return messages;
}

bool fits(const ManualMessage& box, const ManualMessage& row) {
    return vorbano::test::fits(box.title, row.title) && vorbano::test::fits(box.text, row.text);
}

/// The sources that speak to the clerk in boxes: the screens, the words of the disk's failures, the first start.
std::vector<fs::path> speakingSources() {
    std::vector<fs::path> files;
    for (const fs::path& file : filesIn(sources / "src", ".cpp")) {
        const std::string folder = file.parent_path().filename().string();
        if (folder != "qt" && folder != "scenario") files.push_back(file);
    }
    return files;
}

}  // namespace

TEST(TheMessagesOfThePage, AreReadWithTheirPartsAndLines) {
    const auto messages =
        messagesIn("| Titolo | Messaggio |\n|---|---|\n| `Err…` | `Uno … due`<br>`tre` | perché | `x` |\n");
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].title, "Err…");
    EXPECT_EQ(messages[0].text, "Uno … due\ntre");
    EXPECT_TRUE(vorbano::test::fits("  Uno 12 due   \ntre ", messages[0].text));
    EXPECT_FALSE(vorbano::test::fits("Uno 12 due\nquattro", messages[0].text));
    EXPECT_FALSE(vorbano::test::fits("valore non valido", "valore non  valido"));
    EXPECT_FALSE(vorbano::test::fits("ab", "ab…b"));
    EXPECT_THAT(fixedParts(messages[0].text), ElementsAre("Uno", "due\ntre"));
    EXPECT_THAT(wordsOfBoxes("x(\"non in un riquadro\"); d.ask({\"Volete (\" + n + \" righe) scrivere?\", t});"),
                ElementsAre("Volete (", " righe) scrivere?"));
}

TEST(TheManual, SaysEveryMessageThatAScenarioMeets) {
    std::vector<std::string> missing;
    for (const ManualMessage& box : boxesOfScenarios()) {
        const bool said = std::ranges::any_of(appendix(), [&](const ManualMessage& row) { return fits(box, row); });
        if (!said) missing.push_back(box.title + ": " + box.text);
    }
    EXPECT_THAT(missing, IsEmpty());
}

TEST(TheManual, SaysTheFixedPartsOfEveryMessageOfTheSources) {
    std::string said;
    for (const ManualMessage& row : appendix()) said += row.title + "\n" + row.text + "\n";
    std::vector<std::string> words = messagesOfNoScenario();
    for (const fs::path& file : speakingSources()) {
        const bool isWords = file.filename() == "failure_words.cpp";
        for (std::string& text : isWords ? wordsIn(contentOf(file)) : wordsOfBoxes(contentOf(file)))
            words.push_back(std::move(text));
    }
    EXPECT_GT(words.size(), 150U);
    std::vector<std::string> missing;
    for (const std::string& text : words) {
        if (said.find(trimmedLines(text)) == std::string::npos) missing.push_back(text);
    }
    EXPECT_THAT(missing, IsEmpty());
}

TEST(TheManual, HasNoMessageThatTheProgramDoesNotSay) {
    const std::vector<ManualMessage>& boxes = boxesOfScenarios();
    std::string written;
    for (const fs::path& file : speakingSources()) {
        for (const std::string& text : wordsIn(contentOf(file))) written += trimmedLines(text) + "\n";
    }
    std::vector<std::string> invented;
    for (const ManualMessage& row : appendix()) {
        if (std::ranges::any_of(boxes, [&](const ManualMessage& box) { return fits(box, row); })) continue;
        for (const std::string& part : fixedParts(row.text)) {
            if (written.find(part) == std::string::npos) invented.push_back(part);
        }
    }
    EXPECT_THAT(invented, IsEmpty());
}

TEST(TheManual, ShowsEveryWindow) {
    const std::string page = contentOf(manual / "documenti.md");
    std::vector<std::string> missing;
    for (const std::string& caption : listSurfaces(sources).captions) {
        const std::size_t row = page.find("| `" + caption + "` |");
        const std::size_t end = page.find('\n', row);
        const bool pictured =
            row != std::string::npos && page.substr(row, end - row).find(".png)") != std::string::npos;
        if (!pictured) missing.push_back(caption);
    }
    EXPECT_THAT(missing, IsEmpty());
}

TEST(TheManual, NamesEveryLayout) {
    const std::string page = contentOf(manual / "documenti.md");
    std::vector<std::string> missing;
    for (const fs::path& file : filesIn(sources / "installation" / "Stampe", ".rpt")) {
        const std::string name = file.filename().string();
        if (page.find("`" + name + "`") == std::string::npos) missing.push_back(name);
    }
    EXPECT_THAT(missing, IsEmpty());
}

TEST(TheManual, HasNoDeadLinkAndNoForgottenPicture) {
    const auto pages = manualPages(manual);
    std::vector<std::string> dead;
    std::set<std::string> used;
    for (const auto& [name, page] : pages) {
        const std::vector<std::string> links = linksIn(page);
        used.insert(links.begin(), links.end());
        for (const std::string& link : links) {
            const std::size_t hash = std::min(link.find('#'), link.size());
            const std::string file = hash == 0 ? name : link.substr(0, hash);
            const bool anchored = hash == link.size() ||
                                  (pages.contains(file) && anchorsIn(pages.at(file)).contains(link.substr(hash + 1)));
            if (!fs::exists(manual / file) || !anchored) dead.push_back(name + ": " + link);
        }
    }
    EXPECT_THAT(dead, IsEmpty());
    std::vector<std::string> forgotten;
    for (const fs::path& picture : filesIn(manual, ".png")) {
        if (!used.contains(picture.filename().string())) forgotten.push_back(picture.filename().string());
    }
    EXPECT_THAT(forgotten, IsEmpty());
}
