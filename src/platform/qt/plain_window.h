#pragma once

class QWidget;

namespace vorbano {

class Form;

/// A plain window for a form that has no designed one: every control in a grid, in order of declaration.
void buildPlainWindow(const Form& form, QWidget& content);

}  // namespace vorbano
