#include <benchmark/benchmark.h>

#include "platform/twister_random.h"
#include "sheets/rules/sums.h"
#include "sheets/rules/worksheet.h"

namespace ratanka::sheets {
namespace {

// One set of a visit: nine examples drawn, answered rightly, judged, and the mark worked out.
void aSetOfSmallSums(benchmark::State& state) {
  TwisterRandom random;
  Worksheet worksheet(Worksheet::Percentage::exact);
  worksheet.beginVisit(malá::ShowStart(random));
  while (state.KeepRunning()) {
    for (int row = 1; row <= kRows; ++row) {
      benchmark::DoNotOptimize(worksheet.close(row));
      worksheet.judge(row, std::to_string(worksheet.row(row).example.Výsledok));
    }
    benchmark::DoNotOptimize(worksheet.ShowVysvedčenie());
    worksheet.ShowOpakuj(malá::ShowStart(random));
  }
  // A set that was judged wrongly would be no measure of anything.
  if (worksheet.Nesprávne().count != 0) state.SkipWithError("a right answer was judged wrong");
}
BENCHMARK(aSetOfSmallSums)->Name("a set of small sums")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ratanka::sheets

BENCHMARK_MAIN();
