#include "platform/scripted_desktop.h"

#include <utility>

namespace vorbano {

ScriptedDesktop& ScriptedDesktop::box(std::string title, std::string text, Answer answer) {
    script_.emplace_back(Box{std::move(title), std::move(text), answer});
    return *this;
}

ScriptedDesktop& ScriptedDesktop::form(std::string name, std::function<void(Form&)> play) {
    script_.emplace_back(Visit{std::move(name), std::move(play)});
    return *this;
}

void ScriptedDesktop::shut(Form& form) {
    form.close();
    if (forms_.front() == &form) forms_.pop();
}

std::vector<std::string> ScriptedDesktop::finish() {
    for (const auto& step : script_) {
        if (const auto* box = std::get_if<Box>(&step)) mistakes_.push_back("this box never came: " + box->text);
        if (const auto* visit = std::get_if<Visit>(&step)) mistakes_.push_back("this form never came: " + visit->name);
    }
    script_.clear();
    return std::exchange(mistakes_, {});
}

void ScriptedDesktop::show(Form& form) {
    forms_.push(form);
    if (!script_.empty() && std::holds_alternative<Visit>(script_.front())) {
        const Visit visit = std::get<Visit>(script_.front());
        script_.pop_front();
        if (!visit.name.empty() && visit.name != form.name())
            mistakes_.push_back("expected the form " + visit.name + ", came " + form.name());
        if (visit.play) visit.play(form);
    } else {
        mistakes_.push_back("nobody expected the form " + form.name());
    }
    form.close();
    forms_.pop();
}

void ScriptedDesktop::showBeside(Form& form) { form.open(); }

ScriptedDesktop::Answer ScriptedDesktop::boxCame(const Message& message, bool question) {
    if (script_.empty() || !std::holds_alternative<Box>(script_.front())) {
        mistakes_.push_back("nobody expected the box \"" + message.title + "\" \"" + message.text + "\"");
        return Answer::ok;
    }
    const Box box = std::get<Box>(script_.front());
    script_.pop_front();
    if (box.title != message.title || box.text != message.text) {
        mistakes_.push_back("expected \"" + box.title + "\" \"" + box.text + "\", came \"" + message.title + "\" \"" +
                            message.text + "\"");
    }
    if (question != (box.answer != Answer::ok)) mistakes_.push_back("the box \"" + box.text + "\" has other answers");
    return box.answer;
}

void ScriptedDesktop::tell(const Message& message) { boxCame(message, false); }

bool ScriptedDesktop::ask(const Message& message) { return boxCame(message, true) == Answer::yes; }

}  // namespace vorbano
