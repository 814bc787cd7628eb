#include "SkinControls.h"

#include "GPSScrollView.h"
#include "GPSSliderCell.h"
#include "GPSTableHeaderView.h"
#include "GPSTextCell.h"

#include <QSlider>
#include <QTableView>

void applySliderSkin(QSlider& slider) {
    if (qobject_cast<const GPSSliderCell*>(slider.style()) != nullptr) return;
    GPSSliderCell::apply(slider);
}

void applyPlaylistTableSkin(QTableView& table) {
    GPSTableHeaderView::install(table);
    if (qobject_cast<const GPSTextCell*>(table.itemDelegate()) == nullptr)
        table.setItemDelegate(new GPSTextCell(&table));
    if (qobject_cast<const GPSScrollView*>(table.style()) == nullptr) GPSScrollView::apply(table);
}
