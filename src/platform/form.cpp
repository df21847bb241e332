#include "platform/form.h"

#include <algorithm>

namespace vorbano {

void Form::setCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    if (watcher_ != nullptr) watcher_->captionChanged();
}

Control* Form::find(std::string_view name) const {
    const auto at = std::find_if(controls_.begin(), controls_.end(),
                                 [&](const Control* control) { return control->name() == name; });
    return at == controls_.end() ? nullptr : *at;
}

void Form::focus(Control& control) {
    if (focused_ == &control || !control.takesFocus()) return;
    const unsigned move = ++focusMoves_;
    if (Control* old = focused_) {
        focused_ = nullptr;
        old->lostFocus.fire();
        if (move != focusMoves_) return;
        if (!control.takesFocus()) {
            settleFocus();
            return;
        }
    }
    focused_ = &control;
    if (watcher_ != nullptr) watcher_->focusMoved();
    control.gotFocus.fire();
}

Control* Form::neighbour(const Control* from, int step) const {
    const int count = static_cast<int>(controls_.size());
    const auto at = std::find(controls_.begin(), controls_.end(), from);
    int index = at == controls_.end() ? (step > 0 ? -1 : count) : static_cast<int>(at - controls_.begin());
    for (int tried = 0; tried < count; ++tried) {
        index = (index + step + count) % count;
        Control* candidate = controls_[static_cast<std::size_t>(index)];
        if (candidate->takesFocus()) return candidate;
    }
    return nullptr;
}

Control* Form::after(const Control* from) const { return neighbour(from, 1); }

Control* Form::before(const Control* from) const { return neighbour(from, -1); }

void Form::settleFocus() {
    if (focused_ != nullptr && focused_->takesFocus()) return;
    // What can no longer hold the focus is left without its leave: nothing was finished in it.
    Control* next = after(focused_);
    focused_ = nullptr;
    if (next != nullptr && next->takesFocus()) focus(*next);
}

void Form::leaveAndReturn() {
    Control* old = focused_;
    if (old == nullptr) return;
    const unsigned move = ++focusMoves_;
    focused_ = nullptr;
    old->lostFocus.fire();
    if (move == focusMoves_) focus(*old);
}

void Form::open() {
    open_ = true;
    focused_ = nullptr;
}

void Form::close() {
    if (!open_) return;
    open_ = false;
    closing.fire();
    if (watcher_ != nullptr) watcher_->closed();
}

}  // namespace vorbano
