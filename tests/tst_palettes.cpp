#include "ZelTest.h"

#include "DarkRibbonStyle.h"
#include "DefaultRibbonStyle.h"
#include "RibbonCatCheckBox.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonColorPickerPopup.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonStyle.h"

#include <QCheckBox>
#include <QDirIterator>
#include <QSet>
#include <QSignalSpy>

#include <memory>

using namespace zel;

namespace {

// Remembers every widget that received a paint event since the last clear().
class PaintRecorder : public QObject
{
public:
    PaintRecorder() { qApp->installEventFilter(this); }
    ~PaintRecorder() override { qApp->removeEventFilter(this); }

    void clear() { m_painted.clear(); }

    // The shown widgets that have something on screen but were not painted.
    QStringList unpainted() const
    {
        QStringList missing;
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *w : widgets) {
            if (w->isVisible() && !w->visibleRegion().isEmpty() && !m_painted.contains(w))
                missing << QString::fromLatin1(w->metaObject()->className()) + QLatin1Char(' ') + w->objectName();
        }
        return missing;
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType())
            m_painted.insert(watched);
        return false;
    }

private:
    QSet<QObject *> m_painted;
};

// Mean lightness of the pixels, each counted by its opacity (transparent pixels not at all).
double meanLightness(const QImage &image)
{
    double sum = 0;
    double weight = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = QColor::fromRgba(image.pixel(x, y));
            sum += c.lightness() * c.alphaF();
            weight += c.alphaF();
        }
    }
    return weight > 0 ? sum / weight : 0;
}

// The share of pixels that are (nearly) opaque: surfaces rather than glyphs.
double coverage(const QImage &image)
{
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            opaque += qAlpha(image.pixel(x, y)) > 200 ? 1 : 0;
    }
    return double(opaque) / (image.width() * image.height());
}

// Relative luminance contrast as used for text legibility (1 to 21).
double contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &c) {
        const auto channel = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
    };
    const double la = luminance(a) + 0.05;
    const double lb = luminance(b) + 0.05;
    return la > lb ? la / lb : lb / la;
}

} // namespace

class TestPalettes : public QObject
{
    Q_OBJECT

    RibbonApplication &app() { return RibbonApplication::theApp(); }

private slots:
    void cleanup()
    {
        app().setRibbonStyle(RibbonApplication::RibbonStyleDefault);
        QCOMPARE(app().getRibbonStyle(), RibbonApplication::RibbonStyleDefault);
    }

    // The dark set has every light image, with the light image's size (the geometry the
    // painting code slices by), and is drawn in other colours.
    void darkImagesMatchTheLightOnes()
    {
        QStringList light;
        QDirIterator it(QStringLiteral(":/zel/ribbon/windows"));
        while (it.hasNext())
            light << it.next().section(QLatin1Char('/'), -1);
        light.sort();
        QStringList dark = QDir(QStringLiteral(":/zel/ribbon/dark")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(dark, light);
        QVERIFY(light.size() > 40);
        int lightSurfaces = 0;
        for (const QString &file : light) {
            const QImage l(QStringLiteral(":/zel/ribbon/windows/") + file);
            const QImage d(QStringLiteral(":/zel/ribbon/dark/") + file);
            QVERIFY2(!d.isNull(), qPrintable(file));
            QCOMPARE(d.size(), l.size());
            // Light surfaces of the light set (panels, buttons, popups) are dark in the
            // other; glyphs on the status bar stay light.
            if (coverage(l) > 0.5 && meanLightness(l) > 180) {
                ++lightSurfaces;
                QVERIFY2(meanLightness(d) < 110, qPrintable(file));
            }
        }
        QVERIFY(lightSurfaces > 10);
    }

    // Text stays legible on the surfaces it is drawn on, and no sheet keeps a white field.
    void darkPaletteIsLegible()
    {
        const DarkRibbonStyle dark(QStringLiteral(":/zel/ribbon/dark/"));
        const DefaultRibbonStyle light(QStringLiteral(":/zel/ribbon/windows/"));
        QVERIFY(contrast(dark.normalCategoryTextColor(), dark.categoryColorUnderButton()) >= 4.5);
        QVERIFY(contrast(dark.activeTextColor(), dark.mainClientColor()) >= 4.5);
        QVERIFY(contrast(dark.statusBarTextColor(), dark.frameBorderColor()) >= 4.5);
        QVERIFY(dark.mainClientColor().lightness() < light.mainClientColor().lightness() / 2);
        for (const QString &sheet : {dark.backstageLineEditStyle(), dark.backstageMenuStyle(),
                                     dark.backstageSpinBoxStyle(), dark.backstageScrollBarStyle(),
                                     dark.backstageOpenRecentListWidgetStyle()}) {
            QVERIFY2(!sheet.contains(QLatin1String("background-color: white")), qPrintable(sheet));
            QVERIFY(!sheet.isEmpty());
        }
        QVERIFY(light.backstageLineEditStyle().contains(QLatin1String("background-color: white")));
        QVERIFY(!dark.mainBorder().isNull());
        QCOMPARE(dark.mainBorder().size(), light.mainBorder().size());
    }

    void switchSignal_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<int>("emissions");
        QTest::addColumn<int>("result");
        const int none = RibbonApplication::RibbonStyleNone;
        const int light = RibbonApplication::RibbonStyleDefault;
        const int dark = RibbonApplication::RibbonStyleDark;
        QTest::newRow("to dark") << dark << dark << 1 << dark;
        QTest::newRow("dark and back") << dark << light << 2 << light;
        QTest::newRow("light again") << light << light << 0 << light;
        QTest::newRow("none is refused") << none << none << 0 << light;
        QTest::newRow("unknown is refused") << 7 << dark << 1 << dark;
    }

    void switchSignal()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(int, emissions);
        QFETCH(int, result);
        QSignalSpy spy(&app(), &RibbonApplication::ribbonStyleChanged);
        app().setRibbonStyle(RibbonApplication::eRibbonStyle(first));
        app().setRibbonStyle(RibbonApplication::eRibbonStyle(second));
        QCOMPARE(spy.count(), emissions);
        QCOMPARE(int(app().getRibbonStyle()), result);
        const bool isDark = qobject_cast<const DarkRibbonStyle *>(&app().ribbonStyle()) != nullptr;
        QCOMPARE(isDark, result == RibbonApplication::RibbonStyleDark);
    }

    // A palette handed out before a switch stays valid: painters may hold on to it.
    void earlierPaletteStaysValid()
    {
        const RibbonStyle *light = &app().ribbonStyle();
        app().setRibbonStyle(RibbonApplication::RibbonStyleDark);
        const RibbonStyle *dark = &app().ribbonStyle();
        QVERIFY(dark != light);
        QCOMPARE(light->mainClientColor(), QColor(240, 240, 240));
        app().setRibbonStyle(RibbonApplication::RibbonStyleDefault);
        QCOMPARE(&app().ribbonStyle(), light);
        app().setRibbonStyle(RibbonApplication::RibbonStyleDark);
        QCOMPARE(&app().ribbonStyle(), dark);
    }

    void switchRepaintsAndRereads()
    {
        auto owner = std::make_unique<QObject>();
        auto window = std::make_unique<RibbonMainWindow>();
        auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), owner.get());
        auto *category = new RibbonCategoryAction(QStringLiteral("Show"), owner.get());
        auto *rulerAction = new RibbonCatCheckBoxAction(QStringLiteral("Ruler"), owner.get());
        category->addAction(rulerAction, 0);
        tab->addCategory(category);
        window->ribbonMenuBar().addAction(tab);
        window->setGeometry(50, 50, 800, 500);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        auto popup = std::make_unique<RibbonColorPickerPopup>();
        popup->setGradientEnabled(true);
        popup->setNoneColorEnabled(true);
        popup->move(900, 50);
        popup->show();
        QVERIFY(zelPopupShown(popup.get()));
        QCoreApplication::processEvents();

        const int widgetsBefore = QApplication::allWidgets().size();
        const QPalette widgetPaletteBefore = QApplication::palette();
        const QImage lightWindow = window->grab().toImage();
        const QImage lightPopup = popup->grab().toImage();
        auto *ruler = window->findChild<RibbonCatCheckBox *>();
        QVERIFY(ruler);
        auto *gradient = popup->findChild<QCheckBox *>();
        QVERIFY(gradient);

        PaintRecorder recorder;
        app().setRibbonStyle(RibbonApplication::RibbonStyleDark);
        const RibbonStyle &dark = app().ribbonStyle();
        QTRY_COMPARE(recorder.unpainted(), QStringList());
        QCOMPARE(window->palette().color(QPalette::Window), dark.mainClientColor());
        QVERIFY(ruler->styleSheet().contains(dark.normalCategoryTextColor().name()));
        QVERIFY(gradient->styleSheet().contains(dark.normalCategoryTextColor().name()));
        QCOMPARE(QApplication::palette().color(QPalette::Base), dark.categoryColorUnderButton());
        // The "None" swatch, drawn on the button colour, was drawn again.
        QAction *none = nullptr;
        for (QAction *action : popup->findChildren<QAction *>()) {
            if (action->text() == QLatin1String("None"))
                none = action;
        }
        QVERIFY(none);
        QCOMPARE(QColor(none->icon().pixmap(16).toImage().pixel(0, 0)),
                 QApplication::palette().color(QPalette::Button));
        const QImage darkWindow = window->grab().toImage();
        QCOMPARE(darkWindow.size(), lightWindow.size());
        QVERIFY(meanLightness(darkWindow) < meanLightness(lightWindow) - 60);
        QVERIFY(meanLightness(popup->grab().toImage()) < meanLightness(lightPopup) - 60);

        recorder.clear();
        app().setRibbonStyle(RibbonApplication::RibbonStyleDefault);
        QTRY_COMPARE(recorder.unpainted(), QStringList());
        // Back in the light look, everything reads as it did before the round trip.
        QCOMPARE(window->grab().toImage(), lightWindow);
        QCOMPARE(popup->grab().toImage(), lightPopup);
        QCOMPARE(QApplication::palette(), widgetPaletteBefore);
        QCOMPARE(QApplication::allWidgets().size(), widgetsBefore);
    }
};

ZEL_TEST_MAIN(TestPalettes)
#include "tst_palettes.moc"
