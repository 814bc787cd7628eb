#pragma once
// Every text a window shows or speaks: its menus (all items, submenus included), each widget's
// text, tooltip, accessible name and description, window titles, and the column titles of its
// tables. Each with where it was found, to name an offender.

#include <QString>

#include <vector>

class QFileDialog;
class QWidget;

struct ShownText {
    QString where;  // object name (class name when unnamed) and what: "btPlay toolTip"
    QString text;
};

// The widget and everything inside it, hidden parts too; file dialogs inside it are left out
// (their own widgets are Qt's, see fileDialogTexts).
std::vector<ShownText> widgetTexts(const QWidget& root);

// What the program sets on a file dialog: its title, its filters and the check boxes it adds.
std::vector<ShownText> fileDialogTexts(const QFileDialog& dialog);
