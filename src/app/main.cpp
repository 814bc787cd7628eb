// dashtrack: a window that plays one movie with its GPS track.

#include "FFmpegVideoTrackProbe.h"
#include "GPSUtils.h"
#include "MovieArguments.h"
#include "PlayerWindow.h"

#include <QApplication>
#include <QCommandLineParser>

#include <clocale>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Dashtrack"));
    // libmpv needs C number formatting; QApplication has just set the user's locale.
    std::setlocale(LC_NUMERIC, "C");
    GPSUtils::sharedUtils().setVideoTrackProbe(defaultVideoTrackProbe());

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Plays a dash camera movie with its GPS track."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("movie"), QStringLiteral("The movie to play."));
    const QCommandLineOption quitAtEnd(QStringLiteral("quit-at-end"),
                                       QStringLiteral("Quit once the movie has played to its end."));
    parser.addOption(quitAtEnd);
    parser.process(app);

    PlayerWindow window({.quitAtEnd = parser.isSet(quitAtEnd)});
    window.show();
    // From argv, not the parser: its QStrings would lose the bytes of a name that is not UTF-8.
    if (const auto movies = movieArguments(argc, argv); !movies.empty()) window.play(movies.front());
    const int status = QApplication::exec();
    // Settings are written in the background; the last change must be on disk before we go.
    GPSUtils::sharedUtils().flush();
    return status;
}
