#pragma once
// The formats the window exports, as the save dialog offers them.

#include <optional>
#include <span>
#include <string>
#include <string_view>

struct ExportFormatChoice {
    std::string_view format;  // the writers' name, which the settings keep
    std::string_view filter;  // the save dialog's name filter
    std::string_view suffix;  // added to a name typed without one
};

// GPX, KML, GeoJSON and CSV, in the dialog's order.
std::span<const ExportFormatChoice> exportFormatChoices();
// The choice of a stored format name; GPX for none or one we do not know.
const ExportFormatChoice& exportChoiceOfFormat(const std::optional<std::string>& format);
// The choice of a name filter the dialog reports; absent for any other text.
const ExportFormatChoice* exportChoiceOfFilter(std::string_view filter);
