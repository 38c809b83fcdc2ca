#pragma once

#include <string>
#include <string_view>

namespace ratanka {

// The user's text values, addressed by application, section and key; they outlive a run. Texts are
// UTF-8. Nothing here reports a failure: a value that can't be read is its fallback, and a store
// that can't be written forgets.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::string read(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view fallback) const = 0;
  virtual void write(std::string_view application, std::string_view section, std::string_view key,
                     std::string_view value) = 0;
};

}  // namespace ratanka
