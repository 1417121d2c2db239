// The calculator's fixed-capacity containers. Abuse of any of them is a
// program error, not a fault of the expression: the text goes to the standard
// error stream and the process ends with status 1.
#ifndef KORVANE_SRC_CALCULATOR_CALC_CONTAINERS_H
#define KORVANE_SRC_CALCULATOR_CALC_CONTAINERS_H

#include <korvane/calculator.h>

#include <cstdlib>
#include <iostream>

namespace korvane {

using CalcToken = Calculator::CalcToken;
using TokenQueue = Calculator::TokenQueue;

constexpr int kCalcCapacity = 1000;

[[noreturn]] inline void calcFatal(const char *text) {
    std::cerr << text << std::endl;
    std::exit(1);
}

inline void clearQueue(TokenQueue &q) {
    q.front = 0;
    q.rear = 0;
    q.count = 0;
}

inline void enqueue(TokenQueue &q, const CalcToken &t) {
    if (q.count == kCalcCapacity)
        calcFatal("Queue overflow!");
    q.items[q.rear] = t;
    q.rear = (q.rear + 1) % kCalcCapacity;
    ++q.count;
}

inline CalcToken dequeue(TokenQueue &q) {
    if (q.count == 0)
        calcFatal("Deleting from an empty queue!");
    const CalcToken t = q.items[q.front];
    q.front = (q.front + 1) % kCalcCapacity;
    --q.count;
    return t;
}

// The operator stack of the infix-to-postfix conversion.
struct TokenStack {
    CalcToken items[kCalcCapacity];
    int top = -1;

    bool empty() const { return top == -1; }
    void push(const CalcToken &t) {
        if (top == kCalcCapacity - 1)
            calcFatal("Stack overflow!");
        items[++top] = t;
    }
    CalcToken pop() {
        if (top == -1)
            calcFatal("Attempt to pop an empty stack!");
        return items[top--];
    }
    const CalcToken &peek() const {
        if (top == -1)
            calcFatal("Attempt to peek at an empty stack!");
        return items[top];
    }
};

// The operand stack of the evaluator.
struct ValueStack {
    double items[kCalcCapacity];
    int top = -1;

    bool empty() const { return top == -1; }
    void push(double v) {
        if (top == kCalcCapacity - 1)
            calcFatal("Stack overflow!");
        items[++top] = v;
    }
    double pop() {
        if (top == -1)
            calcFatal("Attempt to pop an empty stack!");
        return items[top--];
    }
};

} // namespace korvane

#endif
