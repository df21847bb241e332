#pragma once

#include <QTranslator>

namespace vorbano {

/// The toolkit's own few words that a clerk meets (the menu of a field, the buttons and labels of a file dialog), for
/// machines on which its Italian texts are not installed.
class ItalianTexts : public QTranslator {
    Q_OBJECT
  public:
    using QTranslator::QTranslator;
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source, const char* disambiguation,
                                    int number) const override;
};

}  // namespace vorbano
