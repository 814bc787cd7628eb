#pragma once
// The languages the user interface speaks, by the codes the settings store and the translation
// files are named with, and which one a run starts in.

#include <QStringList>

#include <array>
#include <optional>
#include <string>
#include <string_view>

// English is the language of the sources: it needs no translation file.
inline constexpr std::string_view englishLanguage = "en";
inline constexpr std::array<std::string_view, 4> uiLanguages = {englishLanguage, "zh_CN", "ja", "vi"};

bool isUiLanguage(std::string_view code);

// Ours of a system language tag ("ja-JP", "zh-Hans-CN", "vi"); absent for one we do not speak,
// Traditional Chinese among them.
std::optional<std::string> uiLanguageOfTag(const QString& tag);

// The stored choice when it is one of ours; else the first of the system's languages (most
// preferred first, as QLocale::uiLanguages gives them) that we speak; else English.
std::string startupLanguage(const std::optional<std::string>& stored, const QStringList& systemLanguages);
