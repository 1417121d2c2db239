#include <korvane/calculator.h>

#include "../../src/calculator/calc_containers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <iostream>
#include <limits>
#include <string>

namespace {

// Loads text and checks that it scans and converts.
void load(Calculator &calc, std::string text) {
    ASSERT_TRUE(calc.Input(&text[0])) << text << ": " << calc.GetErrorID();
}

TEST(CalculatorCompute, DivisionByZeroRecordsErrorAndGoesOnWithZero) {
    Calculator calc;
    load(calc, "1/0");
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), 0.0);
    EXPECT_EQ(calc.GetErrorID(), 6);
    EXPECT_EQ(calc.GetErrorLineNo(), 420);

    load(calc, "3+1/(2-2)");
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), 3.0);
    EXPECT_EQ(calc.GetErrorID(), 6);

    load(calc, "1/-0"); // the literal -0.0 compares equal to zero
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetErrorID(), 6);
}

TEST(CalculatorCompute, DivisionErrorOutlivesLaterGoodEvaluations) {
    Calculator calc;
    load(calc, "1/X");
    double x = 0.0;
    calc.Assign(&x);
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetErrorID(), 6);
    x = 2.0;
    calc.Assign(&x);
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), 0.5);
    EXPECT_EQ(calc.GetErrorID(), 6);
}

TEST(CalculatorCompute, NanDivisorIsNoZero) {
    Calculator calc;
    load(calc, "1/X");
    double x = std::numeric_limits<double>::quiet_NaN();
    calc.Assign(&x);
    EXPECT_TRUE(calc.Compute());
    EXPECT_TRUE(std::isnan(calc.GetResult()));
    EXPECT_EQ(calc.GetErrorID(), 0);
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
    EXPECT_EQ(calc.GetErrorID(), 9);
    EXPECT_EQ(calc.GetErrorLineNo(), 506);
    std::string bad = "2X";
    EXPECT_FALSE(calc.Input(&bad[0]));
    EXPECT_FALSE(calc.Compute());
    EXPECT_EQ(calc.GetErrorID(), 9);
    load(calc, "X*2+1"); // never assigned: X is 0.0
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), 1.0);
}

TEST(CalculatorCompute, FunctionsMatchTheMathLibrary) {
    struct Case {
        const char *name;
        double (*fn)(double);
    };
    const Case cases[] = {{"SIN", [](double x) { return std::sin(x); }},
                          {"COS", [](double x) { return std::cos(x); }},
                          {"TAN", [](double x) { return std::tan(x); }},
                          {"SQR", [](double x) { return std::sqrt(x); }},
                          {"LOG10", [](double x) { return std::log10(x); }},
                          {"LOG", [](double x) { return std::log(x); }},
                          {"COT", [](double x) { return 1.0 / std::tan(x); }},
                          {"ABS", [](double x) { return std::fabs(x); }},
                          {"INT", [](double x) { return std::floor(x); }},
                          {"ARCSIN", [](double x) { return std::asin(x); }},
                          {"ARCCOS", [](double x) { return std::acos(x); }},
                          {"ARCTAN", [](double x) { return std::atan(x); }},
                          {"SINH", [](double x) { return std::sinh(x); }},
                          {"COSH", [](double x) { return std::cosh(x); }},
                          {"TANH", [](double x) { return std::tanh(x); }},
                          {"EXP", [](double x) { return std::exp(x); }},
                          {"SQRT", [](double x) { return std::sqrt(x); }}};
    for (const Case &c : cases) {
        Calculator calc;
        load(calc, std::string(c.name) + "(X)");
        double x = 0.3;
        calc.Assign(&x);
        ASSERT_TRUE(calc.Compute()) << c.name;
        EXPECT_EQ(calc.GetResult(), c.fn(x)) << c.name;
    }
    Calculator calc;
    load(calc, "INT(-1.5)+SQR(16)*10");
    ASSERT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), 38.0);
}

TEST(CalculatorCompute, FunctionsAreUnguarded) {
    Calculator calc;
    load(calc, "ARCSIN(2)+SQRT(-1)");
    EXPECT_TRUE(calc.Compute());
    EXPECT_TRUE(std::isnan(calc.GetResult()));
    EXPECT_EQ(calc.GetErrorID(), 0);
    load(calc, "COT(0)");
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), std::numeric_limits<double>::infinity());
    load(calc, "LOG(0)");
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(calc.GetErrorID(), 0);
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

TEST(CalculatorConsole, PromptsForEachVariableThenAnswers) {
    Calculator calc;
    EXPECT_EQ(console(calc, "2*x+Y\n3\n4.5\n"),
              "Input a expression: \n"
              "\nThere seems to be 2 Variable(s) in your expression, please input them :\n"
              "No.1  X = No.2  Y = Answer: 10.5\n");
}

TEST(CalculatorConsole, ReportsScanErrorWithItsSite) {
    Calculator calc;
    EXPECT_EQ(console(calc, "2X\n"),
              "Input a expression: \n\nERROR : missing operator\nNear Line 209\n");
}

TEST(CalculatorConsole, DivisionByZeroIsAnsweredWithoutError) {
    Calculator calc;
    EXPECT_EQ(console(calc, "1/0\n"), "Input a expression: \nAnswer: 0\n");
    EXPECT_EQ(calc.GetErrorID(), 6);
}

TEST(CalculatorConsole, LineEndCountsTowardsTheLengthLimit) {
    Calculator calc;
    EXPECT_EQ(console(calc, "1" + std::string(498, ' ') + "\n"),
              "Input a expression: \nAnswer: 1\n");
    EXPECT_EQ(console(calc, "1" + std::string(499, ' ') + "\n"),
              "Input a expression: \n\nERROR : expression too long\nNear Line 394\n");
}

TEST(CalculatorConsole, FailedReadsCountAsEmptyLineAndZeroValue) {
    Calculator calc;
    EXPECT_EQ(console(calc, ""),
              "Input a expression: \n\nERROR : missing operand\nNear Line 326\n");
    const std::string out = console(calc, "X+1\nnot a number\n");
    EXPECT_NE(out.find("No.1  X = Answer: 1\n"), std::string::npos) << out;
}

using korvane::CalcToken;
using korvane::TokenQueue;

TEST(CalculatorContainers, QueueIsFirstInFirstOutAcrossTheWrap) {
    static TokenQueue q;
    korvane::clearQueue(q);
    CalcToken t = {0, 0, 0, 0.0};
    int next = 0, expected = 0;
    for (; next < 1000; ++next) {
        t.value = next;
        korvane::enqueue(q, t);
    }
    for (int i = 0; i < 600; ++i)
        EXPECT_EQ(korvane::dequeue(q).value, expected++);
    for (int i = 0; i < 600; ++i, ++next) {
        t.value = next;
        korvane::enqueue(q, t);
    }
    EXPECT_EQ(q.count, 1000);
    while (q.count > 0)
        EXPECT_EQ(korvane::dequeue(q).value, expected++);
    EXPECT_EQ(expected, next);
}

TEST(CalculatorContainersDeathTest, AbuseIsFatalWithItsText) {
    const auto fullQueue = [] {
        static TokenQueue q;
        korvane::clearQueue(q);
        const CalcToken t = {0, 0, 0, 0.0};
        for (int i = 0; i <= 1000; ++i)
            korvane::enqueue(q, t);
    };
    EXPECT_EXIT(fullQueue(), testing::ExitedWithCode(1), "Queue overflow!");
    EXPECT_EXIT(
        {
            TokenQueue q;
            korvane::clearQueue(q);
            korvane::dequeue(q);
        },
        testing::ExitedWithCode(1), "Deleting from an empty queue!");
    EXPECT_EXIT(
        {
            static korvane::TokenStack s;
            for (int i = 0; i <= 1000; ++i)
                s.push(CalcToken{});
        },
        testing::ExitedWithCode(1), "Stack overflow!");
    EXPECT_EXIT(
        {
            static korvane::ValueStack s;
            for (int i = 0; i <= 1000; ++i)
                s.push(1.0);
        },
        testing::ExitedWithCode(1), "Stack overflow!");
    EXPECT_EXIT(korvane::TokenStack().pop(), testing::ExitedWithCode(1),
                "Attempt to pop an empty stack!");
    EXPECT_EXIT(korvane::TokenStack().peek(), testing::ExitedWithCode(1),
                "Attempt to peek at an empty stack!");
}

} // namespace
