#pragma once

#include <QString>
#include <optional>

#include "platform/ports/settings_store.h"

namespace ratanka {

// A readable text file for each application, `<folder>/<application>.ini`, with its sections and
// keys. A write is all or nothing: a file is replaced as a whole, under a lock. Of a damaged file
// all is read that can be, and a write leaves the rest of it as it is; a file of more than a
// megabyte is neither read nor written.
class IniSettingsStore : public SettingsStore {
 public:
  // Creates nothing before the first write.
  explicit IniSettingsStore(QString folder) : folder_(std::move(folder)) {}

  // The program's own folder in the desktop's standard place for a user's configuration.
  static QString usersFolder();

  std::string read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view fallback) const override;
  void write(std::string_view application, std::string_view section, std::string_view key,
             std::string_view value) override;

 private:
  QString fileOf(std::string_view application) const;
  std::optional<std::string> find(std::string_view application, std::string_view section,
                                  std::string_view key) const;

  QString folder_;
};

}  // namespace ratanka
