#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;

// The demo is a set of screens. Each source file registers the screens it builds; the
// demo shows them in a window, or renders each to a PNG file when there is no display.
struct DemoScreen
{
    QString name;                   // file name of its screenshot, without extension
    QString title;                  // caption in the interactive demo
    std::function<QWidget *()> make;
    int order = 0;                  // screens are listed by order, then by name
};

std::vector<DemoScreen> &demoScreens();
bool registerDemoScreen(DemoScreen screen);
