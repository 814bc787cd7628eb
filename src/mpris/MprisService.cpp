#include "MprisService.h"

#include "MprisPlayerAdaptor.h"
#include "MprisPlayerLink.h"
#include "MprisRootAdaptor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QStringList>
#include <QWidget>

namespace {

const QString kObjectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString kServiceName = QStringLiteral("org.mpris.MediaPlayer2.dashtrack");

// A second window (--new-window) takes the name with its process id, as media players do.
bool registerName(QDBusConnection& bus) {
    if (bus.registerService(kServiceName)) return true;
    return bus.registerService(kServiceName + QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid()));
}

}  // namespace

bool MprisService::publish(MainWindowDelegate& controller, QWidget& window) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return false;
    auto* link = new MprisPlayerLink(controller, window, &window);
    new MprisRootAdaptor(*link);
    new MprisPlayerAdaptor(*link);
    if (!bus.registerObject(kObjectPath, link) || !registerName(bus)) {
        bus.unregisterObject(kObjectPath);
        delete link;
        return false;
    }
    QObject::connect(link, &MprisPlayerLink::playerPropertiesChanged, link, [bus](const QVariantMap& changed) mutable {
        QDBusMessage signal = QDBusMessage::createSignal(kObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                         QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.mpris.MediaPlayer2.Player") << changed << QStringList();
        bus.send(signal);
    });
    link->startWatching();
    return true;
}
