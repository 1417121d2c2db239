#include <korvane/calculator.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

bool input(Calculator &calc, std::string text) {
    return calc.Input(&text[0]);
}

// Evaluates an expression without variables; NaN when it does not compute.
double eval(const char *text) {
    Calculator calc;
    return input(calc, text) && calc.Compute() ? calc.GetResult() : std::nan("");
}

// The variable names, blank-separated, in the order of first appearance.
std::string names(Calculator &calc) {
    std::string s;
    for (int i = 0; i < calc.GetNumberOfVariables(); ++i)
        s += std::string(i ? " " : "") + calc.GetVariableName(i);
    return s;
}

TEST(CalculatorInput, UpperCasesTheCallerBufferAndDropsForeignCharacters) {
    Calculator calc;
    char text[] = "x_1 + y,2\t-\nz", blank[] = "SIN x";
    ASSERT_TRUE(calc.Input(text));
    EXPECT_STREQ(text, "X_1 + Y,2\t-\nZ");
    EXPECT_EQ(names(calc), "X1 Y2 Z");
    ASSERT_TRUE(calc.Input(text)); // already upper case: the same expression
    EXPECT_EQ(names(calc), "X1 Y2 Z");
    ASSERT_TRUE(calc.Input(blank));
    EXPECT_EQ(names(calc), "SINX");
}

TEST(CalculatorInput, LengthIsMeasuredBeforeFiltering) {
    Calculator calc;
    EXPECT_TRUE(input(calc, "x" + std::string(499, ' ')));
    std::string longText = "x" + std::string(500, ' ');
    EXPECT_FALSE(calc.Input(&longText[0]));
    EXPECT_TRUE(calc.GetErrorID() == 1 && calc.GetErrorLineNo() == 394);
    EXPECT_EQ(longText[0], 'x'); // refused before upper-casing
    EXPECT_EQ(calc.GetNumberOfVariables(), 0);
}

TEST(CalculatorInput, FaultsReportTheirIdAndSite) {
    const struct {
        std::string text;
        int id, site;
    } cases[] = {
        {"", 2, 326}, // nothing to scan is a missing operand
        {" ,;\n", 2, 326},
        {"()", 2, 326},
        {"SIN", 2, 326},
        {"(1+", 2, 326},
        {"5-", 2, 326},
        {"1))", 4, 360}, // a second ')' meets the first on the stack
        {"2X", 3, 209},  // the operand balance
        {"1E5", 3, 209}, // no exponent syntax: 1 then the name E5
        {"X(2)", 3, 257},
        {"X(X)", 3, 195},
        {"*3", 7, 177},
        {"2*/3", 7, 177},
        {"^X", 7, 177},
        {"1+2)", 4, 360}, // parentheses
        {"(1", 5, 380},
        {"((1+2)", 5, 380},
        {std::string(30, 'Q'), 11, 148}, // names of 30 characters
        {"SIN" + std::string(27, '9'), 11, 148},
    };
    for (const auto &c : cases) {
        Calculator calc;
        EXPECT_FALSE(input(calc, c.text)) << c.text;
        EXPECT_TRUE(calc.GetErrorID() == c.id && calc.GetErrorLineNo() == c.site)
            << c.text << ": " << calc.GetErrorID() << " at " << calc.GetErrorLineNo();
    }
}

TEST(CalculatorInput, ValuesSettleTheGrammar) {
    const std::pair<const char *, double> cases[] = {
        {"1,000 + 2", 1002.0}, // foreign characters and blanks are dropped
        {"3 4", 34.0},
        {"1.2.3", 1.2}, // numbers stop where the conversion stops
        {".5+1.", 1.5},
        {"-2^2", 4.0}, // a sign at the start or after an operator is part of the literal
        {"0-2^2", -4.0},
        {"2*-3", -6.0},
        {"2^-1", 0.5},
        {"(-3)*2", -6.0},
        {"--5", 5.0},
        {"1-2-3", -4.0},
        {"1)", 1.0}, // an unmatched ) on an empty stack is accepted
        {"1)+2", 3.0},
        {"2*SQRT 9", 0.0}, // names are read greedily: the unassigned variable SQRT9
        {"LOG10(1000)", 3.0},
        {"2^3^2", 512.0}, // priorities
        {"2+3*4^2", 50.0},
        {"8/4/2", 1.0},
        {"2-3+4", 3.0},
        {"SIN(0.5)^2", std::pow(std::sin(0.5), 2.0)},
        {"1SIN", std::sin(1.0)},
        {"-SQRT(4)^2", 4.0},
    };
    for (const auto &c : cases)
        EXPECT_EQ(eval(c.first), c.second) << c.first;
    // A sign before a name is a unary operator, which binds tighter than ^.
    Calculator calc;
    double x = 3.0;
    ASSERT_TRUE(input(calc, "-X^2"));
    calc.Assign(&x);
    EXPECT_TRUE(calc.Compute() && calc.GetResult() == 9.0);
}

TEST(CalculatorInput, FailedInputKeepsItsVariablesAndThePartialQueue) {
    Calculator calc;
    EXPECT_FALSE(input(calc, "A+B(C)")); // C is one operand too many, but registered
    EXPECT_TRUE(calc.GetErrorLineNo() == 209 && names(calc) == "A B C");
    EXPECT_FALSE(input(calc, "1+2)"));
    EXPECT_TRUE(calc.Compute() && calc.GetResult() == 3.0 && calc.GetErrorID() == 4);
    // "1+(2" leaves 1 and 2 in the queue: two operands, the top one stored
    EXPECT_FALSE(input(calc, "1+(2") || calc.Compute());
    EXPECT_TRUE(calc.GetErrorID() == 3 && calc.GetErrorLineNo() == 501);
    EXPECT_EQ(calc.GetResult(), 2.0);
}

TEST(CalculatorInput, FifteenVariablesOfTwentyNineCharactersAtMost) {
    const std::string fifteen = "A+B+C+D+E+F+G+H+I+J+K+L+M+N+O", name29(29, 'Q');
    Calculator calc;
    ASSERT_TRUE(input(calc, fifteen));
    EXPECT_EQ(calc.GetNumberOfVariables(), 15);
    EXPECT_TRUE(calc.GetVariableName(15) == nullptr && calc.GetVariableName(-1) == nullptr);
    EXPECT_TRUE(input(calc, fifteen + "+A*O")); // known names do not count
    EXPECT_FALSE(input(calc, fifteen + "+P"));
    EXPECT_TRUE(calc.GetErrorID() == 10 && calc.GetErrorLineNo() == 214);
    EXPECT_EQ(calc.GetNumberOfVariables(), 15);
    ASSERT_TRUE(input(calc, name29 + "+SIN2"));
    EXPECT_EQ(names(calc), name29 + " SIN2");
}

TEST(CalculatorInput, EveryInputStartsFromAClearedObjectAndClearKeepsTheSite) {
    Calculator calc;
    EXPECT_FALSE(input(calc, "A+(B"));
    EXPECT_EQ(names(calc), "A B");
    ASSERT_TRUE(input(calc, "C"));
    EXPECT_TRUE(calc.GetErrorID() == 0 && names(calc) == "C");
    input(calc, "2X");
    calc.Clear();
    EXPECT_TRUE(calc.GetErrorID() == 0 && calc.GetErrorLineNo() == 209);
    EXPECT_TRUE(calc.GetNumberOfVariables() == 0 && calc.GetResult() == 0.0);
    EXPECT_FALSE(calc.Compute()); // the queue went with the clear
}

TEST(CalculatorInput, ErrorMessagesComeFromTheArgument) {
    Calculator calc;
    input(calc, "2X");
    EXPECT_STREQ(calc.GetErrorMessage(0), "no errors");
    EXPECT_STREQ(calc.GetErrorMessage(11), "variable's name too long");
    EXPECT_STREQ(calc.GetErrorMessage(12), "UNKNOWN ERROR ID!!!");
    EXPECT_STREQ(calc.GetErrorMessage(-1), "UNKNOWN ERROR ID!!!");
}

} // namespace
