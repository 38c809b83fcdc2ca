#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "soak/whole_program.h"

namespace ratanka::soak {

// What must hold whatever a child does, looked at before each event; what doesn't ends the process.
class Laws {
 public:
  explicit Laws(std::int64_t events) : events_(events) {}  // of all runs together

  // One run of the program, from its start to its end.
  void beginVisit();
  // depth: loops within loops, 1 while nothing waits.
  void look(const WholeProgram& program, int depth);
  void endVisit(const WholeProgram& program);
  // When the program of a visit is taken apart.
  static void lookAfterwards();
  // After the last: what was seen.
  void report(double seconds);

 private:
  void lookAtForms(const WholeProgram& program, const std::vector<QWidget*>& windows);
  void lookAtModal(const QWidget* modal);
  void measure();

  static constexpr std::size_t kTenths = 10;

  const std::int64_t events_;
  int turns_ = 0;  // of this visit
  int turnsWithoutWindow_ = 0;
  int deepest_ = 0;
  std::int64_t visits_ = 0;
  std::map<FormName, bool> wasLoaded_;
  std::map<std::string, std::int64_t> opened_;
  std::map<std::string, std::int64_t> boxes_;  // and modal forms, by their titles
  const QWidget* lastModal_ = nullptr;         // never looked into
  std::array<double, kTenths> peaks_{};        // in MB; 0 where nothing was measured
};

}  // namespace ratanka::soak
