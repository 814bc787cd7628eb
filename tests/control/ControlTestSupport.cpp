#include "ControlTestSupport.h"

#include <QCoreApplication>

#include <array>
#include <utility>

bool NameProbe::hasVideoTrack(const std::filesystem::path& file) const {
    const std::string name = file.filename().string();
    {
        std::unique_lock lock(mutex_);
        threads_.insert(std::this_thread::get_id());
        if (name.starts_with("held")) released_.wait(lock, [this] { return isReleased_; });
    }
    ++calls_;
    return name.starts_with("movie");
}

void NameProbe::release() {
    {
        std::lock_guard lock(mutex_);
        isReleased_ = true;
    }
    released_.notify_all();
}

std::set<std::thread::id> NameProbe::threads() const {
    std::lock_guard lock(mutex_);
    return threads_;
}

ProbedSettings::ProbedSettings() {
    SettingsLocation location;
    location.userFile = std::filesystem::path(dir_.path().toStdString()) / "Env.plist";
    utils_ = std::make_unique<GPSUtils>(location, probe_);
}

QKeyEvent keyEvent(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, bool autoRepeat) {
    return QKeyEvent(type, key, modifiers, QString(), autoRepeat);
}

void pressModifiers(QObject* receiver, Qt::KeyboardModifiers modifiers) {
    const std::array<std::pair<Qt::KeyboardModifier, int>, 4> keys{{
        {Qt::ControlModifier, Qt::Key_Control},
        {Qt::ShiftModifier, Qt::Key_Shift},
        {Qt::MetaModifier, Qt::Key_Meta},
        {Qt::AltModifier, Qt::Key_Alt},
    }};
    Qt::KeyboardModifiers held;
    for (const auto& [modifier, key] : keys) {
        if (!modifiers.testFlag(modifier)) continue;
        QKeyEvent press = keyEvent(QEvent::KeyPress, key, held);
        QCoreApplication::sendEvent(receiver, &press);
        held |= modifier;
    }
}
