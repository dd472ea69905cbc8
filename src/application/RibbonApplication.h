#pragma once

#include "zelribbon_export.h"

#include <QApplication>
#include <QPair>

namespace zel {

class RibbonStyle;

// Takes the place of QApplication in a ribbon host: installs the library's style,
// measures the screen resolution once and hands out the process-wide palette.
class ZELRIBBON_EXPORT RibbonApplication : public QApplication
{
    Q_OBJECT
public:
    enum eRibbonStyle {
        RibbonStyleNone = 0,
        RibbonStyleDefault = 1
    };

    RibbonApplication(int &argc, char **argv);
    ~RibbonApplication() override;

    // The running application. The host must have created a RibbonApplication (or a
    // subclass) before any widget of the library exists.
    static RibbonApplication &theApp();

    // The palette, built on first use and shared by the whole process.
    const RibbonStyle &ribbonStyle() const;

    eRibbonStyle getRibbonStyle();

    // Horizontal and vertical screen resolution divided by 96, measured at start.
    QPair<double, double> dpiFactor() const;

    static bool systemDpi(int *dpiX, int *dpiY);

signals:
    // Emitted by a host that changed the look; the library's windows repaint on it.
    void ribbonStyleChanged();

private:
    eRibbonStyle m_ribbonStyleKind;
    QPair<double, double> m_dpiFactor;
};

} // namespace zel
