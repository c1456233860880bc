#include <kvopt/text.h>

#include <iostream>

#include "command_line.h"
#include "run_task.h"
#if defined(KVOPT_HAS_QT)
#include "window/window_task.h"
#endif

namespace {

int DoTask(const CommandLine& command) {
    switch (command.task) {
        case CommandLine::Task::Help:
            std::cout << CommandLine::Usage();
            return 0;
        case CommandLine::Task::Run:
            return RunTask(command, std::cout, std::cerr);
        case CommandLine::Task::Window:
            break;
    }
#if defined(KVOPT_HAS_QT)
    return WindowTask(command);
#else
    std::cerr << "kvopt-demo was built without windows.\n" << CommandLine::Usage();
    return 1;
#endif
}

}  // namespace

int main(int count, char** words) {
    try {
        return DoTask(CommandLine::Parse({words + 1, words + count}));
    } catch (const kvopt::Exception& fault) {
        std::cerr << fault.what() << "\n";
        return 1;
    } catch (const std::exception& fault) {
        std::cerr << "kvopt-demo: " << fault.what() << "\n";
        return 1;
    }
}
