#pragma once

#include <QIcon>
#include <QPixmap>

#include "platform/desktop.h"

namespace vorbano {

/// The program's own pictures for buttons, drawn at any size: save, search, print, add, close, confirm, cancel,
/// calculate; and "more", for what found no room. An empty icon for any other name.
[[nodiscard]] QIcon drawnIcon(const QString& name);

/// The mark of the program for its windows. It is read from the resources when a desktop first asks for it.
[[nodiscard]] QIcon programIcon();

/// The sign of a message box; an empty picture for Icon::none.
[[nodiscard]] QPixmap drawnSign(Icon icon, int size, qreal pixelRatio);

}  // namespace vorbano
