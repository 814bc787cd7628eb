#include "InterfaceTranslator.h"

#include "UiLanguage.h"

#include <QCoreApplication>

InterfaceTranslator::~InterfaceTranslator() { removeInstalled(); }

void InterfaceTranslator::removeInstalled() {
    if (programInstalled_) QCoreApplication::removeTranslator(&program_);
    if (qtInstalled_) QCoreApplication::removeTranslator(&qt_);
    programInstalled_ = qtInstalled_ = false;
}

void InterfaceTranslator::use(const std::string& language) {
    if (language == language_) return;
    removeInstalled();
    language_ = isUiLanguage(language) ? language : std::string(englishLanguage);
    // Removing a translation has told the widgets to go back to their sources' texts.
    if (language_ == englishLanguage) return;
    const QString code = QString::fromStdString(language_);
    if (qt_.load(QStringLiteral(":/i18n/qtbase_") + code)) qtInstalled_ = QCoreApplication::installTranslator(&qt_);
    if (program_.load(QStringLiteral(":/i18n/dashtrack_") + code))
        programInstalled_ = QCoreApplication::installTranslator(&program_);
}
