#include "window/window_task.h"

#include <kvopt/qt.h>

#include <QApplication>
#include <QFile>

#include "window/study_window.h"

int WindowTask(const CommandLine& command) {
    int wordCount = 1;
    char programName[] = "kvopt-demo";
    char* words[] = {programName, nullptr};
    const QApplication application(wordCount, words);

    kvopt::QtDesktop desktop;
    kvopt::Desktop* const former = kvopt::Desktop::Install(&desktop);
    int result = 0;
    {
        StudyWindow window(StudyPlaces::DataFolder());
        if (command.study.empty()) {
            window.OpenFolder(StudyPlaces::ExampleFolder());
        } else {
            window.OpenStudy(QFile::decodeName(command.study.c_str()));
        }
        window.show();
        result = QApplication::exec();
    }
    kvopt::Desktop::Install(former);
    return result;
}
