#pragma once

#include <fstream>
#include <string>
#include <string_view>

// False where the file can't be written whole.
inline bool writeFile(const std::string& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !file.fail();
}
