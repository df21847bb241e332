#pragma once

#include <map>
#include <string>

class QDialog;

namespace vorbano {

/// Builds what one .ui holds into an empty window.
using FormBuilder = void (*)(QDialog& window);

/// The windows compiled into the program, by the name of their form. Made at build time from the .ui files that the
/// screens' folders hand in with vorbano_form().
[[nodiscard]] std::map<std::string, FormBuilder> deliveredForms();

/// Builds the window of that name; false when there is none.
bool buildForm(const std::string& name, QDialog& window);

/// Adds a window that was compiled elsewhere.
void addForm(const std::string& name, FormBuilder builder);

}  // namespace vorbano
