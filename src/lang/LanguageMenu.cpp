#include "LanguageMenu.h"

#include "GPSUtils.h"
#include "InterfaceTranslator.h"

#include <QAction>
#include <QActionGroup>

LanguageMenu::LanguageMenu(std::vector<std::pair<QAction*, std::string>> items, InterfaceTranslator& translator,
                           GPSUtils& settings, QObject* parent)
    : QObject(parent), items_(std::move(items)), translator_(translator), settings_(settings) {
    auto* group = new QActionGroup(this);
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::Exclusive);
    for (const auto& [action, language] : items_) {
        if (action == nullptr) continue;
        action->setCheckable(true);
        action->setEnabled(true);
        action->setData(QString::fromStdString(language));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, language = language] { choose(language); });
    }
    checkCurrent();
}

void LanguageMenu::choose(const std::string& language) {
    settings_.setLanguage(language);
    translator_.use(language);
    checkCurrent();
}

void LanguageMenu::checkCurrent() {
    for (const auto& [action, language] : items_)
        if (action != nullptr) action->setChecked(language == translator_.language());
}
