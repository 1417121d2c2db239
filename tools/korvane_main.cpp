// korvane: the library from the shell.
#include "commands.h"

#include <cstdio>
#include <cstring>

namespace {

struct Command {
    const char *name;
    int (*run)(int argc, char **argv);
};

const Command kCommands[] = {
    {"calc", runCalc},
};

const char *const kUsage =
    "usage: korvane COMMAND [ARGS...]\n"
    "       korvane --help | --version\n"
    "\n"
    "commands:\n"
    "  calc                      read an expression and its variable values from\n"
    "                            standard input and print the answer (console pass)\n"
    "  calc EXPR [NAME=VALUE...] evaluate EXPR once; every variable of EXPR needs\n"
    "                            a value, and every NAME must occur in EXPR\n"
    "                            (names are normalised as in EXPR: case and\n"
    "                            characters outside A-Z 0-9 do not matter)\n"
    "\n"
    "exit status: 0 success, 1 the library reported an error (the error text and\n"
    "its site number go to standard error), 2 usage error\n";

} // namespace

int main(int argc, char **argv) {
    if (argc < 2) {
        std::fputs(kUsage, stderr);
        return kExitUsage;
    }
    const char *arg = argv[1];
    if (std::strcmp(arg, "--help") == 0 || std::strcmp(arg, "-h") == 0) {
        std::fputs(kUsage, stdout);
        return kExitOk;
    }
    if (std::strcmp(arg, "--version") == 0) {
        std::printf("korvane %s\n", KORVANE_VERSION_TEXT);
        return kExitOk;
    }
    for (const Command &c : kCommands) {
        if (std::strcmp(arg, c.name) == 0)
            return c.run(argc - 2, argv + 2);
    }
    std::fprintf(stderr, "korvane: unknown command '%s'\n\n%s", arg, kUsage);
    return kExitUsage;
}
