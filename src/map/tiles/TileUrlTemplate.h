#pragma once
// The check a tile server address of the user's own passes before the map uses it.

#include <QString>

#include <optional>

enum class TileUrlProblem {
    Empty,
    NotHttp,             // a scheme other than http:// or https://
    MissingPlaceholder,  // one of {z}, {x} and {y} is not there
    NotAUrl,             // no host, or not a URL at all once the numbers are put in
};

// Absent when the template can be used.
std::optional<TileUrlProblem> checkTileUrlTemplate(const QString& urlTemplate);
