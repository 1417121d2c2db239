// The calculator's evaluator and its console pass.
#include <korvane/calculator.h>

#include "calculator/calc_containers.h"

#include <cmath>
#include <cstdio>
#include <iostream>

using korvane::ValueStack;

namespace {

// Indexed by code - 51, in the order of the name table. SQR is the square
// root, like SQRT, and INT rounds down. None is guarded against its domain;
// COT is 1.0 over the tangent, so an argument of 0 gives infinity.
double (*const kFunctions[])(double) = {
    [](double x) { return std::sin(x); },       [](double x) { return std::cos(x); },
    [](double x) { return std::tan(x); },       [](double x) { return std::sqrt(x); },
    [](double x) { return std::log10(x); },     [](double x) { return std::log(x); },
    [](double x) { return 1.0 / std::tan(x); }, [](double x) { return std::fabs(x); },
    [](double x) { return std::floor(x); },     [](double x) { return std::asin(x); },
    [](double x) { return std::acos(x); },      [](double x) { return std::atan(x); },
    [](double x) { return std::sinh(x); },      [](double x) { return std::cosh(x); },
    [](double x) { return std::tanh(x); },      [](double x) { return std::exp(x); },
    [](double x) { return std::sqrt(x); }};

} // namespace

void Calculator::Assign(double *v) {
    for (int i = 0; i < variableCount; ++i)
        values[i] = v[i];
}

double Calculator::GetResult() {
    return result;
}

// Reads the live tokens of the postfix queue in place: evaluation never
// changes the queue, so this is the same as consuming a copy, and the object
// can be evaluated again. The error id is neither reset nor consulted.
bool Calculator::Compute() {
    if (postfix.count <= 0) {
        Raise(9, 506);
        return false;
    }
    ValueStack stack;
    int at = postfix.front;
    for (int k = 0; k < postfix.count; ++k) {
        const CalcToken &token = postfix.items[at];
        if (++at == korvane::kCalcCapacity)
            at = 0;
        const int code = token.code;
        // Literals and the three commonest operators are applied here, which
        // keeps the loop free of calls; ApplyBinary gives the same results.
        switch (code) {
        case 0:
            stack.push(token.value);
            continue;
        case 21: {
            const double right = stack.pop();
            stack.push(stack.pop() + right);
            continue;
        }
        case 22: {
            const double right = stack.pop();
            stack.push(stack.pop() - right);
            continue;
        }
        case 23: {
            const double right = stack.pop();
            stack.push(stack.pop() * right);
            continue;
        }
        case 20:
        case 40:
            // a stray right parenthesis is passed over
            continue;
        default:
            break;
        }
        if (code <= 19) {
            stack.push(values[code - 1]);
        } else if (code <= 39) {
            const double right = stack.pop();
            const double left = stack.pop();
            stack.push(ApplyBinary(token, left, right));
        } else {
            const double argument = stack.pop();
            stack.push(ApplyUnary(token, argument));
        }
    }
    if (stack.empty()) {
        Raise(9, 506);
        return false;
    }
    result = stack.pop();
    if (!stack.empty()) {
        Raise(3, 501);
        return false;
    }
    return true;
}

double Calculator::ApplyBinary(const CalcToken &token, double left, double right) {
    switch (token.code) {
    case 21:
        return left + right;
    case 22:
        return left - right;
    case 23:
        return left * right;
    case 24:
        // Exactly zero, -0.0 included; a NaN divisor is no zero. The
        // quotient becomes 0.0 and evaluation goes on.
        if (right == 0.0) {
            Raise(6, 420);
            return 0.0;
        }
        return left / right;
    case 25:
        return std::pow(left, right);
    default:
        break;
    }
    if (token.code <= 20 || token.code >= 40) {
        Raise(8, 428);
        return 0.0;
    }
    Raise(8, 425);
    return 0.0;
}

double Calculator::ApplyUnary(const CalcToken &token, double argument) {
    if (token.code <= 40) {
        Raise(8, 453);
        return 0.0;
    }
    if (token.code == 41)
        return -argument;
    if (token.code == 42)
        return argument;
    if (token.code <= 50) {
        Raise(8, 449);
        return 0.0;
    }
    return kFunctions[token.code - 51](argument);
}

void Calculator::Test() {
    std::cout << "Input a expression: " << std::endl;
    char line[1000];
    // An input stream that fails reads as an empty line.
    if (std::fgets(line, sizeof line, stdin) == nullptr)
        line[0] = '\0';
    bool ok = Input(line);
    if (ok) {
        const int n = GetNumberOfVariables();
        if (n > 0) {
            std::cout << "\nThere seems to be " << n
                      << " Variable(s) in your expression, please input them :" << std::endl;
            double v[15] = {};
            for (int i = 1; i <= n; ++i) {
                std::cout << "No." << i << "  " << GetVariableName(i - 1) << " = ";
                std::cin >> v[i - 1];
            }
            Assign(v);
        }
        ok = Compute();
        if (ok)
            std::cout << "Answer: " << result << std::endl;
    }
    if (!ok) {
        std::cout << std::endl
                  << "ERROR : " << GetErrorMessage(errorId) << "\nNear Line " << errorLine
                  << std::endl;
    }
}
