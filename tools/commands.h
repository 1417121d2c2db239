// The subcommands of the korvane program. Each takes the arguments that
// follow its name and returns the process exit status.
#ifndef KORVANE_TOOLS_COMMANDS_H
#define KORVANE_TOOLS_COMMANDS_H

// Exit statuses shared by every subcommand.
constexpr int kExitOk = 0;
constexpr int kExitFailed = 1; // the library reported an error
constexpr int kExitUsage = 2;  // the command line was wrong

int runCalc(int argc, char **argv);

#endif
