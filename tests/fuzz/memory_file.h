#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <string>
#include <string_view>

#include "fuzz/law.h"

namespace ratanka {

// A file that no disk has to keep.
class MemoryFile {
 public:
  explicit MemoryFile(std::string_view content) : file_(memfd_create("fuzz", MFD_CLOEXEC)) {
    put(content);
  }
  ~MemoryFile() { close(file_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  void put(std::string_view content) {
    hold(ftruncate(file_, 0) == 0 &&
         pwrite(file_, content.data(), content.size(), 0) == static_cast<ssize_t>(content.size()));
  }

  std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

 private:
  int file_;
};

}  // namespace ratanka
