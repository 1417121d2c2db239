#include <korvane/calculator.h>

#include "../../src/calculator/calc_containers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <iostream>
#include <string>

namespace {

// Loads text and checks that it scans and converts.
void load(Calculator &calc, std::string text) {
    ASSERT_TRUE(calc.Input(&text[0])) << text << ": " << calc.GetErrorID();
}

// Evaluates a one-variable expression at x.
double at(Calculator &calc, double x) {
    calc.Assign(&x);
    EXPECT_TRUE(calc.Compute());
    return calc.GetResult();
}

TEST(CalculatorCompute, DivisionByExactlyZeroRecordsErrorGoesOnWithZeroAndTheErrorStays) {
    Calculator calc;
    load(calc, "3+1/X");
    EXPECT_TRUE(at(calc, 0.0) == 3.0 && calc.GetErrorID() == 6 && calc.GetErrorLineNo() == 420);
    EXPECT_TRUE(at(calc, 2.0) == 3.5 && calc.GetErrorID() == 6); // not reset by Compute
    load(calc, "1/X");
    EXPECT_TRUE(std::isnan(at(calc, std::nan(""))) && calc.GetErrorID() == 0); // NaN is no zero
    load(calc, "1/-0"); // the literal -0.0 compares equal to zero
    EXPECT_TRUE(at(calc, 0.0) == 0.0 && calc.GetErrorID() == 6);
}

TEST(CalculatorCompute, RepeatsWithNewValuesInTheOrderOfFirstAppearance) {
    Calculator calc;
    load(calc, "(Y+2*X-Z/3)*(Y-X)+Z^2/(1+Y*Y)");
    ASSERT_STREQ(calc.GetVariableName(0), "Y");
    for (double k = -2.0; k <= 2.0; k += 0.25) {
        const double y = k, x = 1.5 - k, z = 0.1 * k;
        double v[3] = {y, x, z};
        calc.Assign(v);
        ASSERT_TRUE(calc.Compute());
        const double first = calc.GetResult();
        ASSERT_TRUE(calc.Compute());
        EXPECT_EQ(calc.GetResult(), first);
        EXPECT_EQ(first, (y + 2 * x - z / 3) * (y - x) + std::pow(z, 2.0) / (1 + y * y));
    }
}

TEST(CalculatorCompute, NothingToEvaluateIsError9) {
    Calculator calc;
    EXPECT_FALSE(calc.Compute());
    EXPECT_TRUE(calc.GetErrorID() == 9 && calc.GetErrorLineNo() == 506);
    std::string bad = "2X";
    EXPECT_FALSE(calc.Input(&bad[0]) || calc.Compute());
    EXPECT_EQ(calc.GetErrorID(), 9);
    load(calc, "X*2+1"); // never assigned: X is 0.0
    EXPECT_TRUE(calc.Compute() && calc.GetResult() == 1.0);
}

// The functions are unguarded: outside their domain they give what the math
// library gives (NaN, infinities) and record no error.
TEST(CalculatorCompute, FunctionsMatchTheMathLibraryEvenOutsideTheirDomain) {
    const char *names[] = {"SIN",  "COS",  "TAN",  "SQR",    "LOG10",  "LOG",
                           "COT",  "ABS",  "INT",  "ARCSIN", "ARCCOS", "ARCTAN",
                           "SINH", "COSH", "TANH", "EXP",    "SQRT"};
    const auto cot = [](double x) { return 1.0 / std::tan(x); };
    double (*const fns[])(double) = {::sin,  ::cos,  ::tan,   ::sqrt, ::log10, ::log,
                                     cot,    ::fabs, ::floor, ::asin, ::acos,  ::atan,
                                     ::sinh, ::cosh, ::tanh,  ::exp,  ::sqrt};
    for (int i = 0; i < 17; ++i) {
        Calculator calc;
        load(calc, std::string(names[i]) + "(X)");
        for (double x : {0.3, -1.5, 0.0, 2.0}) {
            const double got = at(calc, x), want = fns[i](x);
            EXPECT_TRUE(got == want || (std::isnan(got) && std::isnan(want)))
                << names[i] << " at " << x;
            EXPECT_EQ(calc.GetErrorID(), 0);
        }
    }
    Calculator calc;
    load(calc, "INT(-1.5)+SQR(16)*10");
    EXPECT_EQ(at(calc, 0.0), 38.0);
}

TEST(CalculatorComputeDeathTest, OperatorWithoutOperandsEndsTheProcess) {
    Calculator calc;
    load(calc, "(1+)2");
    EXPECT_EXIT(calc.Compute(), testing::ExitedWithCode(1), "^Attempt to pop an empty stack!\n");
}

// The console pass reads stdin with fgets and the values with cin, so the
// test puts a file behind stdin and captures stdout.
std::string console(Calculator &calc, const std::string &in) {
    const std::string path = testing::TempDir() + "korvane_console_" +
                             testing::UnitTest::GetInstance()->current_test_info()->name();
    std::FILE *f = std::fopen(path.c_str(), "w");
    std::fputs(in.c_str(), f);
    std::fclose(f);
    EXPECT_NE(std::freopen(path.c_str(), "r", stdin), nullptr);
    std::cin.clear();
    testing::internal::CaptureStdout();
    calc.Test();
    const std::string out = testing::internal::GetCapturedStdout();
    std::remove(path.c_str());
    return out;
}

TEST(CalculatorConsole, TranscriptsOfAnswersAndErrors) {
    const std::string prompt = "Input a expression: \n";
    const char *const cases[][2] = {
        {"2*x+Y\n3\n4.5\n",
         "\nThere seems to be 2 Variable(s) in your expression, please input them :\n"
         "No.1  X = No.2  Y = Answer: 10.5\n"},
        {"2X\n", "\nERROR : missing operator\nNear Line 209\n"},
        {"1/0\n", "Answer: 0\n"}, // division by zero is answered without error
        {"", "\nERROR : missing operand\nNear Line 326\n"}, // a failed read is an empty line
    };
    for (const auto &c : cases) {
        Calculator calc;
        EXPECT_EQ(console(calc, c[0]), prompt + c[1]);
    }
    Calculator calc;
    // The line end counts towards the length limit.
    EXPECT_EQ(console(calc, "1" + std::string(498, ' ') + "\n"), prompt + "Answer: 1\n");
    EXPECT_EQ(console(calc, "1" + std::string(499, ' ') + "\n"),
              prompt + "\nERROR : expression too long\nNear Line 394\n");
    const std::string out = console(calc, "X+1\nnot a number\n"); // a failed value is 0
    EXPECT_NE(out.find("No.1  X = Answer: 1\n"), std::string::npos) << out;
}

using korvane::CalcToken;
using korvane::TokenQueue;

TEST(CalculatorContainers, QueueIsFirstInFirstOutAcrossTheWrap) {
    static TokenQueue q;
    korvane::clearQueue(q);
    int next = 0, expected = 0;
    for (int n : {1000, -600, 600, -1000}) { // full, then around the end of the array
        for (int i = 0; i < n; ++i)
            korvane::enqueue(q, CalcToken{0, 0, 0, double(next++)});
        for (int i = 0; i < -n; ++i)
            EXPECT_EQ(korvane::dequeue(q).value, expected++);
    }
    EXPECT_TRUE(q.count == 0 && expected == 1600 && next == 1600);
}

TEST(CalculatorContainersDeathTest, AbuseIsFatalWithItsText) {
    static TokenQueue q;
    static korvane::TokenStack tokens;
    static korvane::ValueStack values;
    const auto fill = [](auto push) {
        for (int i = 0; i <= 1000; ++i)
            push();
    };
    korvane::clearQueue(q);
    EXPECT_EXIT(fill([] { korvane::enqueue(q, CalcToken{}); }), testing::ExitedWithCode(1),
                "Queue overflow!");
    EXPECT_EXIT(korvane::dequeue(q), testing::ExitedWithCode(1), "Deleting from an empty queue!");
    EXPECT_EXIT(fill([] { tokens.push(CalcToken{}); }), testing::ExitedWithCode(1),
                "Stack overflow!");
    EXPECT_EXIT(fill([] { values.push(1.0); }), testing::ExitedWithCode(1), "Stack overflow!");
    EXPECT_EXIT(tokens.pop(), testing::ExitedWithCode(1), "Attempt to pop an empty stack!");
    EXPECT_EXIT(tokens.peek(), testing::ExitedWithCode(1), "Attempt to peek at an empty stack!");
}

} // namespace
