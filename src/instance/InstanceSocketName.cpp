#include "InstanceSocketName.h"

#include <QCryptographicHash>
#include <QDir>

#include <unistd.h>

QString instanceSocketName(const InstanceSocketPlace& place) {
    if (!place.override.isEmpty()) return place.override;
    const QByteArray session = (place.runtimeDir + u'\n' + place.display + u'\n' + place.waylandDisplay).toUtf8();
    const QString digest =
        QString::fromLatin1(QCryptographicHash::hash(session, QCryptographicHash::Sha1).toHex().left(12));
    const QString name = QStringLiteral("dashtrack-%1-%2").arg(place.userId).arg(digest);
    if (place.runtimeDir.isEmpty()) return name;
    return QDir(place.runtimeDir).filePath(name);
}

InstanceSocketPlace currentInstanceSocketPlace() {
    return {
        .userId = static_cast<unsigned>(::getuid()),
        .runtimeDir = qEnvironmentVariable("XDG_RUNTIME_DIR"),
        .display = qEnvironmentVariable("DISPLAY"),
        .waylandDisplay = qEnvironmentVariable("WAYLAND_DISPLAY"),
        .override = qEnvironmentVariable("DASHTRACK_INSTANCE_SOCKET"),
    };
}
