#include "platform/qt/form_table.h"

namespace vorbano {

namespace {

std::map<std::string, FormBuilder>& table() {
    static std::map<std::string, FormBuilder> forms = deliveredForms();
    return forms;
}

}  // namespace

bool buildForm(const std::string& name, QWidget& content) {
    const auto at = table().find(name);
    if (at == table().end()) return false;
    at->second(content);
    return true;
}

void addForm(const std::string& name, FormBuilder builder) { table()[name] = builder; }

}  // namespace vorbano
