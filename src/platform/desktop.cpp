#include "platform/desktop.h"

namespace vorbano {

namespace {

void bringToFront(Form& form) {
    form.activated.fire();
    if (form.isOpen()) form.settleFocus();
}

}  // namespace

void FormStack::push(Form& form) {
    forms_.push_back(&form);
    form.open();
    bringToFront(form);
}

void FormStack::pop() {
    forms_.pop_back();
    if (Form* below = front(); below != nullptr && below->isOpen()) bringToFront(*below);
}

}  // namespace vorbano
