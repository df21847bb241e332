#pragma once

#include <QPoint>
#include <QString>

class QWidget;

namespace vorbano {

/// The words at a place of a field, a list or a grid that have no room to be seen whole; empty when they have it.
[[nodiscard]] QString hiddenText(const QWidget& part, QPoint at);

/// Shows them under the pointer, as they are; false when there is nothing to show.
bool showHiddenText(QWidget& part, QPoint at);

}  // namespace vorbano
