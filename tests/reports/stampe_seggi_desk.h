#pragma once

#include <string>
#include <utility>

#include "stampe_desk.h"
#include "station_files.h"

namespace vorbano::test {

/// The two boxes of one choice, as the clerk ticks them.
struct Boxes {
    CheckBox frmTutteStampe::*stations;
    CheckBox frmTutteStampe::*round;
};
inline constexpr Boxes normalFirstBoxes{&frmTutteStampe::Check1, &frmTutteStampe::Check3};
inline constexpr Boxes normalRunOffBoxes{&frmTutteStampe::Check1, &frmTutteStampe::Check4};
inline constexpr Boxes specialFirstBoxes{&frmTutteStampe::Check2, &frmTutteStampe::Check3};
inline constexpr Boxes specialRunOffBoxes{&frmTutteStampe::Check2, &frmTutteStampe::Check4};

/// The screen "Stampe" over an election with polling stations.
class StampeSeggiDesk : public StampeDesk {
  protected:
    /// Lays the stations of an election of this kind and searches for it.
    void find(const std::string& kind) {
        ASSERT_TRUE(layStations(files, kind));
        open();
        search(kind, "09-06-24");
    }
    void choose(const Boxes& boxes) {
        tick(screen().*boxes.stations);
        tick(screen().*boxes.round);
    }
    using StampeDesk::choose;
    void expectJob(const std::string& layout, const std::string& title, Destination destination) {
        ASSERT_FALSE(printing.jobs.empty()) << layout;
        EXPECT_EQ(printing.jobs.back().layout, layout);
        EXPECT_EQ(printing.jobs.back().title, title);
        EXPECT_EQ(printing.jobs.back().destination, destination);
    }
};

}  // namespace vorbano::test
