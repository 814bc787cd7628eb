// dashtrack: the main window, with the movies named on the command line.

#include "AppDelegate.h"
#include "ApplicationIcon.h"
#include "BenchProbe.h"
#include "FFmpegVideoTrackProbe.h"
#include "GPSPlayerView.h"
#include "GPSUtils.h"
#include "InterfaceTranslator.h"
#include "MainWindow.h"
#include "MovieArguments.h"
#include "UiLanguage.h"

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
    // Desktops match the window to dashtrack.desktop (its icon, its name in the task switcher).
    QGuiApplication::setDesktopFileName(QStringLiteral("dashtrack"));
    // libmpv needs C number formatting; QApplication has just set the user's locale.
    std::setlocale(LC_NUMERIC, "C");
    GPSUtils& settings = GPSUtils::sharedUtils();
    settings.setVideoTrackProbe(defaultVideoTrackProbe());

    // The help in the window's language; the window puts in its own translator.
    InterfaceTranslator helpLanguage;
    helpLanguage.use(startupLanguage(settings.language(), QLocale::system().uiLanguages()));
    QCommandLineParser parser;
    parser.setApplicationDescription(QCoreApplication::translate("main", "Plays dash camera movies with their GPS tracks."));
    parser.addHelpOption();
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
    parser.process(app);
    helpLanguage.use(std::string(englishLanguage));

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
    // From argv, not the parser: its QStrings would lose the bytes of a name that is not UTF-8.
    window.controller().openArguments(movieArguments(argc, argv));
    const int status = QApplication::exec();
    // Settings are written in the background; the last change must be on disk before we go.
    settings.flush();
    return status;
}
