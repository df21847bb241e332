#include "screens/well_done.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen_with_fields.h"

using namespace vorbano;
using namespace vorbano::test;
using testing::IsEmpty;

TEST(WhatWasStored, IsPassedOverInSilence) {
    ScreenWithFields screen;
    EXPECT_TRUE(wellDone(Result<>(), screen.desktop));
    EXPECT_THAT(screen.desktop.finish(), IsEmpty());
}

TEST(WhatWasNotStored, IsToldToTheClerk) {
    ScreenWithFields screen;
    screen.desktop.box("Errore", "Il disco non ha completato l'operazione sul file Params/Ente.dat.");
    EXPECT_FALSE(wellDone(Error{Failure::device, "Params/Ente.dat"}, screen.desktop));
    EXPECT_THAT(screen.desktop.finish(), IsEmpty());
}
