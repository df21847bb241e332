#pragma once

#include <QIcon>
#include <QPixmap>

#include "platform/desktop.h"

namespace vorbano {

/// The program's own pictures for buttons, drawn at any size: save, search, print, add, close, confirm, cancel,
/// calculate. An empty icon for any other name.
[[nodiscard]] QIcon drawnIcon(const QString& name);

/// The sign of a message box; an empty picture for Icon::none.
[[nodiscard]] QPixmap drawnSign(Icon icon, int size, qreal pixelRatio);

}  // namespace vorbano
