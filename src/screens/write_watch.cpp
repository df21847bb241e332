#include "screens/write_watch.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/failure_words.h"

namespace vorbano {

namespace {

/// As a name of its own: not as the folder of another one.
bool names(std::string_view text, std::string_view name) {
    if (name.empty()) return false;
    for (std::size_t at = text.find(name); at != std::string_view::npos; at = text.find(name, at + 1)) {
        constexpr std::string_view around = " .,:;\n";
        const std::size_t end = at + name.size();
        const bool begins = at == 0 || around.find(text[at - 1]) != std::string_view::npos;
        if (begins && (end == text.size() || around.find(text[end]) != std::string_view::npos)) return true;
    }
    return false;
}

}  // namespace

std::string inItalian(const std::vector<Unwritten>& unwritten) {
    std::vector<std::string> sentences;
    sentences.reserve(unwritten.size());
    for (const Unwritten& one : unwritten) {
        sentences.push_back(one.isFolder ? folderInItalian(one.error) : inItalian(one.error));
    }
    return inOneBox(sentences);
}

WriteWatch::WriteWatch(FileSystem& files, Desktop& desktop)
    : realDesktop_(desktop),
      files_(files, [this](const Unwritten& unwritten) { notice(unwritten); }),
      desktop_(desktop, *this) {}

void WriteWatch::notice(const Unwritten& unwritten) {
    const std::string& name = unwritten.error.subject;
    const bool isKnown =
        std::ranges::any_of(unwritten_, [&](const Unwritten& other) { return sameName(other.error.subject, name); });
    const bool isTold = std::ranges::any_of(told_, [&](const std::string& text) { return names(text, name); });
    if (!isKnown && !isTold) unwritten_.push_back(unwritten);
}

void WriteWatch::heard(const Message& message) {
    const bool isWarning = message.icon == Icon::warning || message.icon == Icon::error;
    std::erase_if(unwritten_, [&](const Unwritten& one) {
        return (isWarning && one.isOpening) || names(message.text, one.error.subject);
    });
    told_.push_back(message.text);
}

void WriteWatch::tellWhatIsLeft() {
    told_.clear();
    // A window that comes to the front behind the box finds nothing left to tell.
    if (const auto left = std::exchange(unwritten_, {}); !left.empty()) {
        realDesktop_.tell({inItalian(left), "Errore", Icon::error});
    }
}

void WriteWatch::WatchedDesktop::show(Form& form) {
    form.activated.calls(&watch_, &WriteWatch::tellWhatIsLeft);
    form.gestureEnded.calls(&watch_, &WriteWatch::tellWhatIsLeft);
    real_.show(form);
    // What a window did as it closed.
    watch_.tellWhatIsLeft();
}

void WriteWatch::WatchedDesktop::tell(const Message& message) {
    watch_.heard(message);
    real_.tell(message);
}

}  // namespace vorbano
