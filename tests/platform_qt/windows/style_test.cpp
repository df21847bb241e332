#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <cmath>

#include "platform/qt/window_icons.h"
#include "window_fixture.h"

namespace {

TEST(Style, TheToolkitSpeaksItalian) {
    EXPECT_EQ(QLocale().toString(1234.5, 'f', 2), "1.234,50");
    QLineEdit field;
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    QStringList texts;
    for (const QAction* action : menu->actions()) texts.append(action->text().section('\t', 0, 0).remove('&'));
    EXPECT_TRUE(texts.contains("Taglia"));
    EXPECT_TRUE(texts.contains("Copia"));
    EXPECT_TRUE(texts.contains("Incolla"));
    EXPECT_TRUE(texts.contains("Seleziona tutto"));
}

TEST(Style, TheStyleSheetIsApplied) { EXPECT_TRUE(qApp->styleSheet().contains("QGroupBox[tone=\"done\"]")); }

/// How much lighter one colour is than the other, as eyes have it: from 1 for equal ones to 21 for black on white.
double contrast(const QColor& one, const QColor& other) {
    const auto light = [](const QColor& colour) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const double first = light(one);
    const double second = light(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

constexpr double legible = 4.5;

TEST(Style, EveryInkOfThePaletteIsLegibleOnItsGround) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(QColor("#777777"), Qt::white), 4.48, 0.01);
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},       {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},      {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button},       {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::ToolTipText, QPalette::ToolTipBase}, {QPalette::Link, QPalette::Window},
    };
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto& [ink, ground] : pairs) {
            const QPalette palette = QApplication::palette();
            EXPECT_GE(contrast(palette.color(group, ink), palette.color(group, ground)), legible)
                << "ink " << ink << " of group " << group;
        }
    }
}

TEST(Style, EveryInkOfTheStyleSheetIsLegibleOnItsGround) {
    const QRegularExpression rule("([^{}]+)\\{([^}]*)\\}");
    const QRegularExpression ink("(?:^|[;\\s])color:\\s*(#[0-9a-f]{6})");
    const QRegularExpression ground("background:\\s*(#[0-9a-f]{6})");
    int inks = 0;
    auto rules = rule.globalMatch(qApp->styleSheet());
    while (rules.hasNext()) {
        const auto one = rules.next();
        const auto colour = ink.match(one.captured(2));
        if (!colour.hasMatch()) continue;
        ++inks;
        const auto own = ground.match(one.captured(2));
        // Without one of its own it stands on a window, on a panel, on a closed field or on the bar of menus.
        QStringList grounds{"#f3f4f2", "#fafbfa", "#eceeec", "#e6eaed"};
        if (own.hasMatch()) grounds = QStringList{own.captured(1)};
        for (const QString& under : grounds) {
            EXPECT_GE(contrast(QColor(colour.captured(1)), QColor(under)), legible)
                << one.captured(1).trimmed().toStdString() << " on " << under.toStdString();
        }
    }
    EXPECT_GT(inks, 15);
}

TEST(Style, TheWordsOfABarAreLegibleOnBothItsHalves) {
    const QColor plain = QApplication::palette().color(QPalette::Text);
    EXPECT_TRUE(qApp->styleSheet().contains("QProgressBar::chunk { background: #a9c6de;"));
    EXPECT_GE(contrast(plain, QColor("#a9c6de")), legible);
    EXPECT_TRUE(qApp->styleSheet().contains("QProgressBar[tone=\"over\"] { border-color: #9b2c2c; color: #7a1616;"));
    EXPECT_TRUE(qApp->styleSheet().contains("QProgressBar[tone=\"over\"]::chunk { background: #efc1bb; }"));
    EXPECT_GE(contrast(QColor("#7a1616"), QColor("#efc1bb")), legible);
}

TEST(Style, EveryPictureOfTheSetIsDrawn) {
    for (const char* name : {"save", "search", "print", "add", "close", "confirm", "cancel", "calculate"}) {
        const QImage picture = vorbano::drawnIcon(name).pixmap(16, 16).toImage();
        int inked = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) inked += picture.pixelColor(x, y).alpha() > 128 ? 1 : 0;
        }
        EXPECT_GT(inked, 8) << name;
    }
    EXPECT_TRUE(vorbano::drawnIcon("altro").isNull());
}

TEST(Style, AButtonBearsThePictureThatItsWindowNames) {
    frmProva screen;
    const vorbano::FormWindow window(screen.form);
    EXPECT_FALSE(qobject_cast<QPushButton*>(window.widgetOf(screen.cmdSalva))->icon().isNull());
}

}  // namespace
