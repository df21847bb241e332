#include <gtest/gtest.h>

#include <QApplication>

#include "scenario/quiet_screen.h"
#include "scenario/unseen_screen.h"

int main(int argc, char** argv) {
    vorbano::useUnseenScreen();
    vorbano::quietenUnseenScreen();
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
