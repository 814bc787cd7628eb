// The controller's part in a change of language: the texts it made in code, said again. The
// interface description's texts are the window's (retranslateUi), and the widgets that make
// their own texts say them again on their own LanguageChange.

#include "MainWindowDelegate.h"

#include "GPSInfoPanel.h"
#include "GPSPlayerView.h"
#include "PlaylistTableModel.h"

#include <QFile>

void MainWindowDelegate::retranslate() {
    // Before the set-up nothing has been said in code yet.
    if (!isInited) return;
    // The read-outs' words may need another font than the LED one in this language.
    infoPanel().setupFonts();
    // The interface description's unit text is the window's default, not the chosen unit.
    RefreshUnits();
    if (playlistModel_ != nullptr) playlistModel_->retranslate();
    refreshTrips();
    if (entryFailed_ && curIndex >= 0 && static_cast<uint64_t>(curIndex) < playlist.size() &&
        outlets_.player != nullptr) {
        const std::filesystem::path& file = playlistURL(curIndex);
        if (const auto problem = clipProblems_.find(file); problem != clipProblems_.end())
            outlets_.player->showMessage(tr(qPrintable(problem->second)), QFile::decodeName(file.c_str()));
    }
}
