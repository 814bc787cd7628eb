#include "ApplicationIcon.h"

#include <QImage>

#include <gtest/gtest.h>

namespace {

// The share of pixels close to the app's blue, the icon's ground.
double blueShare(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += c.alpha() > 200 && c.red() < 60 && c.green() > 130 && c.blue() > 220;
        }
    return double(count) / (image.width() * image.height());
}

TEST(ApplicationIcon, TheBuildDrewEveryFreedesktopSize) {
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        SCOPED_TRACE(size);
        const QImage png(QStringLiteral(DASHTRACK_ICON_DIR "/%1x%1/apps/dashtrack.png").arg(size));
        EXPECT_EQ(png.size(), QSize(size, size));
        EXPECT_EQ(png.pixelColor(0, 0).alpha(), 0) << "rounded corners see-through";
        EXPECT_GT(blueShare(png), 0.1);
    }
    // The window's icon comes from the drawing linked into the program.
    EXPECT_GT(blueShare(applicationIcon().pixmap(48).toImage()), 0.1);
}

}  // namespace
