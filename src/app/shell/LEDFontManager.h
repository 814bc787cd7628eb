#pragma once
// The read-outs' LED font for the whole process: the shipped "DigifaceWide.ttf", registered on
// the main window's first activation and removed when it closes. Main thread only.

#include <QFont>
#include <QString>

#include <filesystem>

// The name the read-outs ask for: "DigifaceWide Regular", or "Arial" from the first failed
// registration on.
QString LEDFontName();

// LEDFontName at the given size, resolved to the registered family and style.
QFont LEDFont(qreal pointSize);

class LEDFontManager {
public:
    LEDFontManager() = delete;

    // Registers the font file of the resource directory; on failure one line on stderr and the
    // name becomes "Arial".
    static void Register();
    // Removes that registration; on failure one line on stderr.
    static void Unregister();

    // `<resource directory>/DigifaceWide.ttf`.
    static std::filesystem::path fontFile();
};
