#pragma once
#include <map>
#include <string>
#include <utility>

namespace zorvane {

// The per-user settings store of application "zorvane": section and key to text.
class SettingsPort {
  public:
    virtual ~SettingsPort() = default;
    virtual std::string get(const std::string& section, const std::string& key,
                            const std::string& defaultValue) const = 0;
    virtual void set(const std::string& section, const std::string& key,
                     const std::string& value) = 0;
};

// Settings held in memory: tests and the simulator.
class MemorySettings : public SettingsPort {
  public:
    std::string get(const std::string& section, const std::string& key,
                    const std::string& defaultValue) const override {
        auto it = values_.find({section, key});
        return it == values_.end() ? defaultValue : it->second;
    }
    void set(const std::string& section, const std::string& key,
             const std::string& value) override {
        values_[{section, key}] = value;
    }

  private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

} // namespace zorvane
