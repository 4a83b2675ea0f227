#include "app/window/zoom.h"

#include <gtest/gtest.h>

TEST(Zoom, GoesFrom80To300PercentAndStopsThere) {
    double level = 1;
    for (int i = 0; i < 20; ++i) level = largerZoom(level);
    EXPECT_EQ(level, 3.0);
    for (int i = 0; i < 20; ++i) level = smallerZoom(level);
    EXPECT_EQ(level, 0.8);
}

TEST(Zoom, ComesBackToTheNaturalSizeByTheSameNumberOfSteps) {
    double level = 1;
    for (int i = 0; i < 5; ++i) level = largerZoom(level);
    EXPECT_EQ(level, 2.0);
    for (int i = 0; i < 5; ++i) level = smallerZoom(level);
    EXPECT_EQ(level, 1.0);
}

TEST(Zoom, MovesOnFromALevelThatTheEngineRounded) {
    EXPECT_EQ(largerZoom(1.0999999), 1.25);
    EXPECT_EQ(smallerZoom(1.1000001), 1.0);
}

TEST(WheelNotches, CollectsTheSmallTurnsOfATouchpad) {
    WheelNotches wheel;
    EXPECT_EQ(wheel.add(0.5), 0);
    EXPECT_EQ(wheel.add(0.25), 0);
    EXPECT_EQ(wheel.add(0.5), 1);
    EXPECT_EQ(wheel.add(0.75), 1);
}

TEST(WheelNotches, StartsAnewInTheOtherDirection) {
    WheelNotches wheel;
    EXPECT_EQ(wheel.add(0.75), 0);
    EXPECT_EQ(wheel.add(-0.5), 0);
    EXPECT_EQ(wheel.add(-0.5), -1);
}

TEST(WheelNotches, TakesAQuickTurnAsSeveral) {
    WheelNotches wheel;
    EXPECT_EQ(wheel.add(-3), -3);
}
