// Korvane expression calculator. C++ only.
//
// A Calculator turns one text expression with named variables into a postfix
// token queue, which can then be evaluated any number of times with new
// variable values:
//
//     Calculator calc;
//     char text[] = "2*x+1";
//     if (calc.Input(text)) {              // text is now "2*X+1"
//         double x = 3.0;
//         calc.Assign(&x);                 // one value per variable, in order
//         if (calc.Compute() && calc.GetErrorID() == 0)
//             use(calc.GetResult());       // 7
//     }
//
// The object is a plain value: no heap memory, no virtual operations. Numbers
// are 64-bit doubles. Faults in the expression are reported through the error
// id and its site number; abuse of the fixed-size internal queues and stacks
// is fatal instead: the text goes to the standard error stream and the process
// exits with status 1. An expression the scanner lets through can reach that
// path: "(1+)2" ends the process in Compute.
#ifndef KORVANE_CALCULATOR_H
#define KORVANE_CALCULATOR_H

#ifndef __cplusplus
#error "korvane/calculator.h is a C++ header"
#endif

#include <korvane/export.h>

class KORVANE_API Calculator {
  public:
    // One element of an expression. code: 0 number (value set), 1 to 15
    // variable, 20 '(', 21 to 25 binary + - * / ^, 40 ')', 41 unary -,
    // 42 unary +, 51 to 67 function. incoming and stacked are the operator
    // priorities on arrival and on the operator stack.
    struct CalcToken {
        int code;
        int incoming;
        int stacked;
        double value;
    };

    // Circular queue of 1000 tokens; a plain copyable value.
    struct TokenQueue {
        int front;
        int rear;
        int count;
        CalcToken items[1000];
    };

    // Zeroes the postfix queue and clears the object. The error site is 0
    // until an error is raised.
    Calculator();

    // Back to the cleared state: result 0.0, empty postfix queue, error id 0,
    // no variables (names empty, values 0.0), empty text. The error site is
    // left as it stands.
    void Clear();

    // Clears, then normalises, scans and converts the expression. Upper-cases
    // the caller's buffer in place (unless it is longer than 500 characters,
    // which is error 1). Characters outside A-Z, 0-9, + - * / ( ) ^ . are
    // dropped silently, so "A B" is the name AB and "1,000" is 1000. True when
    // no error was raised; on false the variables found so far stay known.
    bool Input(char *text);

    // Current error id (0: none) and the site number of the check that raised
    // it; the site is meaningful only while the id is not 0.
    int GetErrorID() const;
    int GetErrorLineNo() const;
    // The text of id (0 to 11), "UNKNOWN ERROR ID!!!" for any other id. Does
    // not read the object's state.
    const char *GetErrorMessage(int id) const;

    // Number of distinct variables, and the name of variable index (0-based,
    // order of first appearance); NULL for an index outside [0, count).
    int GetNumberOfVariables();
    const char *GetVariableName(int index);

    // Copies GetNumberOfVariables() values, in variable order. Unassigned
    // variables are 0.0.
    void Assign(double *values);

    // Evaluates the postfix queue without consuming it, so it can be called
    // again after a new Assign. False only with error 9 (nothing to evaluate)
    // or error 3 (operands left over; the result is stored all the same).
    // Compute neither resets nor reads the error id: a division by exactly
    // zero records error 6, gives a quotient of 0.0 and still returns true,
    // so ask GetErrorID as well. Functions are unguarded: ARCSIN(2) is NaN
    // with no error.
    bool Compute();
    double GetResult();

    // One console pass: prompts on standard output, reads an expression line
    // and then one value per variable from standard input, prints the answer
    // or the error and its site. A failed read counts as an empty line, a
    // failed value as 0.0.
    void Test();

  private:
    void NormalizeText(char *text);
    bool IsNumberChar(int pos) const;
    double ScanNumber(int &pos) const;
    bool ScanSymbol(int &pos, char *symbol);
    bool MakeSymbolToken(const char *symbol, int &balance, CalcToken &token);
    bool MakeOperatorToken(char c, int balance, CalcToken &token);
    bool MakeVariableToken(const char *name, int &balance, CalcToken &token);
    void Tokenize(TokenQueue &infix);
    void ToPostfix(TokenQueue &infix);
    double ApplyBinary(const CalcToken &token, double left, double right);
    double ApplyUnary(const CalcToken &token, double argument);

    void Raise(int id, int site) {
        errorId = id;
        errorLine = site;
    }

    TokenQueue postfix;
    double result;
    double values[15];
    char names[15][30];
    char text[501];
    int errorId;
    int errorLine;
    int variableCount;
};

#endif
