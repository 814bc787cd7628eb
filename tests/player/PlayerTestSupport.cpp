#include "PlayerTestSupport.h"

#include <QFile>

namespace {
// A settings file with no values yet: volume 0, unit MPH, and somewhere to write changes.
constexpr char kEmptySettings[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\"><dict/></plist>\n";
}  // namespace

TempSettings::TempSettings() {
    const QString path = dir_.filePath("Env.plist");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) file.write(kEmptySettings);
    file.close();
    SettingsLocation location;
    location.userFile = QFile::encodeName(path).constData();
    utils_ = std::make_unique<GPSUtils>(location);
}

NonUtf8MovieCopy::NonUtf8MovieCopy(const std::filesystem::path& source) {
    const std::filesystem::path copy =
        std::filesystem::path(QFile::encodeName(dir_.path()).constData()) / ("clip-\xff" + source.extension().string());
    std::error_code error;
    if (std::filesystem::copy_file(source, copy, error)) path_ = copy;
}

NonUtf8MovieCopy::~NonUtf8MovieCopy() {
    std::error_code error;
    if (!path_.empty()) std::filesystem::remove(path_, error);
}
