#pragma once
// Puts the user interface in one of its languages: installs the program's translation and Qt's
// own (the standard dialogs' buttons) from the embedded resources, which makes Qt send every
// widget a LanguageChange event. Taken out again when this goes.

#include <QTranslator>

#include <string>

class InterfaceTranslator {
public:
    InterfaceTranslator() = default;
    InterfaceTranslator(const InterfaceTranslator&) = delete;
    InterfaceTranslator& operator=(const InterfaceTranslator&) = delete;
    ~InterfaceTranslator();

    // English, or any code without a translation, leaves the sources' texts. Loading reads
    // memory only, so the user interface thread may call it.
    void use(const std::string& language);
    const std::string& language() const { return language_; }

private:
    void removeInstalled();

    QTranslator program_;
    QTranslator qt_;
    bool programInstalled_ = false;
    bool qtInstalled_ = false;
    std::string language_ = "en";
};
