// ZEL_TEST_DPI_SENSITIVE: runs at 96 and at 144 DPI.
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonPlatform.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QStyle>

using namespace zel;

class tst_RibbonApplication : public QObject
{
    Q_OBJECT

    static int forcedDpi() { return qEnvironmentVariableIntValue("QT_FONT_DPI"); }
    static bool high() { return forcedDpi() == 144; }

private slots:
    void oneApplicationOnePalette()
    {
        QCOMPARE(&RibbonApplication::theApp(), qApp);
        QCOMPARE(int(RibbonApplication::theApp().getRibbonStyle()), 1);
        const RibbonStyle *first = &RibbonApplication::theApp().ribbonStyle();
        QCOMPARE(first, &qobject_cast<RibbonApplication *>(qApp)->ribbonStyle());
        QCOMPARE(first->metaObject()->className(), "zel::DefaultRibbonStyle");
    }

    void metricsFollowTheScreen()
    {
        QVERIFY(forcedDpi() > 0);
        const QPair<double, double> factor = RibbonApplication::theApp().dpiFactor();
        QCOMPARE(factor.first, forcedDpi() / 96.0);
        QCOMPARE(factor.second, forcedDpi() / 96.0);
        int x = 0;
        int y = 0;
        QVERIFY(RibbonApplication::systemDpi(&x, &y));
        QCOMPARE(x, forcedDpi());
        QCOMPARE(y, forcedDpi());
        QCOMPARE(RibbonPlatform::sizingFrameThickness(), high() ? 6 : 4);
        QCOMPARE(RibbonPlatform::captionHeight(), high() ? 35 : 23);
        // S(v) = int(v * factor + 0.5): rounds halves up, truncates the rest.
        QCOMPARE(scaled(0), 0);
        QCOMPARE(scaled(22), high() ? 33 : 22);
        QCOMPARE(scaled(3), high() ? 5 : 3);
        QCOMPARE(scaled(1.4), high() ? 2 : 1);
    }

    void baseStyleFallsBackToFusion()
    {
        const QPair<const char *, const char *> cases[] = {
            {"windowsxp", "fusion"}, {"no such style", "fusion"}, {"Windows", "windows"}};
        for (const auto &c : cases) {
            QScopedPointer<QStyle> style(RibbonPlatform::createBaseStyle(QLatin1String(c.first)));
            QVERIFY(style);
            QCOMPARE(style->objectName().toLower(), QLatin1String(c.second));
        }
    }
};

ZEL_TEST_MAIN(tst_RibbonApplication)
#include "tst_ribbonapplication.moc"
