#pragma once
// One font file registered with Qt for this process, and the name the read-outs ask for, which
// falls back to "Arial" for good once the file could not be registered.

#include <QFont>
#include <QString>

#include <filesystem>
#include <optional>

class LEDFontRegistration {
public:
    // `fontName` is the full name ("Family Style") the file must provide.
    LEDFontRegistration(std::filesystem::path fontFile, QString fontName);

    static QString fallbackFontName() { return QStringLiteral("Arial"); }

    // Adds the file to Qt's fonts; a second call while registered does nothing. On failure the
    // reason goes to stderr as one line and fontName() becomes the fallback, which no later
    // success undoes.
    void Register();
    // Removes the registration. Failure (also: nothing registered) is one line on stderr and has
    // no other effect.
    void Unregister();

    bool isRegistered() const { return fontId_.has_value(); }
    const QString& fontName() const { return fontName_; }
    const std::filesystem::path& fontFile() const { return fontFile_; }

    // A font by full name ("DigifaceWide Regular") at the given size. Qt matches families only,
    // so a name made of an installed family and one of its styles is split into the two.
    static QFont fontNamed(const QString& fullName, qreal pointSize);

private:
    void fail(const QString& reason);

    std::filesystem::path fontFile_;
    QString fontName_;
    std::optional<int> fontId_;
};
