#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace vorbano {

/// What a window implements to follow its form.
class FormWatcher {
  public:
    virtual ~FormWatcher() = default;
    virtual void controlChanged(Control& control, Aspect aspect) = 0;
    virtual void focusMoved() = 0;
    virtual void captionChanged() = 0;
    virtual void closed() = 0;
};

/// A window as the program sees it. The form is the truth about focus and closing, and the window follows.
class Form : public Container {
  public:
    /// It came to the front: first shown, or back from a window above it (not from a message box).
    Event activated;
    /// It is about to close, whoever asked for it.
    Event closing;
    /// A gesture of the operator has done all that it does, and the form is still open.
    Event gestureEnded;

    Form(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(std::string caption);

    /// All controls in the order of their declaration.
    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    /// By name, exactly; nullptr when there is none.
    [[nodiscard]] Control* find(std::string_view name) const;

    /// Puts the focus on a control: lostFocus of the old one at once, then, if its procedures did not move the focus
    /// elsewhere, gotFocus of the new one. A control that cannot take the focus leaves things as they are.
    void focus(Control& control);
    /// nullptr when no control has it.
    [[nodiscard]] Control* focused() const { return focused_; }
    /// The control that Tab goes to from `from` (the first one when nullptr); nullptr when none takes the focus.
    [[nodiscard]] Control* after(const Control* from) const;
    [[nodiscard]] Control* before(const Control* from) const;
    /// Tab where there is nothing else to go to: the focused control is left and entered again.
    void leaveAndReturn();
    /// When the focused control can no longer hold the focus, it moves on to the next one.
    void settleFocus();

    /// Called by the desktop. Opens the form; the first control that can takes the focus.
    void open();
    void close();
    [[nodiscard]] bool isOpen() const { return open_; }

    /// The window that shows this form, or nullptr.
    void watchedBy(FormWatcher* watcher) { watcher_ = watcher; }
    [[nodiscard]] FormWatcher* watcher() const { return watcher_; }

    [[nodiscard]] Form& form() override { return *this; }
    [[nodiscard]] bool showsContent() const override { return true; }
    [[nodiscard]] bool enablesContent() const override { return true; }

  private:
    friend class Control;
    [[nodiscard]] Control* neighbour(const Control* from, int step) const;

    std::string name_;
    std::string caption_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    FormWatcher* watcher_ = nullptr;
    unsigned focusMoves_ = 0;
    bool open_ = false;
};

}  // namespace vorbano
