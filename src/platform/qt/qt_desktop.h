#pragma once

#include <QTimer>
#include <map>
#include <memory>
#include <optional>

#include "platform/desktop.h"

class QString;
class QWidget;

namespace vorbano {

class FormWindow;

/// The desk with real windows. Every form gets a FormWindow; boxes are modal above the window in front, with the
/// buttons "OK", or "Sì" and "No".
class QtDesktop : public Desktop {
  public:
    QtDesktop();
    ~QtDesktop() override;

    void show(Form& form) override;
    void showBeside(Form& form) override;
    void tell(const Message& message) override;
    bool ask(const Message& message) override;
    [[nodiscard]] std::chrono::year_month_day today() const override;

    /// The clock of the machine, unless this one is set.
    void setToday(std::chrono::year_month_day today) { today_ = today; }
    /// The form in front; nullptr when none is on show.
    [[nodiscard]] Form* front() const { return forms_.front(); }
    /// The form on show beside the others (the splash window); nullptr when none. Its window is built when the program
    /// next waits for the clerk: one that closes before that, as at a start where nothing is asked, costs none.
    [[nodiscard]] Form* beside() const;
    /// The window that shows `form` now; nullptr when it is not on show.
    [[nodiscard]] FormWindow* windowOf(const Form& form) const;
    /// The window in front, for what lies above it (a preview); nullptr when none.
    [[nodiscard]] QWidget* frontWindow() const;

  private:
    void closeBeside();
    void buildBeside();

    FormStack forms_;
    std::map<const Form*, FormWindow*> windows_;
    Form* beside_ = nullptr;
    /// Follows the form beside as long as it has no window.
    class Announced;
    std::unique_ptr<Announced> announced_;
    /// Runs out when the program next waits for the clerk.
    QTimer turn_;
    std::optional<std::chrono::year_month_day> today_;
};

}  // namespace vorbano
