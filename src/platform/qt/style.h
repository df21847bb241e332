#pragma once

class QApplication;

namespace vorbano {

/// The one look of all windows, and Italian for the toolkit's own words and numbers. Once, at the start.
void applyStyle(QApplication& application);

}  // namespace vorbano
