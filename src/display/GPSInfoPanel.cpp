#include "GPSInfoPanel.h"

#include "GPSData.h"
#include "GPSUtils.h"
#include "LEDFontManager.h"

#include <QApplication>
#include <QRawFont>

#include <algorithm>
#include <initializer_list>

namespace {

void write(QLabel* label, const std::string& text) {
    if (label != nullptr) label->setText(QString::fromStdString(text));
}

void setFont(std::initializer_list<QLabel*> labels, qreal pointSize) {
    const QFont font = LEDFont(pointSize);
    for (QLabel* label : labels)
        if (label != nullptr) label->setFont(font);
}

// A word in a language whose letters the LED font lacks (Vietnamese "VĨ ĐỘ") would mix LED
// letters with another font's: such a label is in the plain font as a whole.
void setWordFont(std::initializer_list<QLabel*> labels, qreal pointSize) {
    const QFont led = LEDFont(pointSize);
    // The face itself, not the fallbacks that font matching would add.
    const QRawFont face = QRawFont::fromFont(led);
    QFont plain = QApplication::font();
    plain.setPointSizeF(pointSize);
    for (QLabel* label : labels) {
        if (label == nullptr) continue;
        const QString text = label->text();
        const auto ucs4 = text.toUcs4();
        const bool ledHasAll = std::all_of(ucs4.begin(), ucs4.end(),
                                           [&](char32_t c) { return c == U' ' || face.supportsCharacter(c); });
        label->setFont(ledHasAll ? led : plain);
    }
}

}  // namespace

GPSInfoPanel::GPSInfoPanel(const GPSInfoPanelLabels& labels, const GPSUtils& settings)
    : txtSpeed_(labels.txtSpeed),
      txtSpeedUnit_(labels.txtSpeedUnit),
      lblLatitude_(labels.lblLatitude),
      txtLatitude_(labels.txtLatitude),
      lblLongitude_(labels.lblLongitude),
      txtLongitude_(labels.txtLongitude),
      lblDate_(labels.lblDate),
      txtDate_(labels.txtDate),
      lblTime_(labels.lblTime),
      txtTime_(labels.txtTime),
      txtMapView_(labels.txtMapView),
      settings_(settings) {}

void GPSInfoPanel::setupFonts() const {
    setFont({txtSpeed_}, speedPointSize);
    setFont({txtLatitude_, txtLongitude_}, positionPointSize);
    setWordFont({lblLatitude_, lblLongitude_}, positionPointSize);
    setFont({txtDate_, txtTime_}, dateTimePointSize);
    setWordFont({lblDate_, lblTime_}, dateTimePointSize);
}

void GPSInfoPanel::show(const GPSData& data) const {
    write(txtSpeed_, data.SpeedText());
    write(txtLongitude_, data.LongitudeText());
    write(txtLatitude_, data.LatitudeText());
    write(txtDate_, data.DateText());
    write(txtTime_, data.TimeText());
}

void GPSInfoPanel::reset() const {
    write(txtSpeed_, idleSpeedText);
    write(txtLatitude_, idleCoordinateText);
    write(txtLongitude_, idleCoordinateText);
    write(txtDate_, idleDateText);
    write(txtTime_, idleTimeText);
    write(txtMapView_, "");
}

void GPSInfoPanel::refreshUnits(const std::string& speedText) const {
    write(txtSpeedUnit_, settings_.SpeedUnitName());
    write(txtSpeed_, speedText);
}
