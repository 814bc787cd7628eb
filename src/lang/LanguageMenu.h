#pragma once
// The Language menu: one checkable item per language, the current one checked. Choosing one
// stores it in the settings and switches the whole interface at once.

#include <QObject>

#include <string>
#include <utility>
#include <vector>

class GPSUtils;
class InterfaceTranslator;
class QAction;
class QActionGroup;

class LanguageMenu final : public QObject {
    Q_OBJECT

public:
    // items pairs each menu item with its language code; the translator and settings must
    // outlive the menu, the items are the window's.
    LanguageMenu(std::vector<std::pair<QAction*, std::string>> items, InterfaceTranslator& translator,
                 GPSUtils& settings, QObject* parent = nullptr);

    void choose(const std::string& language);

private:
    void checkCurrent();

    std::vector<std::pair<QAction*, std::string>> items_;
    InterfaceTranslator& translator_;
    GPSUtils& settings_;
};
