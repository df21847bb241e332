#pragma once

// The screen of the deletion on a desk of its own, and elections laid out file by file. What a file holds does not
// matter here, only whether it holds a record, so its bytes are zeros.

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "maintenance/frmCancella.h"
#include "support/bytes.h"
#include "support/results.h"
#include "support/screen_desk.h"

namespace vorbano::test {

using Names = std::vector<std::string>;

inline const std::string electionFolder = "Elezioni/Europee/09-06-24";

/// A group as the office tells it: its box, the width of a record of its first file, its files.
struct ToldGroup {
    const char* box;
    const char* caption;
    std::size_t width;
    Names files;
};
/// In the order of removal.
[[nodiscard]] inline const std::vector<ToldGroup>& toldGroups() {
    static const std::vector<ToldGroup> groups = {
        {"Check2",
         "Straordinario - Autorizzazione e Liquidazione",
         301,
         {"09-06-24.vbn", "Meirin.vbn", "Duedate.vbn", "Quartum.vbn", "Pentium.vbn"}},
        {"Check3", "Conguaglio straordinario", 145, {"Congs.vbn"}},
        {"Check4", "Seggi normali 1° turno", 216, {"Seggi.vbn", "SosSeggi.vbn"}},
        {"Check5", "Seggi normali ballottaggio", 246, {"SegSuf.vbn", "SosSegSuf.vbn"}},
        {"Check6", "Seggi speciali 1° turno", 216, {"Speciale.vbn", "SosSpec.vbn"}},
        {"Check7", "Seggi speciali ballottaggio", 224, {"SpecSufr.vbn", "SspecSufr.vbn"}},
        {"Check8", "Allegato A - contributi e ritenute", 95, {"Versum.vbn"}},
        {"Check9", "Rendiconto", 152, {"Rendi.vbn", "DivSt.vbn", "Tprov.vbn"}},
    };
    return groups;
}
/// Files of an election that stand in no group.
inline const Names ungrouped = {"Congs1.vbn", "Versumc.vbn", "Meirinc.vbn", "Reversum.vbn", "RevMeirin.vbn"};

inline void layFile(FileSystem& disk, std::string_view name, std::size_t length,
                    const std::string& folder = electionFolder) {
    EXPECT_TRUE(lay(disk, folder + "/" + std::string(name), std::string(length, '\0'))) << name;
}
inline void layGroup(FileSystem& disk, const ToldGroup& group) {
    for (const std::string& name : group.files) layFile(disk, name, group.width);
}
/// All groups, and what stands in none.
inline void layAll(FileSystem& disk) {
    for (const ToldGroup& group : toldGroups()) layGroup(disk, group);
    for (const std::string& name : ungrouped) layFile(disk, name, 95);
}

/// Names in the folder of the election, or "(no folder)".
[[nodiscard]] inline Names namesIn(FileSystem& disk, const std::string& folder = electionFolder) {
    const auto entries = disk.list(folder);
    if (!entries) return {"(no folder)"};
    Names names;
    for (const Entry& entry : *entries) names.push_back(entry.name);
    return names;
}

inline constexpr const char* questionTitle = "CANCELLAZIONE FILE";
inline constexpr const char* question =
    "ATTENZIONE!\nSTATE PER CANCELLARE IN MODO DEFINITIVO\nI FILE RELATIVI ALLE OPZIONI SELEZIONATE\nCONTINUARE?";

class CancellaTest : public ScreenDesk<frmCancella> {
  protected:
    void identify() {
        choose("Combo1", "Europee");
        choose("Combo2", "09-06-24");
    }
    void search() {
        open();
        identify();
        click("cmdRicerca");
    }
    void execute() {
        box(questionTitle, question, Answer::yes);
        box("Cancellazione", "Eseguita con successo!");
        click("cmdEsegui");
    }
    /// The boxes that can be ticked, "2 4" for Check2 and Check4.
    std::string enabledBoxes() {
        std::string all;
        for (char digit = '2'; digit <= '9'; ++digit) {
            if (enabled(std::string("Check") + digit))
                all += all.empty() ? std::string(1, digit) : std::string(" ") + digit;
        }
        return all;
    }
    std::string tickedBoxes() {
        std::string all;
        for (char digit = '1'; digit <= '9'; ++digit) {
            if (ticked(std::string("Check") + digit))
                all += all.empty() ? std::string(1, digit) : std::string(" ") + digit;
        }
        return all;
    }
    Lines items(std::string_view name) { return dynamic_cast<ComboBox&>(control(name)).items(); }
};

}  // namespace vorbano::test
