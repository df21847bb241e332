#include "platform/qt/style.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QScreen>
#include <QTranslator>
#include <algorithm>
#include <array>

#include "platform/qt/house_style.h"
#include "platform/qt/italian_texts.h"
#include "platform/qt/window_icons.h"

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
    {QPalette::WindowText, "#1c2733", "#5c6670"},
    {QPalette::Base, "#ffffff", "#eceeec"},
    {QPalette::AlternateBase, "#f5f7f9", "#eceeec"},
    {QPalette::Text, "#1c2733", "#5a646e"},
    {QPalette::PlaceholderText, "#1c2733", "#5a646e"},
    {QPalette::Button, "#e9ebee", "#eceeec"},
    {QPalette::ButtonText, "#1c2733", "#5c6670"},
    {QPalette::Highlight, "#2b5d8c", "#66727e"},
    {QPalette::HighlightedText, "#ffffff", "#ffffff"},
    {QPalette::ToolTipBase, "#fffdf2", "#fffdf2"},
    {QPalette::ToolTipText, "#1c2733", "#1c2733"},
    {QPalette::Link, "#1f4f7d", "#5c6670"},
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

/// A screen of 1920 x 1080 at 150 % has 720 logical pixels for a window and all around it.
bool isLowDesk(const QScreen& screen) {
    constexpr int low = 760;
    return screen.geometry().height() < low;
}

QString sheet(const char* name) {
    QFile file(QStringLiteral(":/windows/%1.qss").arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

void applyStyle(QApplication& application) {
    openResources();
    speakItalian();
    const bool compact = isLowDesk(*QGuiApplication::primaryScreen());
    QApplication::setStyle(makeHouseStyle(compact));
    QApplication::setPalette(palette());
    QApplication::setWindowIcon(programIcon());
    QFont font = QApplication::font();
    font.setPointSizeF(std::max(pointSize, font.pointSizeF()));
    QApplication::setFont(font);
    application.setStyleSheet(sheet("style") + (compact ? sheet("compact") : QString()));
}

}  // namespace vorbano
