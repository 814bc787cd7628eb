#pragma once
// The sample the read-out tests show: 22.5 N, 114.25 W (the minus sign shows), 62.14 MPH on
// 12/31/16 at 20:05:09, in the cameras' fixed-point form, which keeps the time as recorded.

#include "GPSData.h"

#include <bit>

inline GPSData readOutSample() {
    GPSDATA raw;
    raw.rmcinfo.Year = 2016;
    raw.rmcinfo.Month = 12;
    raw.rmcinfo.Day = 31;
    raw.rmcinfo.Hour = 20;
    raw.rmcinfo.Minute = 5;
    raw.rmcinfo.Second = 9;
    raw.rmcinfo.Latitude = std::bit_cast<float>(int32_t{225000000});  // 1e-7 degree
    raw.rmcinfo.Longitude = std::bit_cast<float>(int32_t{-1142500000});
    raw.rmcinfo.Speed = std::bit_cast<float>(uint32_t{2778});  // cm/s
    GPSData data;
    data.SetData(raw, false);
    return data;
}
