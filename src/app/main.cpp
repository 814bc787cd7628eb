// dashtrack-window: the main window, with the movies named on the command line. The dashtrack
// launcher starts it when no window of this session takes the movies.

#include "AppDelegate.h"
#include "ApplicationIcon.h"
#include "BenchProbe.h"
#include "BringToFront.h"
#include "FFmpegVideoTrackProbe.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "GPSUtils.h"
#include "InstanceClient.h"
#include "InstanceServer.h"
#include "InstanceSocketName.h"
#include "InterfaceTranslator.h"
#include "MainWindow.h"
#include "MovieArguments.h"
#include "MprisService.h"
#include "UiLanguage.h"
#include "VideoRendererChoice.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>

#include <clocale>
#include <optional>
#include <string>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Dashtrack"));
    QApplication::setWindowIcon(applicationIcon());
    QApplication::setApplicationVersion(QStringLiteral(DASHTRACK_VERSION));
    // Desktops match the window to the installed desktop entry (its icon, its name in the task
    // switcher) by this id.
    QGuiApplication::setDesktopFileName(QStringLiteral(DASHTRACK_APP_ID));
    // libmpv needs C number formatting; QApplication has just set the user's locale.
    std::setlocale(LC_NUMERIC, "C");
    GPSUtils& settings = GPSUtils::sharedUtils();
    settings.setVideoTrackProbe(defaultVideoTrackProbe());
    setPreferredVideoRenderer(rendererPreferenceWord(settings.videoRenderer()));

    // The help in the window's language; the window puts in its own translator.
    InterfaceTranslator helpLanguage;
    helpLanguage.use(startupLanguage(settings.language(), QLocale::system().uiLanguages()));
    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate("main", "Plays dash camera movies with their GPS tracks."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QCoreApplication::translate("main", "movies"),
                                 QCoreApplication::translate("main", "Movie files or folders of movies."),
                                 QStringLiteral("[FILE|FOLDER]..."));
    const QCommandLineOption quitAtEnd(QStringLiteral("quit-at-end"),
                                       QCoreApplication::translate("main", "Quit once a movie has played to its end."));
    parser.addOption(quitAtEnd);
    const QCommandLineOption quitAtFirstFrame(
        QStringLiteral("quit-at-first-frame"),
        QCoreApplication::translate("main", "Quit once the first movie's first frame is on screen (for timing launches)."));
    parser.addOption(quitAtFirstFrame);
    const QCommandLineOption newWindow(
        QStringLiteral("new-window"),
        QStringLiteral("Open a window of its own instead of adding the movies to the one already open."));
    parser.addOption(newWindow);
    parser.process(app);
    helpLanguage.use(std::string(englishLanguage));

    // From argv, not the parser: its QStrings would lose the bytes of a name that is not UTF-8.
    const std::vector<std::filesystem::path> movies = movieArguments(argc, argv);
    // A timed run must measure its own window, never hand over to one that happens to be open.
    const bool ownWindow = parser.isSet(newWindow) || parser.isSet(quitAtEnd) || parser.isSet(quitAtFirstFrame);
    // The launcher has tried already when it started us; started directly, we try here.
    const std::string instanceSocket = instanceSocketName(currentInstanceSocketPlace());
    if (!ownWindow && InstanceClient::handOver(instanceSocket, absoluteArguments(movies))) return 0;

    std::optional<BenchProbe> benchProbe;
    if (BenchProbe::wanted(parser.isSet(quitAtFirstFrame))) benchProbe.emplace(parser.isSet(quitAtFirstFrame));
    MainWindow window(settings);
    window.controller().setQuitAtEnd(parser.isSet(quitAtEnd));
    // Blue while the application is active, grey while not; owned by the window.
    new AppDelegate(&window);
    window.show();
    // A desktop activates a new window itself; without a window manager (a bare X server) nobody
    // would, and the window's set-up waits for its first activation.
    window.activateWindow();
    window.controller().openArguments(movies);
    // Later starts add their movies here, as a drop on the window would.
    InstanceServer instanceServer;
    if (!ownWindow && instanceServer.listen(instanceSocket)) {
        QObject::connect(&instanceServer, &InstanceServer::pathsArrived, &window,
                         [&window, &benchProbe](const std::vector<std::filesystem::path>& paths) {
                             if (benchProbe) benchProbe->handOverArrived();
                             window.controller().openArguments(paths);
                             bringToFront(window);
                         });
    }
    MprisService::publish(window.controller(), window);
    if (benchProbe) benchProbe->watchPlaylist(window.findChild<GPSTableView*>());
    const int status = QApplication::exec();
    // Settings are written in the background; the last change must be on disk before we go.
    settings.flush();
    return status;
}
