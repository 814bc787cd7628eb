#include "MprisRootAdaptor.h"

#include "MprisPlayerLink.h"
#include "MprisProperties.h"

#include <QGuiApplication>

MprisRootAdaptor::MprisRootAdaptor(MprisPlayerLink& link) : QDBusAbstractAdaptor(&link), link_(link) {}

QString MprisRootAdaptor::identity() const { return QStringLiteral("Dashtrack"); }

// The installed desktop entry's name without its ".desktop": the one the window names itself by.
QString MprisRootAdaptor::desktopEntry() const { return QGuiApplication::desktopFileName(); }

QStringList MprisRootAdaptor::supportedUriSchemes() const { return {QStringLiteral("file")}; }

QStringList MprisRootAdaptor::supportedMimeTypes() const { return MprisProperties::supportedMimeTypes(); }

void MprisRootAdaptor::Raise() { link_.raiseWindow(); }

void MprisRootAdaptor::Quit() { link_.quit(); }
