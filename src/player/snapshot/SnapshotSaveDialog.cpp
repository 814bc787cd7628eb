#include "SnapshotSaveDialog.h"

#include "GPSUtils.h"

#include <QCheckBox>
#include <QGridLayout>

QFileDialog* makeSnapshotSaveDialog(QWidget* parent, GPSUtils& settings) {
    auto* dialog = new QFileDialog(parent);
    dialog->setObjectName(QStringLiteral("snapshotDialog"));
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(QStringLiteral("PNG image (*.png)"));
    dialog->setDefaultSuffix(QStringLiteral("png"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);

    auto* stamp = new QCheckBox(QStringLiteral("Stamp speed, place and time"), dialog);
    stamp->setObjectName(QStringLiteral("stampCheckBox"));
    stamp->setAccessibleName(QStringLiteral("Stamp speed, place and time"));
    stamp->setAccessibleDescription(
        QStringLiteral("Draws the speed, latitude, longitude, date and time across the bottom of the saved picture"));
    stamp->setChecked(settings.stampSnapshots());
    QObject::connect(stamp, &QCheckBox::toggled, dialog, [&settings](bool on) { settings.setStampSnapshots(on); });
    // Qt's file dialog lays itself out in a grid: the box goes on a row of its own under it.
    if (auto* grid = qobject_cast<QGridLayout*>(dialog->layout())) {
        grid->addWidget(stamp, grid->rowCount(), 0, 1, grid->columnCount());
    }
    return dialog;
}
