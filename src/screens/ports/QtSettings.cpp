#include "ports/QtSettings.h"

namespace zorvane::screens {

namespace {
QString storeKey(const std::string& section, const std::string& key) {
    return QString::fromStdString(section) + QLatin1Char('/') + QString::fromStdString(key);
}
} // namespace

std::string QtSettings::get(const std::string& section, const std::string& key,
                            const std::string& defaultValue) const {
    const QVariant v = store_.value(storeKey(section, key));
    return v.isValid() ? v.toString().toStdString() : defaultValue;
}

void QtSettings::set(const std::string& section, const std::string& key, const std::string& value) {
    store_.setValue(storeKey(section, key), QString::fromStdString(value));
    store_.sync();
}

} // namespace zorvane::screens
