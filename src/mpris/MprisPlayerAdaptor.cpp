#include "MprisPlayerAdaptor.h"

#include "MprisPlayerLink.h"
#include "MprisProperties.h"

MprisPlayerAdaptor::MprisPlayerAdaptor(MprisPlayerLink& link) : QDBusAbstractAdaptor(&link), link_(link) {
    connect(&link, &MprisPlayerLink::seeked, this, &MprisPlayerAdaptor::Seeked);
}

QString MprisPlayerAdaptor::playbackStatus() const { return MprisProperties::playbackStatus(link_.state()); }
double MprisPlayerAdaptor::rate() const { return link_.state().rate; }
void MprisPlayerAdaptor::setRate(double rate) { link_.setRate(rate); }
double MprisPlayerAdaptor::minimumRate() const { return MprisProperties::kMinimumRate; }
double MprisPlayerAdaptor::maximumRate() const { return MprisProperties::kMaximumRate; }
QVariantMap MprisPlayerAdaptor::metadata() const { return MprisProperties::metadata(link_.state()); }
double MprisPlayerAdaptor::volume() const { return link_.state().volume; }
void MprisPlayerAdaptor::setVolume(double volume) { link_.setVolume(volume); }
qlonglong MprisPlayerAdaptor::position() const { return MprisProperties::microseconds(link_.positionSeconds()); }
bool MprisPlayerAdaptor::canGoNext() const { return link_.state().canGoNext; }
bool MprisPlayerAdaptor::canGoPrevious() const { return link_.state().canGoPrevious; }
bool MprisPlayerAdaptor::canPlay() const { return link_.state().canPlay; }
bool MprisPlayerAdaptor::canPause() const { return link_.state().canPause; }
bool MprisPlayerAdaptor::canSeek() const { return link_.state().canSeek; }

void MprisPlayerAdaptor::PlayPause() { link_.playPause(); }
void MprisPlayerAdaptor::Play() { link_.play(); }
void MprisPlayerAdaptor::Pause() { link_.pause(); }
void MprisPlayerAdaptor::Stop() { link_.stop(); }
void MprisPlayerAdaptor::Next() { link_.next(); }
void MprisPlayerAdaptor::Previous() { link_.previous(); }
void MprisPlayerAdaptor::Seek(qlonglong Offset) { link_.seekBy(Offset); }
void MprisPlayerAdaptor::SetPosition(const QDBusObjectPath& TrackId, qlonglong Position) {
    link_.setPosition(TrackId, Position);
}
void MprisPlayerAdaptor::OpenUri(const QString& Uri) { link_.openUri(Uri); }
