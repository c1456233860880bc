#pragma once

#include <string>
#include <vector>

/// What the user asked for on the command line.
struct CommandLine {
    enum class Task { Window, Run, Help };
    enum class FrontEnd { Scripted, Qt };

    Task task = Task::Window;
    std::string road;         ///< of Run, the name of one
    std::string study;        ///< file of the study; of Window may be empty
    std::string plot;         ///< file of the saved plot that a road changes
    std::string script;       ///< empty for a person in front of real windows
    std::string out = "out";  ///< folder for what a run leaves
    bool onDisplay = false;   ///< windows on the display, not offscreen
    FrontEnd frontEnd = FrontEnd::Scripted;
    bool frontEndNamed = false;
    double scale = 1.0;  ///< of windows and pictures
    bool dark = false;   ///< light texts on a dark ground

    /// Throws kvopt::InvalidArgument, which says which word is wrong and what was expected.
    static CommandLine Parse(const std::vector<std::string>& words);
    static std::string Usage();
};
