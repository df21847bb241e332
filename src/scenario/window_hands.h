#pragma once

// A scenario on the real windows. Gestures are made with mouse and keyboard; message boxes and previews are read and
// answered as they stand on the screen.

#include "platform/qt/qt_desktop.h"
#include "scenario/player.h"

class QWidget;

namespace vorbano {

class WindowHands : public Hands {
  public:
    explicit WindowHands(QtDesktop& desktop) : desktop_(desktop) {}

    [[nodiscard]] Form* front() const override { return desktop_.front(); }
    [[nodiscard]] Form* beside() const override { return desktop_.beside(); }
    [[nodiscard]] std::string make(const Line& gesture, Form& form, Control* control) override;
    [[nodiscard]] std::string seenOtherwise(const Line& look, const Form& form, const Control& control) override;
    void setToday(std::chrono::year_month_day today) override { desktop_.setToday(today); }
    [[nodiscard]] std::string takePicture(const std::filesystem::path& file, const Form* form) override;

  private:
    QtDesktop& desktop_;
};

}  // namespace vorbano
