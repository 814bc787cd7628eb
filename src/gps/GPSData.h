#pragma once
// One GPS sample: the camera's record, normalised once, and every value and text derived from it.

#include "GPSFix.h"
#include "GPSRecord.h"

#include <cstddef>
#include <optional>
#include <string>

// The three ways cameras encode the classic record, then the other layouts of the same chipset's
// blocks (read as fixes, see FreeGpsVariants.h).
enum class GPSRecordForm {
    MP4,         // offset-and-scaled floats; time moved by whole hours from the longitude
    Scaled,      // floats in minutes, speed in knots (Year <= 1999)
    FixedPoint,  // integers in 1e-7 degree and cm/s (Year >= 2000)
    Type1,       // ASCII obscured by XOR 0xAA after an 8-byte signature
    Type2,       // an ASCII camera clock and an NMEA sentence
    Type3,       // int32 clock at 0x10, status and hemispheres at 0x28, float DDMM.MMMM
    Type20,      // 32-byte big-endian records from 0x30, 1e-7 degree
};
inline constexpr std::size_t kGPSRecordFormCount = 7;

// True for the three forms SetData normalises; the others come from FreeGpsVariants.
constexpr bool isClassicForm(GPSRecordForm form) { return int(form) <= int(GPSRecordForm::FixedPoint); }

class GPSData {
public:
    GPSData() = default;  // an empty sample: all 76 bytes zero, valid in every respect

    // Unit-dependent: KM/H when the settings store's unitType is not 0, else MPH.
    float Speed() const;
    float SpeedMPH() const;
    float SpeedKMH() const;
    float Latitude() const;
    float Longitude() const;
    GPSDATA data() const { return data_; }

    // What some formats state beyond the camera record, kept beside it so that the record stays
    // as the camera wrote it. The camera blocks state none of them.
    std::optional<float> altitudeMetres() const { return altitudeMetres_; }
    std::optional<float> heading() const { return heading_; }  // degrees clockwise from north
    // Unknown where the format does not say.
    GPSFix::Quality fixQuality() const { return fixQuality_; }

    std::string SpeedText() const;
    std::string SpeedMPHText() const;
    std::string SpeedKMHText() const;
    std::string LatitudeText() const;
    std::string LongitudeText() const;
    std::string DateText() const;
    std::string TimeText() const;

    // Stores and normalises a raw record. Must be applied once: the conversions are not idempotent.
    void SetData(GPSDATA record, bool isMP4);

    // Which form SetData will decode a raw record as.
    static GPSRecordForm formOf(const GPSDATA& raw, bool isMP4);

    // A sample from a fix of another way of storing a track, already in the normalised form: signed
    // degrees, the speed in the unit the MPH read-out shows (knots), the date and time of the fix's
    // clock. A fix without a clock has the date and time fields zero.
    static GPSData fromFix(const GPSFix& fix);
    // The sample's date and time moved by minutes (shiftRecordTimeByMinutes): the user's correction
    // of a camera clock that was wrong.
    void shiftClockByMinutes(int minutes);
    // The same sample flagged as no longer a fix ('V'): a place held over a gap in the fixes.
    GPSData heldOver() const {
        GPSData held = *this;
        held.data_.rmcinfo.Status = 'V';
        if (held.fixQuality_ != GPSFix::Quality::Unknown) held.fixQuality_ = GPSFix::Quality::NoFix;
        return held;
    }

private:
    GPSDATA data_{};
    std::optional<float> altitudeMetres_;
    std::optional<float> heading_;
    GPSFix::Quality fixQuality_ = GPSFix::Quality::Unknown;
};
