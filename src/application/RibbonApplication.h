#pragma once

#include "zelribbon_export.h"

#include <QApplication>
#include <QPair>
#include <QPalette>

class QTranslator;

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
        RibbonStyleDefault = 1,
        RibbonStyleDark = 2
    };

    RibbonApplication(int &argc, char **argv);
    ~RibbonApplication() override;

    // The running application. The host must have created a RibbonApplication (or a
    // subclass) before any widget of the library exists.
    static RibbonApplication &theApp();

    // The palette, built on first use and shared by the whole process.
    const RibbonStyle &ribbonStyle() const;

    eRibbonStyle getRibbonStyle();

    // Replaces the palette with the one of kind (light or dark) and emits
    // ribbonStyleChanged(); every widget then repaints. The palettes already handed out
    // stay valid until the program ends. Does nothing for the current kind or for
    // RibbonStyleNone.
    void setRibbonStyle(eRibbonStyle kind);

    // Whether the constructor installs the library's translation for the system locale
    // (the default). A host with its own choice of language turns it off before it
    // constructs the application and calls loadTranslation() itself, or not at all.
    static void setAutoLoadTranslations(bool on);
    static bool autoLoadTranslations();

    // Installs the library's translation for locale in place of the one installed
    // before; false, leaving the library's texts in English, when there is none.
    // Qt's own catalogue for locale (qtbase_xx.qm in Qt's translations directory) is
    // installed with it when the system has one. Widgets that exist already keep the
    // texts they were given.
    bool loadTranslation(const QLocale &locale);

    // Horizontal and vertical screen resolution divided by 96, measured at start.
    QPair<double, double> dpiFactor() const;

    static bool systemDpi(int *dpiX, int *dpiY);

signals:
    // Emitted by a host that changed the look; the library's windows repaint on it.
    void ribbonStyleChanged();

private:
    // Puts a translator for name_<locale> from directory in place of installed.
    bool replaceTranslator(QTranslator *&installed, const QLocale &locale, const QString &name,
                           const QString &directory);

    eRibbonStyle m_ribbonStyleKind;
    QPair<double, double> m_dpiFactor;
    // The widget palette from before the first switch, restored with the light look.
    QPalette m_lightWidgetPalette;
    bool m_widgetPaletteSaved = false;
    QTranslator *m_translator = nullptr;
    QTranslator *m_qtTranslator = nullptr;
};

} // namespace zel
