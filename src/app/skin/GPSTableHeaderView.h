#pragma once
// A horizontal table header whose sections are drawn by GPSTableHeaderCell, titled from the
// model's header data.

#include <QHeaderView>

class QTableView;

class GPSTableHeaderView : public QHeaderView {
    Q_OBJECT

public:
    explicit GPSTableHeaderView(QWidget* parent = nullptr);

    QSize sizeHint() const override;

    // Puts a GPSTableHeaderView on the table in place of its current header, keeping that header's
    // sections, sizes and resize modes.
    static GPSTableHeaderView* install(QTableView& table);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void changeEvent(QEvent* event) override;
    // Measured in the title font the sections are painted with, so that a title fits whole.
    QSize sectionSizeFromContents(int logicalIndex) const override;

private:
    bool isLeftmost(int logicalIndex) const;
};
