#include "soak/laws.h"

#include <QApplication>
#include <algorithm>
#include <cstdio>

#include "platform/base/text.h"
#include "soak/diary.h"
#include "soak/hands.h"
#include "soak/heap.h"

namespace ratanka::soak {
namespace {

constexpr int kNothingSeen = 500;  // events without a window while the program runs
constexpr std::size_t kTicking = 100;
constexpr int kTopLevels = 250;
constexpr std::int64_t kAllForms = 100'000;  // events in which each form comes up
// From the first tenth to the last, in MB: the toolkit's cache of pictures fills to 10 and stays
// there.
constexpr double kGrowth = 16;

bool isForm(const QString& window) {
  return std::ranges::any_of(allSeenForms(),
                             [&](FormName name) { return text(name.text()) == window; });
}

}  // namespace

void Laws::beginVisit() {
  wasLoaded_.clear();
  turns_ = 0;
  turnsWithoutWindow_ = 0;
}

void Laws::look(const WholeProgram& program, int depth) {
  ++turns_;
  deepest_ = std::max(deepest_, depth);
  const std::vector<QWidget*> windows = Hands::windows();
  lookAtForms(program, windows);
  for (const ListedSheet& sheet : kSheetList) {
    const double percent = program.premenné.*sheet.percento;
    if (!(percent >= 0 && percent <= 100)) fail("a percentage out of bounds");
  }
  const QWidget* const modal = QApplication::activeModalWidget();
  lookAtModal(modal);
  turnsWithoutWindow_ = windows.empty() ? turnsWithoutWindow_ + 1 : 0;
  if (turnsWithoutWindow_ > kNothingSeen) fail("the program runs on and nothing is seen");
  if (depth > 1) return;
  if (modal != nullptr) fail("a modal window that nobody waits for");
  if (windows.empty() && turns_ > 1) fail("the last window is gone and the program isn't");
  if (program.ticks.running() > kTicking) fail("timers pile up");
  if (QApplication::topLevelWidgets().size() > kTopLevels) fail("windows pile up");
  measure();
}

void Laws::lookAtForms(const WholeProgram& program, const std::vector<QWidget*>& windows) {
  for (const FormName name : allSeenForms()) {
    const bool isLoaded = program.forms.isLoaded(name);
    const auto seen = std::count_if(windows.begin(), windows.end(), [name](const QWidget* each) {
      return each->objectName() == text(name.text());
    });
    if (seen > (isLoaded ? 1 : 0)) fail("a window too many of " + std::string(name.text()));
    bool& was = wasLoaded_[name];
    if (isLoaded && !was) ++opened_[std::string(name.text())];
    was = isLoaded;
  }
}

void Laws::lookAtModal(const QWidget* modal) {
  if (modal != nullptr && modal != lastModal_) ++boxes_[modal->windowTitle().toStdString()];
  lastModal_ = modal;
  if (modal != nullptr && !modal->isVisible()) fail("an unseen window locks the others");
}

void Laws::measure() {
  if (diary.event % 20 != 0) return;
  const auto tenth = static_cast<std::size_t>((diary.event - 1) * std::int64_t{kTenths} / events_);
  peaks_.at(tenth) = std::max(peaks_.at(tenth), static_cast<double>(heapBytes()) / 1e6);
}

void Laws::endVisit(const WholeProgram& program) {
  if (!program.forms.isEnding()) fail("the event loop ended before the program");
  if (!Hands::windows().empty()) fail("a window outlives its program");
  opened_["frmSplash"] += program.starts;
  ++visits_;
}

void Laws::lookAfterwards() {
  for (const QWidget* const left : QApplication::topLevelWidgets()) {
    const QString name = left->objectName();
    if (name == "MsgBox" || name == "InputBox" || isForm(name)) {
      fail("a window stays in memory: " + name.toStdString());
    }
  }
}

void Laws::report(double seconds) {
  std::printf("%lld events in %.1f s, %.0f a second; %lld programs\n",
              static_cast<long long>(diary.event), seconds,
              static_cast<double>(diary.event) / seconds, static_cast<long long>(visits_));
  bool isMissing = false;
  for (const FormName name : allSeenForms()) opened_[std::string(name.text())] += 0;
  for (const auto& [name, times] : opened_) {
    std::printf("  %s: %lld\n", name.c_str(), static_cast<long long>(times));
    isMissing = isMissing || times == 0;
  }
  std::printf("%d loops within each other at most; boxes:\n", deepest_);
  for (const auto& [title, times] : boxes_) {
    std::printf("  %s: %lld\n", title.c_str(), static_cast<long long>(times));
  }
  std::printf("peak memory in MB, by tenths:");
  for (const double peak : peaks_) std::printf(" %.1f", peak);
  std::printf("\n");
  std::fflush(stdout);
  if (diary.event >= kAllForms) {
    if (isMissing) fail("a form never came up");
    if (std::ranges::count(peaks_, 0) > 0) fail("memory wasn't measured all the way");
  }
  if (peaks_.back() - peaks_.front() > kGrowth) fail("memory grows");
}

}  // namespace ratanka::soak
