#include "scenario/window_faults.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <map>

#include "platform/qt/form_window.h"

namespace vorbano {

namespace {

using Faults = std::vector<std::string>;

std::string named(const QWidget& widget, const QString& words) {
    return widget.objectName().toStdString() + " \"" + words.toStdString() + "\"";
}

std::string sized(QSize size) { return std::to_string(size.width()) + " x " + std::to_string(size.height()); }

/// The room that a window has inside its frame. Below the smallest desk of an office windows are scrolled.
QSize roomOn(const QScreen& screen) { return screen.availableGeometry().size().expandedTo(smallestDesk) - windowFrame; }

void addTooLarge(const FormWindow& window, const QWidget& content, Faults& faults) {
    const QSize room = roomOn(*window.screen());
    QSize least = content.minimumSizeHint();
    // What wraps is as high as it would like to be at that width: the area that scrolls asks no less.
    if (content.hasHeightForWidth()) {
        least.setHeight(std::max(least.height(), content.heightForWidth(std::max(least.width(), room.width()))));
    }
    if (const auto* bar = window.findChild<QMenuBar*>()) least.rheight() += bar->sizeHint().height();
    if (least.width() <= room.width() && least.height() <= room.height()) return;
    faults.push_back("it needs " + sized(least) + " and the desk has " + sized(room));
}

/// A panel that scrolls inside a window may give way to a list beside it; from top to bottom it shows all that it
/// holds.
void addScrolled(const FormWindow& window, const QWidget& content, Faults& faults) {
    const bool low = window.screen()->geometry().height() < smallestDesk.height();
    for (const QScrollArea* area : content.findChildren<QScrollArea*>()) {
        const bool scrolls = area->isVisible() && area->verticalScrollBar()->maximum() > 0;
        if (scrolls && !low) faults.push_back("scrolled: " + area->objectName().toStdString());
    }
}

/// A label gives its words the room inside its frame; what it wraps needs the height for it.
bool isCut(const QLabel& label) {
    if (label.text().isEmpty() || label.textFormat() == Qt::RichText) return false;
    if (label.wordWrap()) return label.heightForWidth(label.width()) > label.height();
    return label.minimumSizeHint().width() > label.width() || label.minimumSizeHint().height() > label.height();
}

bool isCut(const QGroupBox& box) {
    return box.fontMetrics().size(Qt::TextShowMnemonic, box.title()).width() + 20 > box.width();
}

/// A figure that begins outside its field could be taken for another one. What else is longer than its field is read by
/// moving along it, and whole under the pointer.
bool isCut(const QLineEdit& line) {
    constexpr int around = 14;
    return (line.alignment() & Qt::AlignRight) != 0 &&
           line.fontMetrics().horizontalAdvance(line.text()) + around > line.width();
}

/// The words of a bar have the room inside its frame.
bool isCut(const QProgressBar& bar) {
    constexpr int frame = 4;
    return bar.fontMetrics().horizontalAdvance(bar.text()) + frame > bar.width();
}

void addCut(const QWidget& content, Faults& faults) {
    for (const QLabel* label : content.findChildren<QLabel*>()) {
        if (label->isVisible() && isCut(*label)) faults.push_back("cut off: " + named(*label, label->text()));
    }
    for (const QAbstractButton* button : content.findChildren<QAbstractButton*>()) {
        const bool cut = !button->text().isEmpty() && (button->sizeHint().width() > button->width() ||
                                                       button->sizeHint().height() > button->height());
        if (button->isVisible() && cut) faults.push_back("cut off: " + named(*button, button->text()));
    }
    for (const QLineEdit* line : content.findChildren<QLineEdit*>()) {
        if (line->isVisible() && isCut(*line)) faults.push_back("cut off: " + named(*line, line->text()));
    }
    for (const QProgressBar* bar : content.findChildren<QProgressBar*>()) {
        if (bar->isVisible() && isCut(*bar)) faults.push_back("cut off: " + named(*bar, bar->text()));
    }
    for (const QGroupBox* box : content.findChildren<QGroupBox*>()) {
        if (box->isVisible() && isCut(*box)) faults.push_back("cut off: " + named(*box, box->title()));
    }
}

/// Letters of Alt that can be pressed now, each with who answers to it.
class Letters {
  public:
    void add(const QString& words, const std::string& who) {
        const QKeySequence letter = QKeySequence::mnemonic(words);
        if (!letter.isEmpty()) owners_[letter.toString()].push_back(who);
    }
    void addShared(Faults& faults) const {
        for (const auto& [letter, owners] : owners_) {
            if (owners.size() < 2) continue;
            std::string who;
            for (const std::string& one : owners) who += (who.empty() ? "" : ", ") + one;
            faults.push_back(letter.toStdString() + " is shared by " + who);
        }
    }

  private:
    std::map<QString, std::vector<std::string>> owners_;
};

void addSharedLetters(const FormWindow& window, const QWidget& content, Faults& faults) {
    Letters letters;
    if (const auto* bar = window.findChild<QMenuBar*>()) {
        for (const QAction* action : bar->actions()) {
            if (action->isVisible()) letters.add(action->text(), named(*bar, action->text()));
        }
    }
    for (const QWidget* widget : content.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled()) continue;
        if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && label->buddy() != nullptr) {
            letters.add(label->text(), named(*label, label->text()));
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            letters.add(button->text(), named(*button, button->text()));
        } else if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
            letters.add(box->title(), named(*box, box->title()));
        } else if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
            for (int tab = 0; tab < bar->count(); ++tab) letters.add(bar->tabText(tab), named(*bar, bar->tabText(tab)));
        }
    }
    letters.addShared(faults);
}

}  // namespace

std::vector<std::string> windowFaults(const FormWindow& window) {
    Faults faults;
    const QWidget& content = *window.findChild<QScrollArea*>("scrollArea")->widget();
    addTooLarge(window, content, faults);
    addScrolled(window, content, faults);
    addCut(content, faults);
    addSharedLetters(window, content, faults);
    for (const std::string& name : window.namelessWidgets()) faults.push_back("no name is read out for " + name);
    return faults;
}

}  // namespace vorbano
