#include <gtest/gtest.h>

#include <QApplication>

#include "platform/qt/style.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    vorbano::applyStyle(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
