#include "lum_sdk/Transform.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// A screen of 800 x 600 over a place with coordinates of the usual size, 2 m a pixel.
Transform sampleView()
{
    Transform view;
    view.setSize({800, 600});
    view.setView({500000, 4400000}, 2);
    return view;
}

void expectNear(const QPointF& actual, const QPointF& expected, double tolerance)
{
    EXPECT_NEAR(actual.x(), expected.x(), tolerance);
    EXPECT_NEAR(actual.y(), expected.y(), tolerance);
}

TEST(Transform, ZoomKeepsThePointUnderTheCursorUpToTheLimits)
{
    for (const double factor : {1.25, 0.1, 1e9, 1e-20}) {
        Transform view = sampleView();
        const QPointF cursor(123, 456);
        const QPointF before = view.ScreenToSurvey(cursor);
        view.zoomAbout(cursor, factor);
        EXPECT_DOUBLE_EQ(view.GetScale(), std::min(std::max(2 / factor, Transform::kMinScale),
                                                   Transform::kMaxScale));
        expectNear(view.ScreenToSurvey(cursor), before, 1e-5 + 1e-9 * view.GetScale());
    }
}

TEST(Transform, FitsTheTighterSideOfAnyExtentWithItsMargin)
{
    Transform view = sampleView();
    view.fit(QRectF(100, 200, 720, 54), 0.05);
    EXPECT_DOUBLE_EQ(view.GetScale(), 1);
    expectNear(view.center(), {460, 227}, 1e-9);
    view.fit(QRectF(820, 740, -720, -540), 0); // not normalised
    EXPECT_DOUBLE_EQ(view.GetScale(), 0.9);
    expectNear(view.center(), {460, 470}, 1e-9);
    // lines and points
    view.fit(QRectF(0, 0, 0, 1200), 0);
    EXPECT_DOUBLE_EQ(view.GetScale(), 2);
    view.fit(QRectF(0, 0, 8000, 0), 0);
    EXPECT_DOUBLE_EQ(view.GetScale(), 10);
    view.fit(QRectF(7, 8, 0, 0), 0);
    EXPECT_DOUBLE_EQ(view.GetScale(), 10);
    expectNear(view.center(), {7, 8}, 0);
    view.setSize({0, -5});
    EXPECT_EQ(view.size(), QSize(1, 1));
}

TEST(Transform, WhatIsNotFiniteChangesNothing)
{
    const Transform before = sampleView();
    Transform view = before;
    for (const double bad : {kNaN, kInf, -kInf}) {
        view.setView({bad, 0}, 1);
        view.setView({0, bad}, 1);
        view.setView({0, 0}, bad);
        view.panBy({bad, 0});
        view.zoomAbout({400, 300}, bad);
        view.zoomAbout({bad, 300}, 2);
        view.fit(QRectF(bad, 0, 10, 10));
        view.fit(QRectF(0, 0, 10, bad));
    }
    view.zoomAbout({400, 300}, 0);
    view.zoomAbout({400, 300}, -2);
    EXPECT_EQ(view.center(), before.center());
    EXPECT_EQ(view.GetScale(), before.GetScale());
}

} // namespace
