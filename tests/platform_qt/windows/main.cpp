#include <gmock/gmock.h>

#include <QApplication>

#include "platform/qt/style.h"
#include "prova.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    vorbano::applyStyle(*qApp);
    addProva();
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
