#include "platform/qt/whole_text.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QToolTip>

namespace vorbano {

namespace {

QString hiddenInLine(const QLineEdit& line) {
    constexpr int around = 14;  // frame and padding
    const bool fits = line.fontMetrics().horizontalAdvance(line.text()) + around <= line.width();
    return fits ? QString() : line.text();
}

QString hiddenInCombo(const QComboBox& combo) {
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    const QRect room =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    const QString text = combo.currentIndex() < 0 ? combo.placeholderText() : combo.currentText();
    return combo.fontMetrics().horizontalAdvance(text) <= room.width() ? QString() : text;
}

QString hiddenInView(const QAbstractItemView& view, QPoint at) {
    const QModelIndex index = view.indexAt(at);
    if (!index.isValid()) return {};
    const QRect shown = view.visualRect(index).intersected(view.viewport()->rect());
    return view.sizeHintForIndex(index).width() <= shown.width() ? QString() : index.data().toString();
}

}  // namespace

QString hiddenText(const QWidget& part, QPoint at) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&part)) return hiddenInLine(*line);
    if (const auto* combo = qobject_cast<const QComboBox*>(&part)) return hiddenInCombo(*combo);
    const auto* view = qobject_cast<const QAbstractItemView*>(part.parentWidget());
    return view != nullptr && view->viewport() == &part ? hiddenInView(*view, at) : QString();
}

bool showHiddenText(QWidget& part, QPoint at) {
    const QString text = hiddenText(part, at);
    if (text.isEmpty()) return false;
    QToolTip::showText(part.mapToGlobal(at), Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text, &part);
    return true;
}

}  // namespace vorbano
