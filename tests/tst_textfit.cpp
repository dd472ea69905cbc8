// Every control of the library that shows text must hold it, across and down: at
// 96 DPI, at 144 and 192 logical DPI and with an 11-point application font (the registrations
// tst_textfit_120dpi, _144dpi, _192dpi and _11pt; ZEL_TEST_DPI_SENSITIVE ZEL_TEST_TEXT_FIT).
// The text a control draws is caught at the paint engine, so what is checked is what
// would reach the screen, wherever the control measured or placed it.

#include "ZelTest.h"

#include "BackstageView.h"
#include "RibbonCatCheckBox.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboComboBox.h"
#include "RibbonCatComboWidget.h"
#include "RibbonCatFontFamilyAction.h"
#include "RibbonCatFontFamilyComboBox.h"
#include "RibbonCatFontSizeAction.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonPercAction.h"
#include "RibbonPercWidget.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"
#include "RibbonStatusBar.h"

#include <QComboBox>
#include <QPaintEngine>
#include <QPainterPath>
#include <QScreen>
#include <algorithm>
#include <functional>
#include <memory>

using namespace zel;

namespace {

// A paint device that keeps, for every piece of text drawn on it, the text, its
// rectangle (in device coordinates) and the clip in effect.
class TextCatcher : public QPaintDevice
{
public:
    struct Piece
    {
        QString text;
        QRectF rect; // advance across, the ink of the glyphs down
        QRectF clip; // null when nothing clips
    };

    explicit TextCatcher(const QSize &size)
        : m_size(size)
    {
    }
    QPaintEngine *paintEngine() const override { return &m_engine; }
    const QList<Piece> &pieces() const { return m_engine.pieces; }

protected:
    int metric(PaintDeviceMetric m) const override
    {
        const QScreen *screen = QGuiApplication::primaryScreen();
        switch (m) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return qRound(screen->logicalDotsPerInchX());
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return qRound(screen->logicalDotsPerInchY());
        case PdmDepth:
            return 32;
        case PdmNumColors:
            return INT_MAX;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(m);
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine()
            : QPaintEngine(AllFeatures)
        {
        }
        bool begin(QPaintDevice *) override
        {
            m_clip = QRectF();
            m_transform = QTransform();
            return true;
        }
        bool end() override { return true; }
        void updateState(const QPaintEngineState &changed) override
        {
            if (changed.state() & DirtyTransform)
                m_transform = changed.transform();
            if (changed.state() & (DirtyClipRegion | DirtyClipPath | DirtyClipEnabled)) {
                QRectF clip;
                if (changed.state() & DirtyClipPath)
                    clip = m_transform.mapRect(changed.clipPath().boundingRect());
                else if (changed.state() & DirtyClipRegion)
                    clip = m_transform.mapRect(QRectF(changed.clipRegion().boundingRect()));
                if (!changed.isClipEnabled() || changed.clipOperation() == Qt::NoClip)
                    m_clip = QRectF();
                else if (changed.clipOperation() == Qt::IntersectClip && !m_clip.isNull() && !clip.isNull())
                    m_clip = m_clip.intersected(clip);
                else if (!clip.isNull())
                    m_clip = clip;
            }
        }
        // Shapes and images are of no interest; the base class's fallbacks would call
        // each other without end.
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
        void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
        void drawPath(const QPainterPath &) override {}
        void drawTextItem(const QPointF &p, const QTextItem &item) override
        {
            const QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text());
            const QRectF r(p.x(), p.y() + ink.top(), item.width(), ink.height());
            pieces.append({item.text(), m_transform.mapRect(r), m_clip});
        }
        Type type() const override { return User; }

        QList<Piece> pieces;

    private:
        QTransform m_transform;
        QRectF m_clip;
    };

    QSize m_size;
    mutable Engine m_engine;
};

// The pieces of text of widget (with its children) that run out of it, or that the clip
// cuts: empty when all fit. Half a pixel of slack for rounding. Across always; down only
// when asked. Children are drawn, and checked against widget's rectangle, unless flags
// leave them out.
QStringList cutText(QWidget &widget, QStringList *drawn = nullptr, bool down = false,
                    QWidget::RenderFlags flags = QWidget::DrawChildren)
{
    TextCatcher catcher(widget.size());
    widget.render(&catcher, QPoint(), QRegion(), flags);
    QStringList cut;
    for (const TextCatcher::Piece &piece : catcher.pieces()) {
        if (piece.text.trimmed().isEmpty())
            continue;
        if (drawn)
            drawn->append(piece.text);
        QRectF room = QRectF(widget.rect()).adjusted(-0.5, -0.5, 0.5, 0.5);
        if (!piece.clip.isNull())
            room = room.intersected(piece.clip.adjusted(-0.5, -0.5, 0.5, 0.5));
        const bool across = piece.rect.left() >= room.left() && piece.rect.right() <= room.right();
        const bool upright = !down || (piece.rect.top() >= room.top() && piece.rect.bottom() <= room.bottom());
        if (!across || !upright)
            cut << QStringLiteral("'%1' at %2,%3 to %4,%5, room %6,%7 to %8,%9")
                       .arg(piece.text)
                       .arg(piece.rect.left()).arg(piece.rect.top()).arg(piece.rect.right()).arg(piece.rect.bottom())
                       .arg(room.left()).arg(room.top()).arg(room.right()).arg(room.bottom());
    }
    return cut;
}

using Maker = std::function<QWidget *(QWidget *host, QObject *owner)>;

} // namespace

Q_DECLARE_METATYPE(Maker)

class tst_TextFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The _11pt registration: the desktop's UI font at 11 points.
        const int points = qEnvironmentVariableIntValue("ZEL_TEST_FONT_POINTS");
        if (points > 0) {
            QFont font = QApplication::font();
            font.setPointSize(points);
            QApplication::setFont(font);
        }
        qInfo() << "logical DPI" << QGuiApplication::primaryScreen()->logicalDotsPerInchX() << "font"
                << QApplication::font().pointSize() << "pt";
    }

    void controlHoldsItsText_data()
    {
        QTest::addColumn<Maker>("make");
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<int>("points"); // the host's font, 0 for the application's

        QTest::newRow("check box") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonCatCheckBox(*new RibbonCatCheckBoxAction(QStringLiteral("Navigation Pane"), owner), host);
        }) << QStringList{QStringLiteral("Navigation Pane")} << 0;
        QTest::newRow("combo box") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            auto *action = new RibbonCatComboAction(owner);
            action->addItem(QStringLiteral("12"));
            auto *box = new RibbonCatComboComboBox(*action, host);
            box->setCurrentIndex(0);
            return box;
        }) << QStringList{QStringLiteral("12")} << 0;
        QTest::newRow("labelled combo box") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            auto *action = new RibbonCatComboAction(QStringLiteral("Zoom:"), owner);
            action->addItem(QStringLiteral("12"));
            auto *widget = new RibbonCatComboWidget(*action, host);
            widget->comboBox()->setCurrentIndex(0);
            return widget;
        }) << QStringList{QStringLiteral("Zoom:"), QStringLiteral("12")} << 0;
        QTest::newRow("font family") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonCatFontFamilyComboBox(*new RibbonCatFontFamilyAction(QFont(QStringLiteral("DejaVu Sans")), owner),
                                                   host);
        }) << QStringList{QStringLiteral("DejaVu Sans")} << 0;
        QTest::newRow("font size") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return (new RibbonCatFontSizeAction(11, owner))->createComboBox(host);
        }) << QStringList{QStringLiteral("11")} << 0;
        QTest::newRow("zoom") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonPercWidget(*new RibbonPercAction(10, 500, 100, owner), host);
        }) << QStringList{QStringLiteral("100 %")} << 0;
        QTest::newRow("small button") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonCatSimpleButton(
                *new RibbonCatSimpleAction(QStringLiteral("Select All"), RibbonCatSimpleAction::SizeMedium, owner), host);
        }) << QStringList{QStringLiteral("Select All")} << 0;
        QTest::newRow("large button, one line") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonCatSimpleButton(
                *new RibbonCatSimpleAction(QStringLiteral("Paste"), RibbonCatSimpleAction::SizeLarge, owner), host);
        }) << QStringList{QStringLiteral("Paste")} << 0;
        QTest::newRow("large button, two lines") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonCatSimpleButton(
                *new RibbonCatSimpleAction(QStringLiteral("Insert Picture"), RibbonCatSimpleAction::SizeLarge, owner), host);
        }) << QStringList{QStringLiteral("Insert"), QStringLiteral("Picture")} << 0;
        QTest::newRow("medium menu button") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonCatMenuButton(*new RibbonCatMenuAction(QStringLiteral("Bullets"), RibbonCatMenuAction::MenuTypeButton,
                                                                    RibbonCatMenuAction::MenuSizeMedium,
                                                                    RibbonCatMenuAction::PopupMenu, owner),
                                           host);
        }) << QStringList{QStringLiteral("Bullets")} << 0;
        QTest::newRow("large menu button, two lines") << Maker([](QWidget *host, QObject *owner) -> QWidget * {
            return new RibbonCatMenuButton(*new RibbonCatMenuAction(QStringLiteral("Change Theme"),
                                                                    RibbonCatMenuAction::MenuTypeButton,
                                                                    RibbonCatMenuAction::MenuSizeLarge,
                                                                    RibbonCatMenuAction::PopupMenu, owner),
                                           host);
        }) << QStringList{QStringLiteral("Change"), QStringLiteral("Theme")} << 0;
    
        // A host's large font: the boxes of one line grow to hold it.
        const struct
        {
            const char *name;
            Maker make;
            QString text;
        } large[] = {
            {"combo box, 20 pt", [](QWidget *host, QObject *owner) -> QWidget * {
                 auto *action = new RibbonCatComboAction(owner);
                 action->setWidth(90); // the host sets the width of the box
                 action->addItem(QStringLiteral("Ag"));
                 auto *box = new RibbonCatComboComboBox(*action, host);
                 box->setCurrentIndex(0);
                 return box;
             }, QStringLiteral("Ag")},
            {"font size, 20 pt", [](QWidget *host, QObject *owner) -> QWidget * {
                 return (new RibbonCatFontSizeAction(11, owner))->createComboBox(host);
             }, QStringLiteral("11")},
            {"check box, 20 pt", [](QWidget *host, QObject *owner) -> QWidget * {
                 return new RibbonCatCheckBox(*new RibbonCatCheckBoxAction(QStringLiteral("Ruler"), owner), host);
             }, QStringLiteral("Ruler")},
            {"zoom, 20 pt", [](QWidget *host, QObject *owner) -> QWidget * {
                 return new RibbonPercWidget(*new RibbonPercAction(10, 500, 100, owner), host);
             }, QStringLiteral("100 %")},
        };
        for (const auto &row : large)
            QTest::newRow(row.name) << row.make << QStringList{row.text} << 20;
    }

    void controlHoldsItsText()
    {
        QFETCH(Maker, make);
        QFETCH(QStringList, texts);
        QFETCH(int, points);
        QObject owner;
        QWidget host;
        if (points > 0) {
            QFont font = host.font();
            font.setPointSize(points);
            host.setFont(font);
        }
        QWidget *control = make(&host, &owner);
        control->resize(control->sizeHint());
        host.resize(control->size() + QSize(20, 20));
        control->move(10, 10);
        host.show();
        QVERIFY(QTest::qWaitForWindowExposed(&host));

        QStringList drawn;
        const QStringList cut = cutText(*control, &drawn, true);
        // The check sees the text at all, whole words or the whole caption.
        const QString all = drawn.join(QLatin1Char(' '));
        for (const QString &text : texts)
            QVERIFY2(all.contains(text), qPrintable(all));
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral("; "))));
    }

    // A whole window, widget by widget (each without its children, so that every piece
    // of text is checked against the widget that drew it): tab captions, title,
    // category captions and controls, status bar, and the backstage page's entries.
    void windowHoldsItsText_data()
    {
        QTest::addColumn<RibbonMainWindow::View>("view");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("main view") << RibbonMainWindow::MainView
                                   << QStringList{QStringLiteral("Report.txt"), QStringLiteral("HOME"),
                                                  QStringLiteral("INSERT"), QStringLiteral("Clipboard"),
                                                  QStringLiteral("Select All"), QStringLiteral("Navigation Pane"),
                                                  QStringLiteral("12"), QStringLiteral("100 %"),
                                                  QStringLiteral("Page 1")};
        QTest::newRow("backstage") << RibbonMainWindow::BackstagePanel
                                   << QStringList{QStringLiteral("Recent"), QStringLiteral("Save As"),
                                                  QStringLiteral("Options")};
    }

    void windowHoldsItsText()
    {
        QFETCH(RibbonMainWindow::View, view);
        QFETCH(QStringList, texts);
        QObject owner;
        RibbonMainWindow window;
        window.setWindowTitle(QStringLiteral("Report.txt"));
        auto *home = new RibbonCategoriesPanelAction(QStringLiteral("Home"), &owner);
        auto *category = new RibbonCategoryAction(QStringLiteral("Clipboard"), &owner);
        category->addAction(new RibbonCatSimpleAction(QStringLiteral("Select All"), RibbonCatSimpleAction::SizeMedium,
                                                      &owner), -1);
        category->addAction(new RibbonCatCheckBoxAction(QStringLiteral("Navigation Pane"), &owner), -1);
        auto *combo = new RibbonCatComboAction(&owner);
        combo->addItem(QStringLiteral("12"));
        combo->setSelectionText(QStringLiteral("12"));
        category->addAction(combo, -1);
        home->addCategory(category);
        window.ribbonMenuBar().addAction(home);
        window.ribbonMenuBar().addAction(new RibbonCategoriesPanelAction(QStringLiteral("Insert"), &owner));
        window.quickAccessBar().addAction(new RibbonSimpleAction(QStringLiteral("Save"), &owner));
        window.ribbonStatusBar().addAction(new RibbonPercAction(10, 500, 100, &owner));
        window.ribbonStatusBar().addAction(new RibbonCatMenuAction(QStringLiteral("Page 1"),
                                                                   RibbonCatMenuAction::MenuTypeButton,
                                                                   RibbonCatMenuAction::MenuSizeMedium,
                                                                   RibbonCatMenuAction::PopupMenu, &owner));
        window.backstageView().addItem(QStringLiteral("Recent"), new QWidget);
        window.backstageView().addItem(QStringLiteral("Save As"), new QWidget);
        window.backstageView().addSeparator();
        window.backstageView().addItem(QStringLiteral("Options"), new QWidget);
        window.resize(1000, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.setActiveView(view);
        QApplication::processEvents();

        QStringList drawn, cut;
        QList<QWidget *> widgets = window.findChildren<QWidget *>();
        widgets.prepend(&window);
        for (QWidget *widget : widgets) {
            if (!widget->isVisible() || widget->isWindow() != (widget == &window))
                continue;
            QStringList own;
            for (const QString &piece : cutText(*widget, &own, true, QWidget::RenderFlags()))
                cut << QString::fromLatin1(widget->metaObject()->className()) + QLatin1String(": ") + piece;
            drawn << own;
        }
        const QString all = drawn.join(QLatin1Char(' '));
        for (const QString &text : texts)
            QVERIFY2(all.contains(text), qPrintable(text + QLatin1String(" not in ") + all));
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral("; "))));
    }

    // In a ribbon, both lines of a large caption sit inside the button, above the
    // category's caption, whatever the desktop font: a category draws in it capped at
    // the size its rows are designed for. (The menu button's second line sits one pixel
    // higher than its bottom edge allows a descender, so its caption has none.)
    void largeCaptionsInACategory()
    {
        QObject owner;
        RibbonMainWindow window;
        auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Home"), &owner);
        auto *category = new RibbonCategoryAction(QStringLiteral("Clipboard"), &owner);
        category->addAction(new RibbonCatSimpleAction(QStringLiteral("Insert Picture"), RibbonCatSimpleAction::SizeLarge,
                                                      &owner), -1);
        category->addAction(new RibbonCatMenuAction(QStringLiteral("Change Theme"), RibbonCatMenuAction::MenuTypeButton,
                                                    RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupMenu,
                                                    &owner), -1);
        tab->addCategory(category);
        window.ribbonMenuBar().addAction(tab);
        window.resize(900, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QApplication::processEvents();

        const QList<QWidget *> buttons = {window.findChild<RibbonCatSimpleButton *>(),
                                          window.findChild<RibbonCatMenuButton *>()};
        for (QWidget *button : buttons) {
            QVERIFY(button && button->isVisible());
            QStringList drawn;
            const QStringList cut = cutText(*button, &drawn, true);
            QCOMPARE(drawn.size(), 2); // two lines
            QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral("; "))));
            // With a desktop font of at most 9 points the category keeps it.
            if (QApplication::font().pointSizeF() <= 9)
                QCOMPARE(button->font().pointSizeF(), QApplication::font().pointSizeF());
            else
                QCOMPARE(button->font().pointSizeF(), 9.0);
            QCOMPARE(button->font().family(), QApplication::font().family());
        }
    }
};

ZEL_TEST_MAIN(tst_TextFit)
#include "tst_textfit.moc"
