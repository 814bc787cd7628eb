#include "SnapshotStamp.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// The face's pixel size as a share of the picture's height: one line of the band is then about
// 7% of the height. Below the minimum the LED segments run together.
constexpr double kFaceShare = 0.04;
constexpr int kMinPixelSize = 14;
// In units of the face's pixel size. The LED face's own space is a sliver, too thin to part
// "LAT" from its number, so words are set apart by a gap of their own.
constexpr double kMarginShare = 0.6;
constexpr double kItemGapShare = 1.2;
constexpr double kWordGapShare = 0.4;
constexpr double kPaddingShare = 0.35;

// Dark enough that the camera's own overlays under the band do not show through the text.
const QColor kBandColour(0, 0, 0, 215);
const QColor kTextColour(255, 214, 96);

// The plain face's size beside the LED face's: the unit stands smaller than the digits, as the
// read-outs' unit label does beside the speed.
constexpr double kPlainShare = 0.75;

// The LED face's size, in pixels, for a picture height, before it is fitted to the width.
int pixelSizeFor(int imageHeight) {
    return std::max(kMinPixelSize, int(std::lround(kFaceShare * std::max(imageHeight, 0))));
}

struct Word {
    QString text;
    bool plain = false;
    double width = 0;
};

// One item ("LAT 48.85837", "63 KM/H") as the words it is drawn in, and its width with the gaps.
struct Item {
    std::vector<Word> words;
    double width = 0;
};

struct Layout {
    StampFaces faces;
    double margin = 0;
    double itemGap = 0;
    double wordGap = 0;
    double padding = 0;
    double lineHeight = 0;
    double ascent = 0;
    std::vector<std::vector<Item>> lines;
};

std::vector<Item> measure(const std::vector<StampItem>& stampItems, const StampFaces& faces, double wordGap) {
    const QFontMetricsF led(faces.led), plain(faces.plain);
    std::vector<Item> items;
    for (const StampItem& stampItem : stampItems) {
        Item item;
        for (const QString& word : QString::fromStdString(stampItem.text).split(QLatin1Char(' '), Qt::SkipEmptyParts))
            item.words.push_back({word, false, led.horizontalAdvance(word)});
        if (!stampItem.unit.empty()) {
            const QString unit = QString::fromStdString(stampItem.unit);
            item.words.push_back({unit, true, plain.horizontalAdvance(unit)});
        }
        for (const Word& word : item.words) item.width += word.width;
        item.width += wordGap * double(std::max<std::size_t>(item.words.size(), 1) - 1);
        items.push_back(std::move(item));
    }
    return items;
}

void setPixelSize(StampFaces& faces, int pixelSize) {
    faces.led.setPixelSize(pixelSize);
    faces.plain.setPixelSize(std::max(1, int(std::lround(kPlainShare * pixelSize))));
    faces.plain.setBold(true);
}

// The faces at the picture's size, made smaller until the widest item fits across the picture,
// and the items packed into lines.
Layout layOut(const std::vector<StampItem>& stampItems, StampFaces faces, int width, int height) {
    int pixelSize = pixelSizeFor(height);
    Layout layout;
    std::vector<Item> items;
    for (;;) {
        setPixelSize(faces, pixelSize);
        items = measure(stampItems, faces, kWordGapShare * pixelSize);
        double widest = 0;
        for (const Item& item : items) widest = std::max(widest, item.width);
        const double room = width - 2 * kMarginShare * pixelSize;
        if (widest <= room || pixelSize <= 1) break;
        pixelSize = std::clamp(int(std::floor(pixelSize * room / widest)), 1, pixelSize - 1);
    }
    const QFontMetricsF led(faces.led);
    layout.lineHeight = led.height();
    layout.ascent = led.ascent();
    layout.faces = faces;
    layout.margin = kMarginShare * pixelSize;
    layout.itemGap = kItemGapShare * pixelSize;
    layout.wordGap = kWordGapShare * pixelSize;
    layout.padding = kPaddingShare * pixelSize;

    const double room = width - 2 * layout.margin;
    double lineWidth = 0;
    for (Item& item : items) {
        if (!layout.lines.empty() && lineWidth + layout.itemGap + item.width <= room) {
            lineWidth += layout.itemGap + item.width;
            layout.lines.back().push_back(std::move(item));
        } else {
            lineWidth = item.width;
            layout.lines.push_back({std::move(item)});
        }
    }
    return layout;
}

}  // namespace

std::optional<StampBand> SnapshotStamp::draw(RgbImage& image, const std::vector<StampItem>& items, StampFaces faces) {
    if (items.empty() || image.width <= 0 || image.height <= 0 ||
        image.rowBytes() > std::size_t(std::numeric_limits<int>::max()) ||
        image.pixels.size() != image.rowBytes() * std::size_t(image.height)) {
        return std::nullopt;
    }
    const Layout layout = layOut(items, std::move(faces), image.width, image.height);

    const double contentHeight = double(layout.lines.size()) * layout.lineHeight + 2 * layout.padding;
    StampBand band;
    band.height = std::min(image.height, int(std::ceil(contentHeight)));
    band.top = image.height - band.height;

    // Painted in place: the picture's own rows, wrapped without a copy.
    QImage canvas(image.pixels.data(), image.width, image.height, int(image.rowBytes()), QImage::Format_RGB888);
    QPainter painter(&canvas);
    const QRect bandRect(0, band.top, image.width, band.height);
    painter.fillRect(bandRect, kBandColour);
    painter.setClipRect(bandRect);
    painter.setPen(kTextColour);
    for (std::size_t line = 0; line < layout.lines.size(); ++line) {
        const double baseline = band.top + layout.padding + double(line) * layout.lineHeight + layout.ascent;
        double x = layout.margin;
        for (const Item& item : layout.lines[line]) {
            for (const Word& word : item.words) {
                painter.setFont(word.plain ? layout.faces.plain : layout.faces.led);
                painter.drawText(QPointF(x, baseline), word.text);
                x += word.width + layout.wordGap;
            }
            x += layout.itemGap - layout.wordGap;
        }
    }
    return band;
}
