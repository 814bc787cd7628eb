#include "UiLanguage.h"

#include <algorithm>

bool isUiLanguage(std::string_view code) {
    return std::find(uiLanguages.begin(), uiLanguages.end(), code) != uiLanguages.end();
}

std::optional<std::string> uiLanguageOfTag(const QString& tag) {
    const QStringList parts = QString(tag).replace(QLatin1Char('_'), QLatin1Char('-')).split(QLatin1Char('-'));
    const QString language = parts.value(0).toLower();
    if (language == QLatin1String("en")) return std::string(englishLanguage);
    if (language == QLatin1String("ja")) return "ja";
    if (language == QLatin1String("vi")) return "vi";
    if (language == QLatin1String("zh")) {
        // Simplified unless the tag names the traditional script or a region that writes it.
        for (const QString& part : parts.mid(1)) {
            const QString p = part.toUpper();
            if (p == QLatin1String("HANT") || p == QLatin1String("TW") || p == QLatin1String("HK") ||
                p == QLatin1String("MO"))
                return std::nullopt;
        }
        return "zh_CN";
    }
    return std::nullopt;
}

std::string startupLanguage(const std::optional<std::string>& stored, const QStringList& systemLanguages) {
    if (stored && isUiLanguage(*stored)) return *stored;
    for (const QString& tag : systemLanguages)
        if (auto language = uiLanguageOfTag(tag)) return *language;
    return std::string(englishLanguage);
}
