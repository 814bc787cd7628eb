#pragma once
// A momentary button drawn only as a picture: normal, hover and pressed SVGs from the resources,
// half transparent while disabled. Made from the window's layout (promoted from QAbstractButton);
// the pictures are set there by resource path, or all three at once by base name (`images`).

#include "GPSButtonCell.h"

#include <QAbstractButton>
#include <QString>

class GPSUtils;

class GPSButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString defaultImage READ defaultImage WRITE setDefaultImage)
    Q_PROPERTY(QString overImage READ overImage WRITE setOverImage)
    Q_PROPERTY(QString downImage READ downImage WRITE setDownImage)
    Q_PROPERTY(QString images READ images WRITE setImages)

public:
    explicit GPSButton(QWidget* parent = nullptr);

    // Where the modal flag is read; null (the default) means the shared instance.
    void setUtils(const GPSUtils* utils) { utils_ = utils; }

    // Paths of SVG files or resources; empty when unset. A path that doesn't load leaves the
    // picture absent, and the cell falls back to the normal one.
    QString defaultImage() const;
    void setDefaultImage(const QString& path);
    QString overImage() const;
    void setOverImage(const QString& path);
    QString downImage() const;
    void setDownImage(const QString& path);
    // `:/buttons/<base>.svg`, `:/buttons/<base>-hover.svg` and `:/buttons/<base>-pressed.svg`.
    QString images() const { return images_; }
    void setImages(const QString& baseName);

    const GPSButtonCell& gpsCell() const { return cell_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool statusIsModal() const;

    GPSButtonCell cell_;
    const GPSUtils* utils_ = nullptr;
    QString images_;
};
