#pragma once
#include "core/SettingsPort.h"

#include <QSettings>

namespace zorvane::screens {

// The per-user settings store of application "zorvane" (section and key to text) in
// QSettings. Every change is written at once: the game ends its process with no clean-up.
class QtSettings : public SettingsPort {
  public:
    QtSettings() : store_(QStringLiteral("zorvane"), QStringLiteral("zorvane")) {}
    std::string get(const std::string& section, const std::string& key,
                    const std::string& defaultValue) const override;
    void set(const std::string& section, const std::string& key, const std::string& value) override;

  private:
    mutable QSettings store_;
};

} // namespace zorvane::screens
