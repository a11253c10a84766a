#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "Quillmonger/detection/JsonDetector.h"
#include "Quillmonger/detection/OculetManager.h"

namespace {

using quillmonger::JsonDetector;

constexpr std::size_t documentSize = 50U << 20U;

std::string repeated(std::string_view part, std::size_t size) {
  std::string text;
  text.reserve(size + part.size());
  while (text.size() < size)
    text += part;
  text.resize(size);
  return text;
}

constexpr std::string_view prose =
    "It was a bright cold day in the north, and the clocks - all of them - were striking. ";
constexpr std::string_view proseWithDigits =
    "The meeting of 12 May 2024, at 10:30 in room 4-5, lasted 90 minutes: 3 of 7 points (43 %) were dealt with. ";
constexpr std::string_view russianProse = "Встреча 12 мая 2024 года в 10:30, комната 4-5, длилась 90 минут. ";
constexpr std::string_view numbered =
    "2024-05-01 12:30:45 - 3 of 7 points, 4-5 of them late, were dealt with at 10:30. ";
constexpr std::string_view call = "rgb(1, 2, 3) is nearly black, as is hsl(1, 2%, 3%) (see the next page). ";

void noMatch(benchmark::State& state, std::string_view part) {
  const auto manager = quillmonger::makeOculetManager();
  const std::string text = repeated(part, static_cast<std::size_t>(state.range(0)));
  for (auto step : state)
    benchmark::DoNotOptimize(manager->detect(text));
}
BENCHMARK_CAPTURE(noMatch, prose, prose)->Arg(80)->Arg(200)->Arg(10 << 20);
BENCHMARK_CAPTURE(noMatch, proseWithDigits, proseWithDigits)->Arg(80)->Arg(200)->Arg(10 << 20);
BENCHMARK_CAPTURE(noMatch, startsWithDate, numbered)->Arg(80)->Arg(200)->Arg(10 << 20);
BENCHMARK_CAPTURE(noMatch, startsWithColor, call)->Arg(80)->Arg(200)->Arg(10 << 20);
BENCHMARK_CAPTURE(noMatch, russianProse, russianProse)->Arg(114)->Arg(200);

void match(benchmark::State& state, const std::string& text) {
  const auto manager = quillmonger::makeOculetManager();
  for (auto step : state)
    benchmark::DoNotOptimize(manager->detect(text));
}
BENCHMARK_CAPTURE(match, integer, "1700000000");
BENCHMARK_CAPTURE(match, iso8601, "2024-05-01T12:30:45Z");
BENCHMARK_CAPTURE(match, datePattern, "2024-05-01");
BENCHMARK_CAPTURE(match, nearlyDate, "555-123-4567");
BENCHMARK_CAPTURE(match, color, "#ff8000");

std::string document() {
  constexpr std::string_view record =
      R"({"id": 123456, "name": "Ann \"A.\" Example", "url": "https://example.org/a/b", "tags": ["a", "b"], "x": -1.5e3},)";
  std::string text = std::string("[").append(repeated(record, documentSize / record.size() * record.size()));
  text.back() = ']';
  return text;
}

void judgeJson(benchmark::State& state) {
  const std::string text = document();
  const JsonDetector detector;
  for (auto step : state) {
    const auto result = detector.detect(text);
    if (!result) state.SkipWithError("the document is refused");
  }
}
BENCHMARK(judgeJson)->Unit(benchmark::kMillisecond);

void judgeOneLongString(benchmark::State& state) {
  const std::string text = std::string("[\"").append(repeated(proseWithDigits, documentSize)).append("\"]");
  const JsonDetector detector;
  for (auto step : state) {
    const auto result = detector.detect(text);
    if (!result) state.SkipWithError("the document is refused");
  }
}
BENCHMARK(judgeOneLongString)->Unit(benchmark::kMillisecond);

void minify(benchmark::State& state) {
  const JsonDetector::JsonResult result(document());
  for (auto step : state)
    benchmark::DoNotOptimize(result.minified());
}
BENCHMARK(minify)->Unit(benchmark::kMillisecond);

void beautify(benchmark::State& state) {
  const JsonDetector::JsonResult result(document());
  for (auto step : state)
    benchmark::DoNotOptimize(result.beautified());
}
BENCHMARK(beautify)->Unit(benchmark::kMillisecond);

}  // namespace
