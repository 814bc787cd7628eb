#include "WindowTexts.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>
#include <QTableView>
#include <QTextDocumentFragment>

namespace {

QString nameOf(const QObject& object) {
    return object.objectName().isEmpty() ? QString::fromLatin1(object.metaObject()->className()) : object.objectName();
}

void add(std::vector<ShownText>& texts, const QObject& object, const char* what, const QString& text) {
    if (!text.trimmed().isEmpty()) texts.push_back({nameOf(object) + QLatin1Char(' ') + QLatin1String(what), text});
}

bool insideFileDialog(const QWidget& widget, const QWidget& root) {
    for (const QWidget* w = &widget; w != nullptr && w != &root; w = w->parentWidget())
        if (qobject_cast<const QFileDialog*>(w) != nullptr) return true;
    return false;
}

void addMenu(std::vector<ShownText>& texts, const QMenu& menu) {
    add(texts, menu, "title", menu.title());
    for (const QAction* action : menu.actions()) {
        if (action->isSeparator()) continue;
        if (action->menu() != nullptr) {
            addMenu(texts, *action->menu());
            continue;
        }
        add(texts, *action, "text", action->text());
        add(texts, *action, "toolTip", action->toolTip());
        add(texts, *action, "statusTip", action->statusTip());
    }
}

void addWidget(std::vector<ShownText>& texts, const QWidget& widget) {
    add(texts, widget, "accessibleName", widget.accessibleName());
    add(texts, widget, "accessibleDescription", widget.accessibleDescription());
    add(texts, widget, "toolTip", widget.toolTip());
    if (widget.isWindow()) add(texts, widget, "windowTitle", widget.windowTitle());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) add(texts, widget, "text", button->text());
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        const QString text = label->text();
        add(texts, widget, "text", Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text);
    }
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) add(texts, widget, "title", group->title());
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        for (int item = 0; item < combo->count(); ++item) add(texts, widget, "item", combo->itemText(item));
    if (const auto* spin = qobject_cast<const QSpinBox*>(&widget)) add(texts, widget, "suffix", spin->suffix());
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) add(texts, widget, "placeholder", edit->placeholderText());
    if (const auto* menu = qobject_cast<const QMenu*>(&widget)) addMenu(texts, *menu);
    if (const auto* table = qobject_cast<const QTableView*>(&widget); table != nullptr && table->model() != nullptr)
        for (int column = 0; column < table->model()->columnCount(); ++column)
            add(texts, widget, "column title", table->model()->headerData(column, Qt::Horizontal).toString());
}

}  // namespace

std::vector<ShownText> widgetTexts(const QWidget& root) {
    std::vector<ShownText> texts;
    addWidget(texts, root);
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        // Menus are walked from the menu bar's items, in their order, with their submenus.
        if (qobject_cast<const QMenu*>(widget) != nullptr || insideFileDialog(*widget, root)) continue;
        addWidget(texts, *widget);
        if (const auto* bar = qobject_cast<const QMenuBar*>(widget))
            for (const QAction* action : bar->actions())
                if (action->menu() != nullptr) addMenu(texts, *action->menu());
    }
    return texts;
}

std::vector<ShownText> fileDialogTexts(const QFileDialog& dialog) {
    std::vector<ShownText> texts;
    add(texts, dialog, "windowTitle", dialog.windowTitle());
    for (const QString& filter : dialog.nameFilters()) add(texts, dialog, "nameFilter", filter);
    // Qt's dialog has no check boxes of its own: any is one the program added.
    for (const QCheckBox* box : dialog.findChildren<QCheckBox*>()) addWidget(texts, *box);
    return texts;
}
