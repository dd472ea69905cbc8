// ZEL_TEST_DPI_SENSITIVE: runs at 96 and at 144 DPI.
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonPlatform.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QScreen>
#include <QStyle>

#include <memory>

using namespace zel;

class tst_RibbonApplication : public QObject
{
    Q_OBJECT

    // The resolution the test runs at, as the environment forces it.
    static int forcedDpi() { return qEnvironmentVariableIntValue("QT_FONT_DPI"); }

private slots:
    void theAppIsTheRunningApplication()
    {
        QCOMPARE(&RibbonApplication::theApp(), qApp);
        QCOMPARE(RibbonApplication::theApp().getRibbonStyle(), RibbonApplication::RibbonStyleDefault);
        QCOMPARE(int(RibbonApplication::theApp().getRibbonStyle()), 1);
    }

    void paletteIsOnePerProcess()
    {
        const RibbonStyle *first = &RibbonApplication::theApp().ribbonStyle();
        const RibbonStyle *second = &qobject_cast<RibbonApplication *>(qApp)->ribbonStyle();
        QCOMPARE(first, second);
        QCOMPARE(first->metaObject()->className(), "zel::DefaultRibbonStyle");
    }

    void dpiFactorFollowsTheScreen()
    {
        QVERIFY(forcedDpi() > 0);
        const double expected = forcedDpi() / 96.0;
        const QPair<double, double> factor = RibbonApplication::theApp().dpiFactor();
        QCOMPARE(factor.first, expected);
        QCOMPARE(factor.second, expected);

        int x = 0;
        int y = 0;
        QVERIFY(RibbonApplication::systemDpi(&x, &y));
        QCOMPARE(x, forcedDpi());
        QCOMPARE(y, forcedDpi());
    }

    void scaledMetrics_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("at96");
        QTest::addColumn<int>("at144");
        QTest::newRow("zero") << 0.0 << 0 << 0;
        QTest::newRow("caption 22") << 22.0 << 22 << 33;
        QTest::newRow("odd 3") << 3.0 << 3 << 5;     // 4.5 + 0.5 truncates to 5
        QTest::newRow("one") << 1.0 << 1 << 2;       // 1.5 + 0.5 = 2
        QTest::newRow("fraction") << 1.4 << 1 << 2;  // 2.1 + 0.5 truncates to 2
    }

    void scaledMetrics()
    {
        QFETCH(double, value);
        QFETCH(int, at96);
        QFETCH(int, at144);
        QCOMPARE(scaled(value), forcedDpi() == 144 ? at144 : at96);
    }

    void platformMetricsScaleWithTheScreen()
    {
        const bool high = forcedDpi() == 144;
        QCOMPARE(RibbonPlatform::sizingFrameThickness(), high ? 6 : 4);
        QCOMPARE(RibbonPlatform::captionHeight(), high ? 35 : 23);
    }

    void baseStyleFallsBackToFusion_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("xp") << QStringLiteral("windowsxp") << QStringLiteral("fusion");
        QTest::newRow("vista") << QStringLiteral("windowsvista") << QStringLiteral("fusion");
        QTest::newRow("unknown") << QStringLiteral("no such style") << QStringLiteral("fusion");
        QTest::newRow("available") << QStringLiteral("Windows") << QStringLiteral("windows");
    }

    void baseStyleFallsBackToFusion()
    {
        QFETCH(QString, name);
        QFETCH(QString, expected);
        std::unique_ptr<QStyle> style(RibbonPlatform::createBaseStyle(name));
        QVERIFY(style);
        QCOMPARE(style->objectName().toLower(), expected);
    }
};

ZEL_TEST_MAIN(tst_RibbonApplication)
#include "tst_ribbonapplication.moc"
