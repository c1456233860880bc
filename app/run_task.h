#pragma once

#include <iosfwd>

#include "command_line.h"

/// Does a road, with a script for a user or with a person in front of real windows, and leaves in
/// the folder that was asked for: transcript.txt, a picture of each page (Qt alone), the study's
/// ini file, the profile and the registry when something was remembered, and the saved plot. Prints
/// a summary that names them to `out`, and what went otherwise than the script says to `faults`.
/// The exit code of the process: 0 when the script was played as written, or the person finished.
int RunTask(const CommandLine& command, std::ostream& out, std::ostream& faults);
