#include "PreferencesDialog.h"

#include "ui_PreferencesDialog.h"

#include "ClockCorrection.h"
#include "GPSUtils.h"
#include "NetworkTileProvider.h"
#include "SettingRange.h"
#include "TileCacheFiles.h"
#include "TileUrlTemplate.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QFile>
#include <QPointer>
#include <QThreadPool>

#include <algorithm>
#include <cstdlib>

namespace {

// The tile source rows of the combo box, in the .ui's order.
enum MapRow { OpenStreetMapRow, MBTilesRow, TileFolderRow, CustomUrlRow, OfflineRow };

MapRow rowOf(const std::string& source) {
    if (source.starts_with("mbtiles:")) return MBTilesRow;
    if (source.starts_with("folder:")) return TileFolderRow;
    if (source.starts_with("url:")) return CustomUrlRow;
    if (source == "offline") return OfflineRow;
    return OpenStreetMapRow;
}

}  // namespace

PreferencesDialog::PreferencesDialog(GPSUtils& settings, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::PreferencesDialog>()), settings_(settings),
      cacheDirectory_(NetworkTileProvider::defaultCacheDirectory()) {
    ui_->setupUi(this);
    // Qt's own words are not shipped in every language the window speaks, and a standard button
    // takes them back at each change of language: the Close button is ours, in the closing role.
    ui_->buttons->setStandardButtons(QDialogButtonBox::NoButton);
    closeButton_ = ui_->buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    closeButton_->setObjectName(QStringLiteral("closeButton"));
    for (QLabel* message : {ui_->clockCorrectionError, ui_->customUrlError, ui_->cacheError, ui_->cacheStatus})
        message->hide();
    sayTextsMadeInCode();
    showSettings();
    connectControls();
}

PreferencesDialog::~PreferencesDialog() = default;

void PreferencesDialog::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        sayTextsMadeInCode();
        sayMessagesAgain();
    }
    QDialog::changeEvent(event);
}

void PreferencesDialog::sayTextsMadeInCode() {
    if (const char* forced = std::getenv("DASHTRACK_VIDEO_RENDERER"); forced != nullptr && *forced != '\0')
        ui_->rendererNote->setText(tr("DASHTRACK_VIDEO_RENDERER overrides this."));
    ui_->rendererNote->setAccessibleDescription(ui_->rendererNote->text());
    closeButton_->setText(tr("Close"));
    ui_->clockCorrectionNote->setAccessibleDescription(ui_->clockCorrectionNote->text());
    // The three groups' fields line up as if they were one form, whatever the language's widths.
    QLabel* const labels[] = {ui_->unitLabel,     ui_->clockCorrectionLabel, ui_->mapSourceLabel,
                              ui_->customUrlLabel, ui_->cacheSizeLabel,       ui_->rendererLabel};
    int labelWidth = 0;
    for (QLabel* label : labels) {
        label->setMinimumWidth(0);
        labelWidth = std::max(labelWidth, label->sizeHint().width());
    }
    for (QLabel* label : labels) label->setMinimumWidth(labelWidth);
}

void PreferencesDialog::sayMessagesAgain() {
    // A field's message shows only while its value is refused: checking the field again says the
    // message in the new language.
    if (!ui_->clockCorrectionError->isHidden()) chooseClockCorrection();
    if (!ui_->customUrlError->isHidden()) useCustomUrl();
    if (!ui_->cacheError->isHidden()) chooseCacheSize(ui_->cacheSize->value());
    if (clearing_)
        showMessage(ui_->cacheStatus, tr("Clearing…"));
    else
        showMessage(ui_->cacheStatus, {});  // "Cache cleared." is old news by now
}

void PreferencesDialog::showSettings() {
    const QSignalBlocker blockers[] = {QSignalBlocker(ui_->unitKMH), QSignalBlocker(ui_->unitMPH),
                                       QSignalBlocker(ui_->mapSource), QSignalBlocker(ui_->cacheSize),
                                       QSignalBlocker(ui_->continuousPlay), QSignalBlocker(ui_->renderer)};
    // As the Units menu counts it, so that the two agree.
    const bool kmh = settings_.unitType() == 1;
    ui_->unitKMH->setChecked(kmh);
    ui_->unitMPH->setChecked(!kmh);

    const std::string source = settings_.mapSource().value_or("osm");
    const MapRow row = rowOf(source);
    ui_->mapSource->setCurrentIndex(row);
    const bool fromFile = row == MBTilesRow || row == TileFolderRow;
    const QString path = fromFile ? QFile::decodeName(QByteArray::fromStdString(source.substr(source.find(':') + 1)))
                                  : QString();
    ui_->mapSourcePath->setText(path);
    ui_->mapSourcePath->setAccessibleDescription(path);
    ui_->mapSourcePath->setVisible(fromFile);
    if (row == CustomUrlRow) ui_->customUrl->setText(QString::fromStdString(source.substr(4)));
    ui_->customUrl->setEnabled(row == CustomUrlRow);

    ui_->cacheSize->setValue(int(settings_.tileCacheMegabytes()));
    ui_->continuousPlay->setChecked(settings_.continuousPlay());
    ui_->renderer->setCurrentIndex(int(settings_.videoRenderer()));
    // The field being typed in keeps its text.
    if (!ui_->clockCorrection->hasFocus())
        ui_->clockCorrection->setText(QString::fromStdString(clockCorrectionText(settings_.clockCorrectionMinutes())));
}

void PreferencesDialog::connectControls() {
    connect(ui_->unitKMH, &QRadioButton::toggled, this, [this](bool on) {
        if (on) emit unitChosen(1);
    });
    connect(ui_->unitMPH, &QRadioButton::toggled, this, [this](bool on) {
        if (on) emit unitChosen(0);
    });
    connect(ui_->mapSource, &QComboBox::activated, this, [this](int row) { chooseMapSource(row); });
    connect(ui_->customUrl, &QLineEdit::editingFinished, this, [this] { useCustomUrl(); });
    connect(ui_->cacheSize, &QSpinBox::valueChanged, this, [this](int megabytes) { chooseCacheSize(megabytes); });
    connect(ui_->clearCache, &QPushButton::clicked, this, [this] { clearTileCache(); });
    connect(ui_->continuousPlay, &QCheckBox::toggled, this, [this](bool on) { emit continuousPlayChosen(on); });
    connect(ui_->renderer, &QComboBox::activated, this,
            [this](int row) { settings_.setVideoRenderer(static_cast<RendererPreference>(row)); });
    connect(ui_->clockCorrection, &QLineEdit::editingFinished, this, [this] { chooseClockCorrection(); });
}

void PreferencesDialog::showMessage(QLabel* label, const QString& text) {
    label->setText(text);
    label->setAccessibleDescription(text);
    label->setVisible(!text.isEmpty());
}

void PreferencesDialog::chooseMapSource(int row) {
    ui_->customUrl->setEnabled(row == CustomUrlRow);
    if (row != CustomUrlRow) showMessage(ui_->customUrlError, {});
    switch (row) {
        case OpenStreetMapRow: emit mapSourceChosen("osm"); break;
        case OfflineRow: emit mapSourceChosen("offline"); break;
        case MBTilesRow: emit mapFileRequested(false); break;
        case TileFolderRow: emit mapFileRequested(true); break;
        case CustomUrlRow:
            // An empty field waits to be filled; a filled one is used once it passes.
            if (ui_->customUrl->text().trimmed().isEmpty())
                ui_->customUrl->setFocus();
            else
                useCustomUrl();
            break;
        default: break;
    }
}

void PreferencesDialog::useCustomUrl() {
    if (ui_->mapSource->currentIndex() != CustomUrlRow) return;
    const QString urlTemplate = ui_->customUrl->text().trimmed();
    if (const auto problem = checkTileUrlTemplate(urlTemplate)) {
        QString text;
        switch (*problem) {
            case TileUrlProblem::Empty: text = tr("Enter the address of the tile server."); break;
            case TileUrlProblem::NotHttp: text = tr("The address must start with http:// or https://."); break;
            case TileUrlProblem::MissingPlaceholder: text = tr("The address needs {z}, {x} and {y}."); break;
            case TileUrlProblem::NotAUrl: text = tr("This is not a valid address."); break;
        }
        showMessage(ui_->customUrlError, text);
        return;
    }
    showMessage(ui_->customUrlError, {});
    const std::string source = "url:" + urlTemplate.toStdString();
    if (settings_.mapSource() != source) emit mapSourceChosen(source);
}

void PreferencesDialog::chooseCacheSize(int megabytes) {
    if (!kTileCacheMegabytes.contains(megabytes)) {
        showMessage(ui_->cacheError, tr("From %1 to %2 MB.").arg(kTileCacheMegabytes.lowest).arg(kTileCacheMegabytes.highest));
        return;
    }
    showMessage(ui_->cacheError, {});
    emit tileCacheChosen(megabytes);
}

void PreferencesDialog::chooseClockCorrection() {
    const std::optional<int> minutes = parseClockCorrection(ui_->clockCorrection->text().toStdString());
    if (!minutes) {
        showMessage(ui_->clockCorrectionError, tr("Use ±HH:MM, from -23:59 to +23:59."));
        return;
    }
    showMessage(ui_->clockCorrectionError, {});
    ui_->clockCorrection->setText(QString::fromStdString(clockCorrectionText(*minutes)));
    if (*minutes != settings_.clockCorrectionMinutes()) emit clockCorrectionChosen(*minutes);
}

void PreferencesDialog::clearTileCache() {
    if (clearing_) return;
    clearing_ = true;
    ui_->clearCache->setEnabled(false);
    showMessage(ui_->cacheStatus, tr("Clearing…"));
    QPointer<PreferencesDialog> dialog(this);
    QThreadPool::globalInstance()->start([dialog, directory = cacheDirectory_] {
        const int failures = removeTileCacheFiles(directory);
        // Back on the UI thread, if the dialog is still there.
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [dialog, failures] {
                if (dialog == nullptr) return;
                dialog->clearing_ = false;
                dialog->ui_->clearCache->setEnabled(true);
                dialog->showMessage(dialog->ui_->cacheStatus, failures == 0 ? tr("Cache cleared.")
                                                                            : tr("Some files could not be removed."));
                emit dialog->tileCacheCleared();
            },
            Qt::QueuedConnection);
    });
}
