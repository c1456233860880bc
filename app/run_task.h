#pragma once

#include "command_line.h"

/// Does a road, with a script for a user or with a person in front of real windows, and leaves in
/// the folder that was asked for: transcript.txt, a picture of each page (Qt alone), the study's
/// ini file, the profile and the saved plot. Prints a summary that names them. The exit code of the
/// process: 0 when the script was played as written and the wizard finished.
int RunTask(const CommandLine& command);
