#include "window/window_task.h"

#include <kvopt/qt.h>

#include <QApplication>
#include <QFile>

#include "window/study_window.h"

int WindowTask(const CommandLine& command) {
    int wordCount = 1;
    char programName[] = "kvopt-demo";
    char* words[] = {programName, nullptr};
    const kvopt::QtLook look{command.scale, command.dark};
    look.ApplyScale();
    const QApplication application(wordCount, words);
    look.ApplyColours();

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
