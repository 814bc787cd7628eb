// The car marker drawn: its nose turns with the heading about the widget's centre.

#include "CarMarkerView.h"

#include <QImage>
#include <QPalette>
#include <QPixmap>

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>

namespace {

// The centre of the headlights (pale yellow, at the car's nose) relative to the widget's centre.
std::optional<QPointF> noseOffset(CarMarkerView& car) {
    QImage image(car.size() * 2, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(2);
    image.fill(Qt::transparent);
    car.render(&image);
    QPointF sum;
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 200 && c.red() > 230 && c.green() > 220 && c.blue() > 150 && c.blue() < 230) {
                sum += QPointF(x + 0.5, y + 0.5) / 2;
                ++count;
            }
        }
    if (count == 0) return std::nullopt;
    return sum / count - QPointF(car.width() / 2.0, car.height() / 2.0);
}

}  // namespace

TEST(CarMarkerView, TheNosePointsAlongTheHeading) {
    CarMarkerView car;
    EXPECT_EQ(car.accessibleName(), QStringLiteral("Car"));
    EXPECT_EQ(car.width(), car.height());
    const struct {
        std::optional<double> heading;
        double facing;  // degrees clockwise from up on screen
    } cases[] = {{std::nullopt, 0}, {0, 0}, {45, 45}, {90, 90}, {120, 120}, {180, 180}, {-90, 270}, {450, 90}, {NAN, 0}};
    for (const auto& c : cases) {
        car.setHeading(c.heading);
        const std::optional<QPointF> nose = noseOffset(car);
        ASSERT_TRUE(nose.has_value()) << c.facing;
        const double radians = c.facing * std::numbers::pi / 180;
        const QPointF ahead(std::sin(radians), -std::cos(radians));
        const QPointF across(-ahead.y(), ahead.x());
        // The headlights are 16.4 px from the car's centre and side by side across it.
        EXPECT_NEAR(QPointF::dotProduct(*nose, ahead), 16.4, 1) << c.facing;
        EXPECT_NEAR(QPointF::dotProduct(*nose, across), 0, 1) << c.facing;
    }
}

TEST(CarMarkerView, TheMapShowsAroundTheCar) {
    QWidget map;
    map.setAutoFillBackground(true);
    QPalette palette = map.palette();
    palette.setColor(QPalette::Window, Qt::magenta);
    map.setPalette(palette);
    map.resize(48, 48);
    auto* car = new CarMarkerView(&map);
    car->setHeading(45);
    const QImage image = map.grab().toImage();
    for (QPoint corner : {QPoint(2, 2), QPoint(45, 2), QPoint(2, 45), QPoint(45, 45), QPoint(40, 40)})
        EXPECT_EQ(image.pixelColor(corner), QColor(Qt::magenta)) << corner.x() << "," << corner.y();
    EXPECT_NE(image.pixelColor(24, 24), QColor(Qt::magenta));
}
