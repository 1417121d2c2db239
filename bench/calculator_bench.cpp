// Cost of one Compute on a loaded expression, the calculator's hot path: the
// text is converted once and evaluated many times with new variable values.
#include <korvane/calculator.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#ifdef KORVANE_HAVE_MUPARSER
#include <muParser.h>
#endif

namespace {

// 28 postfix tokens (40 in the text), three variables, no transcendental
// function apart from one square root, so the figure is the evaluator's own.
const char *const kExpression = "(X+2*Y-Z/3)*(X-Y)+SQRT(X*X+Y*Y)-Z^2/(1+X*X)";

void BM_CalculatorCompute(benchmark::State &state) {
    static Calculator calc;
    char text[128];
    std::strcpy(text, kExpression);
    if (!calc.Input(text)) {
        state.SkipWithError("expression refused");
        return;
    }
    double v[3] = {0.5, 1.25, -2.0};
    for (auto _ : state) {
        v[0] += 1e-9;
        calc.Assign(v);
        benchmark::DoNotOptimize(calc.Compute());
        benchmark::DoNotOptimize(calc.GetResult());
    }
}
BENCHMARK(BM_CalculatorCompute);

void BM_CalculatorInput(benchmark::State &state) {
    static Calculator calc;
    char text[128];
    for (auto _ : state) {
        std::strcpy(text, kExpression);
        benchmark::DoNotOptimize(calc.Input(text));
    }
}
BENCHMARK(BM_CalculatorInput);

#ifdef KORVANE_HAVE_MUPARSER
// The same expression in muparser, whose names are case-sensitive and whose
// square root is sqrt.
void BM_MuparserEval(benchmark::State &state) {
    double x = 0.5, y = 1.25, z = -2.0;
    mu::Parser p;
    p.DefineVar("X", &x);
    p.DefineVar("Y", &y);
    p.DefineVar("Z", &z);
    p.SetExpr("(X+2*Y-Z/3)*(X-Y)+sqrt(X*X+Y*Y)-Z^2/(1+X*X)");
    for (auto _ : state) {
        x += 1e-9;
        benchmark::DoNotOptimize(p.Eval());
    }
}
BENCHMARK(BM_MuparserEval);

// Prints the ratio of the two per-call times after the run.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &r : runs) {
            // single runs, or the median of repetitions
            if (!r.aggregate_name.empty() && r.aggregate_name != "median")
                continue;
            const std::string &name = r.run_name.function_name;
            if (name == "BM_CalculatorCompute")
                korvane_ = r.GetAdjustedRealTime();
            else if (name == "BM_MuparserEval")
                muparser_ = r.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        if (korvane_ > 0.0 && muparser_ > 0.0)
            std::printf("Calculator::Compute / muparser Eval time ratio: %.2f\n",
                        korvane_ / muparser_);
    }

  private:
    double korvane_ = 0.0;
    double muparser_ = 0.0;
};
#endif

} // namespace

#ifdef KORVANE_HAVE_MUPARSER
int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
#endif
