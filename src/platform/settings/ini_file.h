#pragma once

#include <QString>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/plain/ini_text.h"

namespace ratanka {

// A settings file as it is, empty where there is none; nothing where it can't be read or is too
// large to be one of ours.
std::optional<std::string> readIniFile(const QString& path);

// Sets values in one section of a settings file, in this order, and keeps all else of it. The file
// is replaced as a whole: it has its old content or the new one at every moment, whoever else
// writes at the same time and whoever is killed in the middle. Where it can't be read or written
// nothing happens.
void writeIniValues(const QString& path, std::string_view section,
                    std::span<const IniValue> values);

}  // namespace ratanka
