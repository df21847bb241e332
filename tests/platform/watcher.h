#pragma once

#include <string>
#include <vector>

#include "platform/form.h"

/// A window that only writes down what it is told.
struct Watcher : vorbano::FormWatcher {
    std::vector<std::string> told;

    void controlChanged(vorbano::Control& control, vorbano::Aspect aspect) override {
        told.push_back(control.name() + " " + std::to_string(static_cast<int>(aspect)));
    }
    void focusMoved() override { told.emplace_back("focus"); }
    void captionChanged() override { told.emplace_back("caption"); }
    void closed() override { told.emplace_back("closed"); }
};

/// Hangs `words` on an event; they go to `log` whenever it fires.
inline void note(vorbano::Event& event, std::vector<std::string>& log, const std::string& words) {
    event.calls([&log, words] { log.push_back(words); });
}
