#pragma once

#include <QString>
#include <span>
#include <string_view>

#include "platform/ini_text.h"

namespace ratanka {

// Sets values in one section of a settings file, in this order, and keeps all else of it. The file
// is replaced as a whole: it has its old content or the new one at every moment. Where it can't be
// written nothing happens.
void writeIniValues(const QString& path, std::string_view section,
                    std::span<const IniValue> values);

}  // namespace ratanka
