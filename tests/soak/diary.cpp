#include "soak/diary.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace ratanka::soak {
namespace {

constexpr std::chrono::seconds kHang{20};

}  // namespace

Diary diary;

void Diary::write(const std::string& what) {
  const std::int64_t number = event;
  std::snprintf(lines_[static_cast<std::size_t>(number) % kLines], sizeof lines_[0], "%lld: %s",
                static_cast<long long>(number), what.c_str());
}

void Diary::print() const {
  std::fprintf(stderr, "\nseed %llu, event %lld; before it:\n",
               static_cast<unsigned long long>(seed), static_cast<long long>(event));
  for (std::size_t line = 1; line <= kLines; ++line) {
    std::fprintf(stderr, "  %s\n", lines_[(static_cast<std::size_t>(event) + line) % kLines]);
  }
}

void fail(const std::string& what) {
  std::fprintf(stderr, "\nsoak: %s\n", what.c_str());
  diary.print();
  std::fflush(stderr);
  std::abort();
}

Watchdog::~Watchdog() {
  isOver_ = true;
  thread_.join();
}

void Watchdog::watch() const {
  std::int64_t last = -1;
  auto since = std::chrono::steady_clock::now();
  while (!isOver_) {
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    const auto now = std::chrono::steady_clock::now();
    if (diary.event != last) {
      last = diary.event;
      since = now;
    }
    if (now - since > kHang) fail("hangs");
  }
}

}  // namespace ratanka::soak
