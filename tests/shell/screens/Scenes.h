// The windows in the states in which a student meets them, each made anew for its picture.
#pragma once

#include <QPixmap>

#include <functional>
#include <vector>

namespace keyfluent::shell
{

struct Scene {
    const char* name; // of the picture's file
    // Runs events until the window has come to rest. In the Arabic interface, or in the English
    // one.
    std::function<QPixmap(bool arabic)> take;
    // Whether its picture is one of those that are kept, and how many times smaller; 0 for one that
    // is only taken when it is asked for.
    int kept = 1;
};

std::vector<Scene> LessonScenes();
std::vector<Scene> WindowScenes();
std::vector<Scene> MainWindowScenes();
std::vector<Scene> BoxScenes();

} // namespace keyfluent::shell
