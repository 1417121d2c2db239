// korvane calc: the expression calculator, as a console pass or one
// non-interactive evaluation.
#include "commands.h"

#include <korvane/calculator.h>

#include <cctype>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

int reportError(Calculator &calc) {
    const int id = calc.GetErrorID();
    std::fprintf(stderr, "korvane calc: %s (site %d)\n", calc.GetErrorMessage(id),
                 calc.GetErrorLineNo());
    return kExitFailed;
}

int usageError(const char *what, const char *detail) {
    std::fprintf(stderr, "korvane calc: %s%s\n", what, detail);
    return kExitUsage;
}

// Shortest text that reads back as the same double.
void printResult(double v) {
    char buf[64];
    const auto r = std::to_chars(buf, buf + sizeof buf, v);
    *r.ptr = '\0';
    std::puts(buf);
}

int evaluate(int argc, char **argv) {
    // Input upper-cases and filters the text in place, so it gets a copy.
    std::vector<char> text(argv[0], argv[0] + std::strlen(argv[0]) + 1);
    static Calculator calc;
    if (!calc.Input(text.data()))
        return reportError(calc);

    const int n = calc.GetNumberOfVariables();
    std::vector<double> values(n, 0.0);
    std::vector<bool> given(n, false);
    for (int a = 1; a < argc; ++a) {
        const char *eq = std::strchr(argv[a], '=');
        if (eq == nullptr || eq == argv[a])
            return usageError("expected NAME=VALUE, got: ", argv[a]);
        // Names are normalised as the expression is: upper-cased, and every
        // character outside A-Z and 0-9 dropped.
        std::string name;
        for (const char *c = argv[a]; c != eq; ++c) {
            const int u = std::toupper(static_cast<unsigned char>(*c));
            if ((u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9'))
                name.push_back(static_cast<char>(u));
        }
        int index = -1;
        for (int i = 0; i < n; ++i) {
            if (name == calc.GetVariableName(i))
                index = i;
        }
        if (index < 0)
            return usageError("the expression has no variable ", name.c_str());
        if (given[index])
            return usageError("more than one value for ", name.c_str());
        char *end = nullptr;
        const double v = std::strtod(eq + 1, &end);
        if (end == eq + 1 || *end != '\0')
            return usageError("not a number: ", argv[a]);
        values[index] = v;
        given[index] = true;
    }
    for (int i = 0; i < n; ++i) {
        if (!given[i])
            return usageError("no value for variable ", calc.GetVariableName(i));
    }

    if (n > 0)
        calc.Assign(values.data());
    if (!calc.Compute())
        return reportError(calc);
    printResult(calc.GetResult());
    // A division by zero does not fail the evaluation; it is reported all
    // the same, beside the result it produced.
    if (calc.GetErrorID() != 0)
        return reportError(calc);
    return kExitOk;
}

} // namespace

int runCalc(int argc, char **argv) {
    if (argc == 0) {
        static Calculator calc;
        calc.Test();
        // The console pass reports on standard output; an error it leaves
        // behind (a division by zero among them) is also reported here.
        if (calc.GetErrorID() != 0)
            return reportError(calc);
        return kExitOk;
    }
    return evaluate(argc, argv);
}
