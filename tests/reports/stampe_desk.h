#pragma once

#include <memory>

#include "overtime_files.h"
#include "platform/operator.h"
#include "reports/frmTutteStampe.h"
#include "reports_desk.h"
#include "support/results.h"

namespace vorbano::test {

/// The screen "Stampe" on a desk; the test opens it when the files are laid, and acts as the clerk does.
class StampeDesk : public ReportsDesk {
  protected:
    frmTutteStampe& open() {
        screen_ = std::make_unique<frmTutteStampe>(desk);
        hand_ = std::make_unique<Operator>(screen_->form);
        desktop.open(screen_->form);
        return *screen_;
    }
    void TearDown() override {
        if (screen_) desktop.shut(screen_->form);
        ReportsDesk::TearDown();
    }

    frmTutteStampe& screen() { return *screen_; }
    void click(Control& control) { EXPECT_EQ(hand_->click(control), Refusal::none) << control.name(); }
    void tick(Control& control, bool ticked = true) {
        EXPECT_EQ(hand_->tick(control, ticked), Refusal::none) << control.name();
    }
    void choose(Control& control, std::string_view line) {
        EXPECT_EQ(hand_->choose(control, line), Refusal::none) << control.name() << " " << line;
    }
    void type(Control& control, std::string_view text) {
        EXPECT_EQ(hand_->type(control, text), Refusal::none) << control.name();
    }
    void leave() { hand_->leave(); }
    void menu(Control& control) { EXPECT_EQ(hand_->menu(control), Refusal::none) << control.name(); }

    /// Chooses kind and date from the lists and searches.
    void search(const std::string& kind, const std::string& date) {
        choose(screen().Combo1, kind);
        choose(screen().Combo4, date);
        click(screen().cmdAnteprima);
    }
    /// A file of the election on show; false when it could not be laid.
    bool layElection(const std::string& kind, const std::string& date) {
        return lay(files, "Elezioni/" + kind + "/" + date + "/" + date + ".vbn", "");
    }

  private:
    std::unique_ptr<frmTutteStampe> screen_;
    std::unique_ptr<Operator> hand_;
};

}  // namespace vorbano::test
