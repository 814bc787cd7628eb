#include "MprisRootAdaptor.h"

#include "MprisPlayerLink.h"
#include "MprisProperties.h"

MprisRootAdaptor::MprisRootAdaptor(MprisPlayerLink& link) : QDBusAbstractAdaptor(&link), link_(link) {}

QString MprisRootAdaptor::identity() const { return QStringLiteral("Dashtrack"); }

// The launcher entry resources/ installs, without its ".desktop".
QString MprisRootAdaptor::desktopEntry() const { return QStringLiteral("dashtrack"); }

QStringList MprisRootAdaptor::supportedUriSchemes() const { return {QStringLiteral("file")}; }

QStringList MprisRootAdaptor::supportedMimeTypes() const { return MprisProperties::supportedMimeTypes(); }

void MprisRootAdaptor::Raise() { link_.raiseWindow(); }

void MprisRootAdaptor::Quit() { link_.quit(); }
