#include "LEDFontRegistration.h"

#include <QFontDatabase>
#include <QStringList>

#include <cstdio>
#include <fstream>
#include <system_error>
#include <utility>

namespace {

QString pathText(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

// Qt only says that a file could not be added, and warns on its own about some files: what
// can be found out first is found out here, so that a failure stays one line of ours.
std::optional<QString> whyUnreadable(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error)) return QStringLiteral("the file does not exist");
    if (!std::filesystem::is_regular_file(file, error)) return QStringLiteral("it is not a regular file");
    if (!std::ifstream(file, std::ios::binary).good()) return QStringLiteral("the file cannot be read");
    return std::nullopt;
}

// The family and style that make up `fullName`, when `family` is one of `families`.
std::optional<std::pair<QString, QString>> splitFullName(const QString& fullName, const QStringList& families) {
    for (const QString& family : families) {
        if (!fullName.startsWith(family + QLatin1Char(' '))) continue;
        const QString style = fullName.mid(family.size() + 1);
        if (QFontDatabase::styles(family).contains(style)) return std::pair{family, style};
    }
    return std::nullopt;
}

}  // namespace

LEDFontRegistration::LEDFontRegistration(std::filesystem::path fontFile, QString fontName)
    : fontFile_(std::move(fontFile)), fontName_(std::move(fontName)) {}

void LEDFontRegistration::Register() {
    if (fontId_) return;
    if (const auto reason = whyUnreadable(fontFile_)) {
        fail(*reason);
        return;
    }
    const int id = QFontDatabase::addApplicationFont(pathText(fontFile_));
    if (id < 0) {
        fail(QStringLiteral("it is not a font Qt can load"));
        return;
    }
    // A font file of another face would leave the read-outs asking for a name nobody provides.
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (fontName_ != fallbackFontName() && !families.contains(fontName_) && !splitFullName(fontName_, families)) {
        QFontDatabase::removeApplicationFont(id);
        fail(QStringLiteral("it holds %1, not %2").arg(families.join(QStringLiteral(", ")), fontName_));
        return;
    }
    fontId_ = id;
}

void LEDFontRegistration::Unregister() {
    if (!fontId_) {
        std::fprintf(stderr, "dashtrack: cannot unregister the LED font %s: it is not registered\n",
                     fontFile_.string().c_str());
        return;
    }
    const int id = *std::exchange(fontId_, std::nullopt);
    if (!QFontDatabase::removeApplicationFont(id))
        std::fprintf(stderr, "dashtrack: cannot unregister the LED font %s\n", fontFile_.string().c_str());
}

void LEDFontRegistration::fail(const QString& reason) {
    std::fprintf(stderr, "dashtrack: cannot register the LED font %s: %s\n", fontFile_.string().c_str(),
                 reason.toLocal8Bit().constData());
    fontName_ = fallbackFontName();
}

QFont LEDFontRegistration::fontNamed(const QString& fullName, qreal pointSize) {
    QFont font(fullName);
    if (!QFontDatabase::hasFamily(fullName)) {
        if (const auto parts = splitFullName(fullName, QFontDatabase::families())) {
            font.setFamily(parts->first);
            font.setStyleName(parts->second);
        }
    }
    font.setPointSizeF(pointSize);
    return font;
}
