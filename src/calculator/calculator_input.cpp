// The calculator's front end: error vocabulary, text normalisation, the
// scanner with its operand balance check, and the infix-to-postfix conversion.
#include <korvane/calculator.h>

#include "calculator/calc_containers.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

using korvane::TokenStack;

namespace {

const char *const kAccepted = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/()^.";

// NULL-terminated; a function's code is 51 plus its position.
const char *const kFunctionNames[] = {"SIN",  "COS",  "TAN",  "SQR",    "LOG10",  "LOG",
                                      "COT",  "ABS",  "INT",  "ARCSIN", "ARCCOS", "ARCTAN",
                                      "SINH", "COSH", "TANH", "EXP",    "SQRT",   nullptr};

const char *const kErrorTexts[] = {
    "no errors",        "expression too long",      "missing operand",
    "missing operator", "missing left parenthesis", "missing right paraenthesis",
    "devide by zero",   "unknown operator",         "invalid operator",
    "unknown error",    "too many variables",       "variable's name too long"};

bool isOneOf(char c, const char *set) {
    return c != '\0' && std::strchr(set, c) != nullptr;
}

bool isDigitOrPoint(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) || c == '.';
}

void setOperator(Calculator::CalcToken &t, int code, int incoming, int stacked) {
    t.code = code;
    t.incoming = incoming;
    t.stacked = stacked;
}

} // namespace

Calculator::Calculator() : errorLine(0) {
    korvane::clearQueue(postfix);
    Clear();
}

void Calculator::Clear() {
    result = 0.0;
    korvane::clearQueue(postfix);
    errorId = 0;
    variableCount = 0;
    text[0] = '\0';
    for (int i = 0; i < 15; ++i) {
        names[i][0] = '\0';
        values[i] = 0.0;
    }
}

int Calculator::GetErrorID() const {
    return errorId;
}

int Calculator::GetErrorLineNo() const {
    return errorLine;
}

const char *Calculator::GetErrorMessage(int id) const {
    if (id < 0 || id > 11)
        return "UNKNOWN ERROR ID!!!";
    return kErrorTexts[id];
}

int Calculator::GetNumberOfVariables() {
    return variableCount;
}

const char *Calculator::GetVariableName(int index) {
    if (index < 0 || index >= variableCount)
        return nullptr;
    return names[index];
}

bool Calculator::Input(char *buffer) {
    TokenQueue infix;
    korvane::clearQueue(infix);
    Clear();
    // Measured before filtering: blanks and line ends count.
    if (std::strlen(buffer) >= 501) {
        Raise(1, 394);
        return false;
    }
    NormalizeText(buffer);
    Tokenize(infix);
    if (errorId != 0)
        return false;
    ToPostfix(infix);
    return errorId == 0;
}

void Calculator::NormalizeText(char *buffer) {
    for (char *p = buffer; *p != '\0'; ++p)
        *p = static_cast<char>(std::toupper(static_cast<unsigned char>(*p)));
    int n = 0;
    for (const char *p = buffer; *p != '\0'; ++p) {
        if (isOneOf(*p, kAccepted))
            text[n++] = *p;
    }
    text[n] = '\0';
}

// A sign belongs to a number literal when it follows an operator or '(' and
// precedes a digit or point. At the first position the sign stands in for its
// own predecessor, so a leading "-2" is a literal: "-2^2" is 4.
bool Calculator::IsNumberChar(int pos) const {
    const char c = text[pos];
    if (isDigitOrPoint(c))
        return true;
    if (c != '+' && c != '-')
        return false;
    const char prev = pos == 0 ? text[0] : text[pos - 1];
    const char next = text[pos + 1] == '\0' ? c : text[pos + 1];
    return isOneOf(prev, "+-*/^(") && isDigitOrPoint(next);
}

// atof stops at what it cannot read: "1.2.3" is 1.2. There is no exponent.
double Calculator::ScanNumber(int &pos) const {
    char buf[501];
    int n = 0;
    while (IsNumberChar(pos))
        buf[n++] = text[pos++];
    buf[n] = '\0';
    return std::atof(buf);
}

bool Calculator::ScanSymbol(int &pos, char *symbol) {
    if (isOneOf(text[pos], "+-*/^")) {
        symbol[0] = text[pos++];
        symbol[1] = '\0';
        return true;
    }
    int n = 0;
    while (std::isalnum(static_cast<unsigned char>(text[pos]))) {
        symbol[n++] = text[pos++];
        // The limit counts function names too: 29 characters at most.
        if (n == 30) {
            Raise(11, 148);
            return false;
        }
    }
    symbol[n] = '\0';
    return true;
}

// Names are read greedily: "SIN2" is a variable, and "LOG10" never meets
// "LOG". A function leaves the balance alone and is not checked for an
// argument, so "1SIN" is the sine of 1.
bool Calculator::MakeSymbolToken(const char *symbol, int &balance, CalcToken &token) {
    if (symbol[1] == '\0' && !std::isalpha(static_cast<unsigned char>(symbol[0])))
        return MakeOperatorToken(symbol[0], balance, token);
    for (int i = 0; kFunctionNames[i] != nullptr; ++i) {
        if (std::strcmp(symbol, kFunctionNames[i]) == 0) {
            setOperator(token, 51 + i, 5, 4);
            return true;
        }
    }
    return MakeVariableToken(symbol, balance, token);
}

bool Calculator::MakeOperatorToken(char c, int balance, CalcToken &token) {
    if (balance == 1) {
        switch (c) {
        case '+':
            setOperator(token, 21, 1, 1);
            return true;
        case '-':
            setOperator(token, 22, 1, 1);
            return true;
        case '*':
            setOperator(token, 23, 2, 2);
            return true;
        case '/':
            setOperator(token, 24, 2, 2);
            return true;
        case '^':
            // incoming above stacked: right associative
            setOperator(token, 25, 4, 3);
            return true;
        default:
            Raise(7, 167);
            return false;
        }
    }
    // Where an operand is expected only a sign makes sense: "*3" is an
    // unknown operator, not a missing operand.
    if (c == '+') {
        setOperator(token, 42, 5, 4);
        return true;
    }
    if (c == '-') {
        setOperator(token, 41, 5, 4);
        return true;
    }
    Raise(7, 177);
    return false;
}

bool Calculator::MakeVariableToken(const char *name, int &balance, CalcToken &token) {
    for (int i = 0; i < variableCount; ++i) {
        if (std::strcmp(name, names[i]) == 0) {
            token.code = i + 1;
            token.incoming = 0;
            token.stacked = 0;
            if (++balance >= 2) {
                Raise(3, 195);
                return false;
            }
            return true;
        }
    }
    if (variableCount >= 15) {
        Raise(10, 214);
        return false;
    }
    std::strcpy(names[variableCount], name);
    token.code = variableCount + 1;
    token.incoming = 0;
    token.stacked = 0;
    ++variableCount;
    // The new name stays registered even when it is one operand too many.
    if (++balance >= 2) {
        Raise(3, 209);
        return false;
    }
    return true;
}

// The balance counts the operands the text so far would leave on the value
// stack; it may only be 0 or 1. The first fault ends the scan.
void Calculator::Tokenize(TokenQueue &infix) {
    int balance = 0;
    int pos = 0;
    CalcToken token = {0, 0, 0, 0.0};
    if (text[0] == '\0') {
        Raise(2, 326);
        return;
    }
    while (text[pos] != '\0') {
        if (IsNumberChar(pos)) {
            token.code = 0;
            token.value = ScanNumber(pos);
            if (++balance >= 2) {
                Raise(3, 257);
                return;
            }
            korvane::enqueue(infix, token);
        } else if (text[pos] == '(') {
            ++pos;
            token.code = 20;
            token.incoming = 6;
            token.stacked = -1;
            korvane::enqueue(infix, token);
        } else if (text[pos] == ')') {
            ++pos;
            token.code = 40;
            token.incoming = 0;
            token.stacked = 0;
            korvane::enqueue(infix, token);
        } else {
            char symbol[31];
            if (!ScanSymbol(pos, symbol) || !MakeSymbolToken(symbol, balance, token))
                return;
            if (token.code >= 21 && token.code <= 39 && --balance < 0) {
                Raise(2, 277);
                return;
            }
            korvane::enqueue(infix, token);
        }
    }
    if (balance != 1)
        Raise(2, 326);
}

// Left parenthesis: incoming 6 pops nothing, stacked -1 is popped by nothing.
// Unary operators and functions lie at 4, the incoming of '^', so they bind
// tighter than a following power: "-X^2" squares -X. A right parenthesis
// that meets an empty stack is pushed like an operator and later passed over
// by the evaluator, so "1)" is accepted.
void Calculator::ToPostfix(TokenQueue &infix) {
    TokenStack stack;
    korvane::clearQueue(postfix);
    if (infix.count == 0)
        return;
    while (infix.count > 0) {
        const CalcToken token = korvane::dequeue(infix);
        if (token.code < 20) {
            korvane::enqueue(postfix, token);
        } else if (stack.empty()) {
            stack.push(token);
        } else if (token.code == 40) {
            while (stack.peek().code != 20) {
                korvane::enqueue(postfix, stack.pop());
                if (stack.empty()) {
                    Raise(4, 360);
                    return;
                }
            }
            stack.pop();
        } else {
            while (!stack.empty() && stack.peek().stacked >= token.incoming)
                korvane::enqueue(postfix, stack.pop());
            stack.push(token);
        }
    }
    while (!stack.empty()) {
        const CalcToken token = stack.pop();
        if (token.code == 20) {
            Raise(5, 380);
            return;
        }
        korvane::enqueue(postfix, token);
    }
}
