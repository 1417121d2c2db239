#include <korvane/calculator.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>

namespace {

struct Outcome {
    bool ok;
    int id;
    int site;
};

Outcome input(Calculator &calc, std::string text) {
    const bool ok = calc.Input(&text[0]);
    return {ok, calc.GetErrorID(), calc.GetErrorLineNo()};
}

void expectFault(const char *text, int id, int site) {
    Calculator calc;
    const Outcome o = input(calc, text);
    EXPECT_FALSE(o.ok) << text;
    EXPECT_EQ(o.id, id) << text;
    EXPECT_EQ(o.site, site) << text;
}

// Evaluates an expression without variables; NaN when it does not compute.
double eval(const char *text) {
    Calculator calc;
    std::string buf = text;
    if (!calc.Input(&buf[0]) || !calc.Compute())
        return std::nan("");
    return calc.GetResult();
}

TEST(CalculatorInput, UpperCasesTheCallerBufferAndDropsForeignCharacters) {
    Calculator calc;
    char text[] = "x_1 + y,2\t-\nz";
    ASSERT_TRUE(calc.Input(text));
    EXPECT_STREQ(text, "X_1 + Y,2\t-\nZ");
    ASSERT_EQ(calc.GetNumberOfVariables(), 3);
    EXPECT_STREQ(calc.GetVariableName(0), "X1");
    EXPECT_STREQ(calc.GetVariableName(1), "Y2");
    EXPECT_STREQ(calc.GetVariableName(2), "Z");
    EXPECT_EQ(eval("1,000 + 2"), 1002.0);
    EXPECT_EQ(eval("  7 "), 7.0);
    EXPECT_EQ(eval("3 4"), 34.0);
    ASSERT_TRUE(calc.Input(text)); // already upper case: the same expression
    EXPECT_EQ(calc.GetNumberOfVariables(), 3);
    char blank[] = "SIN x";
    ASSERT_TRUE(calc.Input(blank));
    EXPECT_STREQ(calc.GetVariableName(0), "SINX");
}

TEST(CalculatorInput, LengthIsMeasuredBeforeFiltering) {
    Calculator calc;
    EXPECT_TRUE(input(calc, "x" + std::string(499, ' ')).ok);

    std::string longText = "x" + std::string(500, ' ');
    EXPECT_FALSE(calc.Input(&longText[0]));
    EXPECT_EQ(calc.GetErrorID(), 1);
    EXPECT_EQ(calc.GetErrorLineNo(), 394);
    EXPECT_EQ(longText[0], 'x'); // refused before upper-casing
    EXPECT_EQ(calc.GetNumberOfVariables(), 0);
}

TEST(CalculatorInput, NothingToScanIsAMissingOperand) {
    expectFault("", 2, 326);
    expectFault(" ,;\n", 2, 326);
    expectFault("()", 2, 326);
    expectFault("SIN", 2, 326);
    expectFault("(1+", 2, 326);
    expectFault("5-", 2, 326);
}

TEST(CalculatorInput, NumbersStopWhereTheConversionStops) {
    EXPECT_EQ(eval("1.2.3"), 1.2);
    EXPECT_EQ(eval(".5+1."), 1.5);
    // no exponent syntax: 1 then the name E5, one operand too many
    Calculator calc;
    EXPECT_EQ(input(calc, "1E5").site, 209);
    ASSERT_EQ(calc.GetNumberOfVariables(), 1);
    EXPECT_STREQ(calc.GetVariableName(0), "E5");
}

TEST(CalculatorInput, SignAfterOperatorOrAtStartIsPartOfTheLiteral) {
    EXPECT_EQ(eval("-2^2"), 4.0);
    EXPECT_EQ(eval("0-2^2"), -4.0);
    EXPECT_EQ(eval("2*-3"), -6.0);
    EXPECT_EQ(eval("2^-1"), 0.5);
    EXPECT_EQ(eval("(-3)*2"), -6.0);
    EXPECT_EQ(eval("--5"), 5.0);
    EXPECT_EQ(eval("1-2-3"), -4.0);
    EXPECT_EQ(eval("-.5"), -0.5);
    // a sign before a name is a unary operator, which binds tighter than ^
    Calculator calc;
    ASSERT_TRUE(input(calc, "-X^2").ok);
    double x = 3.0;
    calc.Assign(&x);
    ASSERT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), 9.0);
}

TEST(CalculatorInput, OperandBalanceFaultsReportTheirSites) {
    expectFault("2X", 3, 209);
    expectFault("X(2)", 3, 257);
    expectFault("X(X)", 3, 195);
    expectFault("*3", 7, 177);
    expectFault("2*/3", 7, 177);
    expectFault("^X", 7, 177);
}

TEST(CalculatorInput, NewVariableStaysRegisteredWhenItIsOneOperandTooMany) {
    Calculator calc;
    input(calc, "A+B(C)");
    EXPECT_EQ(calc.GetErrorLineNo(), 209);
    ASSERT_EQ(calc.GetNumberOfVariables(), 3);
    EXPECT_STREQ(calc.GetVariableName(2), "C");
}

TEST(CalculatorInput, ParenthesisFaults) {
    expectFault("1+2)", 4, 360);
    expectFault("(1", 5, 380);
    expectFault("((1+2)", 5, 380);
    EXPECT_EQ(eval("1)"), 1.0);
    EXPECT_EQ(eval("(1))"), 1.0);
    EXPECT_EQ(eval("1)+2"), 3.0);
}

TEST(CalculatorInput, FailedConversionKeepsThePartialQueue) {
    Calculator calc;
    EXPECT_FALSE(input(calc, "1+2)").ok);
    EXPECT_TRUE(calc.Compute());
    EXPECT_EQ(calc.GetResult(), 3.0);
    EXPECT_EQ(calc.GetErrorID(), 4);

    // "1+(2" leaves 1 and 2 in the queue: two operands, the top one stored
    EXPECT_FALSE(input(calc, "1+(2").ok);
    EXPECT_FALSE(calc.Compute());
    EXPECT_EQ(calc.GetErrorID(), 3);
    EXPECT_EQ(calc.GetErrorLineNo(), 501);
    EXPECT_EQ(calc.GetResult(), 2.0);
}

TEST(CalculatorInput, FifteenVariablesAcceptedSixteenthRefused) {
    const std::string fifteen = "A+B+C+D+E+F+G+H+I+J+K+L+M+N+O";
    Calculator calc;
    ASSERT_TRUE(input(calc, fifteen).ok);
    EXPECT_EQ(calc.GetNumberOfVariables(), 15);
    EXPECT_STREQ(calc.GetVariableName(14), "O");
    EXPECT_EQ(calc.GetVariableName(15), nullptr);
    EXPECT_EQ(calc.GetVariableName(-1), nullptr);
    EXPECT_TRUE(input(calc, fifteen + "+A*O").ok); // known names do not count

    const Outcome o = input(calc, fifteen + "+P");
    EXPECT_EQ(o.id, 10);
    EXPECT_EQ(o.site, 214);
    EXPECT_EQ(calc.GetNumberOfVariables(), 15);
}

TEST(CalculatorInput, NamesHaveAtMostTwentyNineCharacters) {
    Calculator calc;
    const std::string name29(29, 'Q');
    ASSERT_TRUE(input(calc, name29 + "+1").ok);
    EXPECT_STREQ(calc.GetVariableName(0), name29.c_str());
    expectFault((name29 + "Q").c_str(), 11, 148);
    expectFault(("SIN" + std::string(27, '9')).c_str(), 11, 148);
}

TEST(CalculatorInput, NamesAreReadGreedily) {
    Calculator calc;
    ASSERT_TRUE(input(calc, "SIN2").ok);
    EXPECT_STREQ(calc.GetVariableName(0), "SIN2");
    EXPECT_EQ(eval("2*SQRT 9"), 0.0); // the unassigned variable SQRT9
    EXPECT_EQ(eval("LOG10(1000)"), 3.0);
    EXPECT_EQ(eval("LOG(1)"), 0.0);
}

TEST(CalculatorInput, PrioritiesSettleTheGrammar) {
    EXPECT_EQ(eval("2^3^2"), 512.0);
    EXPECT_EQ(eval("2+3*4^2"), 50.0);
    EXPECT_EQ(eval("8/4/2"), 1.0);
    EXPECT_EQ(eval("2-3+4"), 3.0);
    EXPECT_EQ(eval("(2+3)*4"), 20.0);
    EXPECT_EQ(eval("SIN(0.5)^2"), std::pow(std::sin(0.5), 2.0));
    EXPECT_EQ(eval("1SIN"), std::sin(1.0));
    EXPECT_EQ(eval("-SQRT(4)^2"), 4.0);
}

TEST(CalculatorInput, EveryInputStartsFromAClearedObject) {
    Calculator calc;
    EXPECT_FALSE(input(calc, "A+(B").ok);
    EXPECT_EQ(calc.GetNumberOfVariables(), 2);
    ASSERT_TRUE(input(calc, "C").ok);
    EXPECT_EQ(calc.GetErrorID(), 0);
    ASSERT_EQ(calc.GetNumberOfVariables(), 1);
    EXPECT_STREQ(calc.GetVariableName(0), "C");
}

TEST(CalculatorInput, ClearKeepsTheErrorSite) {
    Calculator calc;
    input(calc, "2X");
    calc.Clear();
    EXPECT_EQ(calc.GetErrorID(), 0);
    EXPECT_EQ(calc.GetErrorLineNo(), 209);
    EXPECT_EQ(calc.GetNumberOfVariables(), 0);
    EXPECT_EQ(calc.GetResult(), 0.0);
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
