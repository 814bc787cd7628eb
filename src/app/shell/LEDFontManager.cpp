#include "LEDFontManager.h"

#include "LEDFontRegistration.h"
#include "ResourceDirectory.h"

namespace {

LEDFontRegistration& processRegistration() {
    static LEDFontRegistration registration(LEDFontManager::fontFile(), QStringLiteral("DigifaceWide Regular"));
    return registration;
}

}  // namespace

QString LEDFontName() { return processRegistration().fontName(); }

QFont LEDFont(qreal pointSize) { return LEDFontRegistration::fontNamed(LEDFontName(), pointSize); }

void LEDFontManager::Register() { processRegistration().Register(); }

void LEDFontManager::Unregister() { processRegistration().Unregister(); }

std::filesystem::path LEDFontManager::fontFile() { return resourceDirectory() / "DigifaceWide.ttf"; }
