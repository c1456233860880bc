#pragma once

#include "command_line.h"

/// Shows the window of the demo, with the study of the command line or the examples, until the user
/// closes it. The exit code of the process.
int WindowTask(const CommandLine& command);
