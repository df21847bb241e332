#include "platform/qt/style.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>
#include <algorithm>
#include <array>

#include "platform/qt/house_style.h"
#include "platform/qt/italian_texts.h"

// Resources of a library are linked in only when they are asked for, and only outside every namespace.
static void openResources() { Q_INIT_RESOURCE(window_resources); }

namespace vorbano {

namespace {

constexpr qreal pointSize = 10.5;

struct Colour {
    QPalette::ColorRole role;
    const char* active;
    const char* disabled;
};

// A paper-like ground, ink with a contrast above 7 : 1 and, for what waits its turn, above 4.5 : 1.
constexpr std::array<Colour, 14> colours{{
    {QPalette::Window, "#f3f4f2", "#f3f4f2"},
    {QPalette::WindowText, "#1c2733", "#626c76"},
    {QPalette::Base, "#ffffff", "#eceeec"},
    {QPalette::AlternateBase, "#f5f7f9", "#eceeec"},
    {QPalette::Text, "#1c2733", "#5a646e"},
    {QPalette::PlaceholderText, "#1c2733", "#5a646e"},
    {QPalette::Button, "#e9ebee", "#eceeec"},
    {QPalette::ButtonText, "#1c2733", "#626c76"},
    {QPalette::Highlight, "#2b5d8c", "#aab6c2"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::ToolTipBase, "#fffdf2", "#fffdf2"},
    {QPalette::ToolTipText, "#1c2733", "#1c2733"},
    {QPalette::Link, "#1f4f7d", "#626c76"},
    {QPalette::Mid, "#b4bcc4", "#c9cfd4"},
}};

QPalette palette() {
    QPalette palette;
    for (const Colour& colour : colours) {
        palette.setColor(QPalette::Active, colour.role, QColor(colour.active));
        palette.setColor(QPalette::Inactive, colour.role, QColor(colour.active));
        palette.setColor(QPalette::Disabled, colour.role, QColor(colour.disabled));
    }
    return palette;
}

void speakItalian() {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    static ItalianTexts ours;
    static QTranslator installed;
    QCoreApplication::installTranslator(&ours);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (installed.load(QStringLiteral("qtbase_it"), folder)) QCoreApplication::installTranslator(&installed);
}

}  // namespace

void applyStyle(QApplication& application) {
    openResources();
    speakItalian();
    QApplication::setStyle(makeHouseStyle());
    QApplication::setPalette(palette());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/windows/vorbano.png")));
    QFont font = QApplication::font();
    font.setPointSizeF(std::max(pointSize, font.pointSizeF()));
    QApplication::setFont(font);
    QFile sheet(QStringLiteral(":/windows/style.qss"));
    if (sheet.open(QIODevice::ReadOnly)) application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

}  // namespace vorbano
