#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

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
