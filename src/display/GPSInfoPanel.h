#pragma once
// The read-outs beside the movie: speed with its unit, latitude, longitude, date and time. The
// panel owns none of the labels; it writes their texts and sets their LED fonts. A label that is
// null (not connected) or already gone is skipped.

#include <QLabel>
#include <QPointer>

#include <string>

class GPSData;
class GPSUtils;

struct GPSInfoPanelLabels {
    QLabel* txtSpeed = nullptr;
    QLabel* txtSpeedUnit = nullptr;
    QLabel* lblLatitude = nullptr;
    QLabel* txtLatitude = nullptr;
    QLabel* lblLongitude = nullptr;
    QLabel* txtLongitude = nullptr;
    QLabel* lblDate = nullptr;
    QLabel* txtDate = nullptr;
    QLabel* lblTime = nullptr;
    QLabel* txtTime = nullptr;
    // Belongs to the map's area; the panel only empties it on reset.
    QLabel* txtMapView = nullptr;
};

class GPSInfoPanel {
public:
    // `settings` gives the unit's name; it must outlive the panel.
    GPSInfoPanel(const GPSInfoPanelLabels& labels, const GPSUtils& settings);

    // Idle texts: every digit of the sample texts' shapes is 0.
    static constexpr const char* idleSpeedText = "00.00";
    static constexpr const char* idleCoordinateText = "00.00000";
    static constexpr const char* idleDateText = "00/00/00";
    static constexpr const char* idleTimeText = "00:00:00";

    // LED point sizes; the unit label keeps the layout's font.
    static constexpr qreal speedPointSize = 50;
    static constexpr qreal positionPointSize = 22;
    static constexpr qreal dateTimePointSize = 20;

    // Sets the LED font (LEDFont) on the speed, position, date and time labels and captions. Call
    // after the font's registration, which decides the font's name.
    void setupFonts() const;
    // A new sample: speed (in the unit chosen now), longitude, latitude, date, time.
    void show(const GPSData& data) const;
    // The idle texts, and an empty map text. The unit label is left alone.
    void reset() const;
    // The unit's name into the unit label, and `speedText` (the player's current speed text, in
    // the unit just chosen) into the speed.
    void refreshUnits(const std::string& speedText) const;

private:
    QPointer<QLabel> txtSpeed_, txtSpeedUnit_;
    QPointer<QLabel> lblLatitude_, txtLatitude_, lblLongitude_, txtLongitude_;
    QPointer<QLabel> lblDate_, txtDate_, lblTime_, txtTime_;
    QPointer<QLabel> txtMapView_;
    const GPSUtils& settings_;
};
