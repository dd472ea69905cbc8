#include "RibbonApplication.h"

#include "DarkRibbonStyle.h"
#include "DefaultRibbonStyle.h"
#include "RibbonPlatform.h"
#include "RibbonStyleImages_p.h"
#include "RibbonStyles.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QWidget>
#include <QTranslator>

namespace zel {

namespace {

// Runs before QApplication's constructor, the last moment Qt reads these attributes.
// A host that set either scaling attribute itself has made its choice, and both stay
// as it left them.
int &withHighDpiDefaults(int &argc)
{
    if (!QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling)
        && !QCoreApplication::testAttribute(Qt::AA_DisableHighDpiScaling)) {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    }
    return argc;
}

bool s_autoLoadTranslations = true;

// Each palette is built on first use and lives until the program ends: widgets and
// painters may hold references to the one they were given, also after a switch and
// while late-destroyed widgets still paint.
const RibbonStyle &paletteOf(RibbonApplication::eRibbonStyle kind)
{
    // Their images are decoded as they are first painted: a window shows few of them.
    // The deferring guard is a temporary that lives until the constructor returns.
    if (kind == RibbonApplication::RibbonStyleDark) {
        static const DarkRibbonStyle dark((RibbonDeferredPaletteImages(), QStringLiteral(":/zel/ribbon/dark/")));
        return dark;
    }
    static const DefaultRibbonStyle style((RibbonDeferredPaletteImages(), QStringLiteral(":/zel/ribbon/windows/")));
    return style;
}

// The colours standard Qt widgets (line edits, combo boxes, check boxes, item views)
// take in a dark look, so that they match what the palette paints around them.
QPalette darkWidgetPalette(const RibbonStyle &style, QPalette palette)
{
    const QColor text = style.normalCategoryTextColor();
    const QColor disabled = style.disabledCategoryTextColor();
    palette.setColor(QPalette::Window, style.mainClientColor());
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, style.categoryColorUnderButton());
    palette.setColor(QPalette::AlternateBase, style.frameHighlightedFillColor());
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, style.frameHighlightedFillColor());
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, style.mainMenuBgColor());
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, style.backstageBlueBorderHoverColor());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, style.activeTitleTextColor());
    palette.setColor(QPalette::PlaceholderText, disabled);
    palette.setColor(QPalette::Light, style.frameRaiseColor());
    palette.setColor(QPalette::Midlight, style.separatorColor());
    palette.setColor(QPalette::Mid, style.frameOutlineColor());
    palette.setColor(QPalette::Dark, style.frameSunkenColor());
    palette.setColor(QPalette::Shadow, style.frameSunkenColor());
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

} // namespace

RibbonApplication::RibbonApplication(int &argc, char **argv)
    : QApplication(withHighDpiDefaults(argc), argv)
    , m_ribbonStyleKind(RibbonStyleDefault)
    , m_dpiFactor(0.0, 0.0)
{
    QApplication::setStyle(createStyle(defaultStyle()));

    int dpiX = 96;
    int dpiY = 96;
    systemDpi(&dpiX, &dpiY);
    m_dpiFactor = qMakePair(dpiX / 96.0, dpiY / 96.0);

    if (s_autoLoadTranslations)
        loadTranslation(QLocale::system());
}

RibbonApplication::~RibbonApplication() = default;

RibbonApplication &RibbonApplication::theApp()
{
    return *qobject_cast<RibbonApplication *>(QCoreApplication::instance());
}

const RibbonStyle &RibbonApplication::ribbonStyle() const
{
    return paletteOf(m_ribbonStyleKind);
}

RibbonApplication::eRibbonStyle RibbonApplication::getRibbonStyle()
{
    return m_ribbonStyleKind;
}

void RibbonApplication::setRibbonStyle(eRibbonStyle kind)
{
    if (kind == m_ribbonStyleKind || (kind != RibbonStyleDefault && kind != RibbonStyleDark))
        return;
    if (!m_widgetPaletteSaved) {
        m_lightWidgetPalette = QApplication::palette();
        m_widgetPaletteSaved = true;
    }
    m_ribbonStyleKind = kind;
    // Setting the application palette repaints every widget that follows it; the
    // library's windows, which set colours of their own, re-read them on the signal.
    QApplication::setPalette(kind == RibbonStyleDark ? darkWidgetPalette(ribbonStyle(), m_lightWidgetPalette)
                                                     : m_lightWidgetPalette);
    emit ribbonStyleChanged();
    // Widgets that paint from the palette without a palette of their own to change.
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets)
        widget->update();
}

void RibbonApplication::setAutoLoadTranslations(bool on)
{
    s_autoLoadTranslations = on;
}

bool RibbonApplication::autoLoadTranslations()
{
    return s_autoLoadTranslations;
}

bool RibbonApplication::loadTranslation(const QLocale &locale)
{
    // Qt's own catalogue, when the system has one, translates the standard dialogs and
    // buttons the library's windows show beside its own texts.
    replaceTranslator(m_qtTranslator, locale, QStringLiteral("qtbase"),
                      QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    return replaceTranslator(m_translator, locale, QStringLiteral("zelRibbon"), QStringLiteral(":/zel/translations"));
}

bool RibbonApplication::replaceTranslator(QTranslator *&installed, const QLocale &locale, const QString &name,
                                          const QString &directory)
{
    if (installed) {
        QCoreApplication::removeTranslator(installed);
        delete installed;
        installed = nullptr;
    }
    auto *translator = new QTranslator(this);
    if (!translator->load(locale, name, QStringLiteral("_"), directory)) {
        delete translator;
        return false;
    }
    QCoreApplication::installTranslator(translator);
    installed = translator;
    return true;
}

QPair<double, double> RibbonApplication::dpiFactor() const
{
    return m_dpiFactor;
}

bool RibbonApplication::systemDpi(int *dpiX, int *dpiY)
{
    RibbonPlatform::screenDpi(dpiX, dpiY);
    return true;
}

} // namespace zel
