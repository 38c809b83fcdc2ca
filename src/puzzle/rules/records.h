#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/settings_store.h"

namespace ratanka::puzzle {

// The best time of each board size with its player's name, in the user's settings. A time that
// stands there and is no whole number from 1 to 9999 is none: it is neither shown nor to be beaten.
// A name that stands there is cut like a fresh one.
class Records {
 public:
  explicit Records(SettingsStore& store) : store_(store) {}

  // Stores a time in seconds if it is a record: at least 1, below 9999, and less than the stored
  // one. Says whether it was; the player is then asked for a name.
  [[nodiscard]] bool CheckBestTime(int Size, int Seconds);

  // The player's answer, which belongs to the time just stored; empty after Cancel.
  void storeName(int Size, std::string_view answer);

  // A heading and a line for each size; columns apart by tabs, every line ended by \r\n. What isn't
  // stored shows as "-".
  std::string list() const;

 private:
  std::optional<int> bestTime(int Size) const;
  std::string read(const std::string& key, std::string_view fallback) const;

  SettingsStore& store_;
};

}  // namespace ratanka::puzzle
