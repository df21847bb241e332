#pragma once

#include <map>
#include <string>

class QWidget;

namespace vorbano {

/// Builds what one .ui holds into an empty widget.
using FormBuilder = void (*)(QWidget& content);

/// The windows compiled into the program, by the name of their form. Made at build time from the .ui files that the
/// screens' folders hand in with vorbano_form().
[[nodiscard]] std::map<std::string, FormBuilder> deliveredForms();

/// Builds what the window of that name holds; false when there is none.
bool buildForm(const std::string& name, QWidget& content);

/// Adds a window that was compiled elsewhere.
void addForm(const std::string& name, FormBuilder builder);

}  // namespace vorbano
