#pragma once

#include <QString>
#include <string_view>

namespace ratanka {

// UTF-8 as the rules speak it, as the toolkit's text.
inline QString text(std::string_view utf8) { return QString::fromUtf8(utf8.data(), utf8.size()); }

}  // namespace ratanka
