#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/form.h"

class QProgressBar;
class QWidget;

namespace vorbano {

/// Hour pools as bars: each QProgressBar of a window with the properties `valueFrom` and `maximumFrom` (names of labels
/// or text boxes) follows the numbers of those controls.
class WindowBars {
  public:
    WindowBars(const Form& form, const QWidget& window);

    /// The control changed: the bars that look at it are drawn anew.
    void follow(const Control& control);
    void followAll();
    /// Names in the properties that no label or text box has.
    [[nodiscard]] const std::vector<std::string>& unknownNames() const { return unknownNames_; }

  private:
    struct Bar {
        QProgressBar* widget;
        const Control* value;
        const Control* maximum;
    };
    [[nodiscard]] const Control* source(const Form& form, const QProgressBar& bar, const char* property);
    static void draw(const Bar& bar);

    std::vector<Bar> bars_;
    std::vector<std::string> unknownNames_;
};

}  // namespace vorbano
