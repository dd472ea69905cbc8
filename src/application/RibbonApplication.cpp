#include "RibbonApplication.h"

#include "DefaultRibbonStyle.h"
#include "RibbonPlatform.h"
#include "RibbonStyles.h"

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
}

RibbonApplication::~RibbonApplication() = default;

RibbonApplication &RibbonApplication::theApp()
{
    return *qobject_cast<RibbonApplication *>(QCoreApplication::instance());
}

const RibbonStyle &RibbonApplication::ribbonStyle() const
{
    // One palette per process; it outlives the application object, since widgets
    // destroyed late may still paint.
    static const DefaultRibbonStyle style(QStringLiteral(":/zel/ribbon/windows/"));
    return style;
}

RibbonApplication::eRibbonStyle RibbonApplication::getRibbonStyle()
{
    return m_ribbonStyleKind;
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
