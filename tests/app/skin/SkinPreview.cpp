// Paints the skinned playlist table and the two sliders on the window's blue into a PNG.
//   skin_preview out.png

#include "SkinColours.h"
#include "SkinControls.h"

#include <QApplication>
#include <QHeaderView>
#include <QSlider>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <QWidget>

#include <cstdlib>

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    if (argc != 2) return 2;

    QWidget window;
    QPalette colours = window.palette();
    colours.setColor(QPalette::Window, SkinColours::sliderDone());
    window.setPalette(colours);
    window.setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(&window);

    QStandardItemModel model(5, 3);
    model.setHorizontalHeaderLabels({QStringLiteral("File"), QStringLiteral("DateTime"), QStringLiteral("Size")});
    const char* names[] = {"FILE201123-101500F.MP4", "FILE201123-101800F.MP4", "FILE201123-102100F.MP4",
                           "FILE201123-102400F.MP4", "FILE201123-102700F.MP4"};
    for (int row = 0; row < 5; ++row) {
        model.setItem(row, 0, new QStandardItem(QString::fromLatin1(names[row])));
        model.setItem(row, 1, new QStandardItem(QStringLiteral("2020/11/23 10:%1").arg(15 + 3 * row)));
        auto* size = new QStandardItem(QStringLiteral("%1 MB").arg(180 + row));
        size->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        model.setItem(row, 2, size);
    }
    auto* table = new QTableView;
    table->setModel(&model);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(20);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    applyPlaylistTableSkin(*table);
    table->selectRow(2);
    layout->addWidget(table);

    for (const int value : {35, 70}) {
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setRange(0, 100);
        slider->setValue(value);
        applySliderSkin(*slider);
        layout->addWidget(slider);
    }

    window.resize(400, 260);
    window.show();
    QApplication::processEvents();
    return window.grab().save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
