// The bar's height grows with the resolution, at 96 and 144 DPI: ZEL_TEST_DPI_SENSITIVE
#include "ZelTest.h"

#include "RibbonApplication.h"
#include "RibbonMenuAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"
#include "RibbonSymbolButton.h"
#include "RibbonTabBar.h"

#include <QDrag>
#include <QMimeData>
#include <QPointer>

#include <memory>

using namespace zel;

namespace {

bool highDpi()
{
    return RibbonApplication::theApp().dpiFactor().second > 1.25;
}

// The hit tests are protected; a host's subclass reaches them, so does the test.
class TabBar : public RibbonTabBar
{
public:
    using RibbonTabBar::RibbonTabBar;
    using RibbonTabBar::actionByPoint;
    using RibbonTabBar::dragMoveEvent;
    using RibbonTabBar::tabRect;

    // The entries whose tabs can be hit anywhere across the bar, left to right.
    QList<RibbonAction *> hittable() const
    {
        QList<RibbonAction *> found;
        for (int x = 0; x < width(); ++x) {
            RibbonAction *entry = actionByPoint(QPoint(x, height() / 2));
            if (entry && !found.contains(entry))
                found.append(entry);
        }
        return found;
    }
};

void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &pos, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, pos, widget.mapToGlobal(pos), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

QMimeData *mime(const QString &format, const QByteArray &bytes)
{
    auto *data = new QMimeData;
    data->setData(format, bytes);
    return data;
}

} // namespace

class tst_TabBar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void geometry();
    void emptyBarNavigation();
    void scrollingLimits();
    void tabsPastTheEdgeAreNotHit();
    void pressChoosesOnlyAnotherTab_data();
    void pressChoosesOnlyAnotherTab();
    void dragStartsPastTenPixels_data();
    void dragStartsPastTenPixels();
    void dropsOfOtherDataAreRefused_data();
    void dropsOfOtherDataAreRefused();
    void draggingWalksTheCurrentTab();
    void followsTheMenu();
    void paintsTheCurrentTabFromItsRow();
    void menuDeletedFirst();

private:
    // n entries, checkable, in an exclusive menu; texts empty unless given.
    void fill(int n, const QStringList &texts = {});
    void showBar(int width);

    std::unique_ptr<QObject> m_owner;
    RibbonMenuAction *m_menu = nullptr;
    QList<RibbonSimpleAction *> m_entries;
    std::unique_ptr<TabBar> m_bar;
};

void tst_TabBar::init()
{
    m_owner.reset(new QObject);
    m_menu = new RibbonMenuAction(QStringLiteral("Documents"), m_owner.get());
    m_menu->setExclusive(true);
    m_entries.clear();
    m_bar.reset(new TabBar(*m_menu));
}

void tst_TabBar::cleanup()
{
    // Qt keeps the widget that accepted the last drag entry as a plain pointer and hands
    // it every drag move: a leave clears it before the bar goes.
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(m_bar.get(), &leave);
    m_bar.reset();
    m_owner.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TabBar::fill(int n, const QStringList &texts)
{
    for (int i = 0; i < n; ++i) {
        auto *entry = new RibbonSimpleAction(texts.value(i), m_owner.get());
        entry->setCheckable(true);
        m_menu->addAction(entry, false);
        m_entries.append(entry);
    }
}

void tst_TabBar::showBar(int width)
{
    m_bar->resize(width, m_bar->height());
    m_bar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_bar.get()));
}

void tst_TabBar::geometry()
{
    const int h = highDpi() ? 24 : 16;
    QCOMPARE(m_bar->height(), h);
    QCOMPARE(m_bar->sizeHint(), QSize(74, h));

    const QList<RibbonSymbolButton *> buttons = m_bar->findChildren<RibbonSymbolButton *>();
    QCOMPARE(buttons.size(), 4);
    const QList<QPair<eSymbolType, QRect>> expected = {{SymbolFirst, QRect(5, 0, 16, h)},
                                                       {SymbolPrevious, QRect(21, 0, 16, h)},
                                                       {SymbolNext, QRect(37, 0, 16, h)},
                                                       {SymbolLast, QRect(53, 0, 16, h)}};
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(buttons.at(i)->symbol(), expected.at(i).first);
        QCOMPARE(buttons.at(i)->geometry(), expected.at(i).second);
    }

    // An empty caption leaves the 20 pixels of padding; tabs follow one another from 74.
    fill(3, {QString(), QStringLiteral("Report"), QStringLiteral("A much longer document name")});
    showBar(600);
    QCOMPARE(m_bar->tabRect(QPoint(80, 2)), QRect(74, 0, 20, h));
    const QRect second = m_bar->tabRect(QPoint(95, 2));
    QCOMPARE(second.left(), 94);
    QVERIFY(second.width() > 20);
    const QRect third = m_bar->tabRect(QPoint(second.right() + 1, 2));
    QCOMPARE(third.left(), second.right() + 1);
    QVERIFY(third.width() > second.width());
    QCOMPARE(m_bar->tabWidth(), third.width());
    QCOMPARE(m_bar->tabRect(QPoint(third.right() + 1, 2)), QRect());
    QCOMPARE(m_bar->actionByPoint(QPoint(40, 2)), nullptr);
}

// With no entries the navigation stays at the first place: tabs added afterwards start
// right after the button area.
void tst_TabBar::emptyBarNavigation()
{
    showBar(300);
    const QImage before = m_bar->grab().toImage();
    m_bar->navLast();
    m_bar->navNext();
    m_bar->navPrev();
    m_bar->ensureVisible(false);
    m_bar->navNext();
    QCOMPARE(m_bar->grab().toImage(), before);
    QVERIFY(m_bar->hittable().isEmpty());

    // Only the button area is painted: its stretched column at the left, nothing past 74.
    const QImage sheet = RibbonApplication::theApp().ribbonStyle().tabBarTabs().toImage();
    const QImage empty = before.convertToFormat(QImage::Format_ARGB32);
    const int y = m_bar->height() / 2;
    QCOMPARE(empty.pixel(2, y), sheet.pixel(4, 8));
    QCOMPARE(empty.pixel(72, y), sheet.pixel(4, 8));
    const QImage blank = [this] {
        QWidget plain;
        plain.setPalette(m_bar->palette());
        plain.resize(m_bar->size());
        return plain.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    }();
    for (int x = 74; x < m_bar->width(); x += 7)
        QCOMPARE(empty.pixel(x, y), blank.pixel(x, y));

    fill(2);
    QCOMPARE(m_bar->hittable(), (QList<RibbonAction *>{m_entries.at(0), m_entries.at(1)}));
    QCOMPARE(m_bar->tabRect(QPoint(75, 1)).left(), 74);
}

// Ten tabs of 20 pixels in 50 pixels of room: the last place the bar scrolls to shows
// tabs 8 and 9.
void tst_TabBar::scrollingLimits()
{
    fill(10);
    showBar(124);
    auto first = [this] { return m_bar->actionByPoint(QPoint(74, 2)); };
    QCOMPARE(first(), m_entries.at(0));

    m_bar->navPrev();
    QCOMPARE(first(), m_entries.at(0));
    m_bar->navNext();
    QCOMPARE(first(), m_entries.at(1));
    for (int i = 0; i < 20; ++i)
        m_bar->navNext();
    QCOMPARE(first(), m_entries.at(8));
    m_bar->navPrev();
    QCOMPARE(first(), m_entries.at(7));
    m_bar->navFirst();
    QCOMPARE(first(), m_entries.at(0));
    m_bar->navLast();
    QCOMPARE(first(), m_entries.at(8));
    QCOMPARE(m_bar->hittable(), (QList<RibbonAction *>{m_entries.at(8), m_entries.at(9)}));
    m_bar->ensureVisible(true);
    QCOMPARE(first(), m_entries.at(0));
    m_bar->ensureVisible(false);
    QCOMPARE(first(), m_entries.at(1));

    // Removing entries pulls the first visible one back into range.
    m_bar->navLast();
    for (int i = 9; i >= 3; --i)
        m_menu->removeAction(m_entries.at(i));
    QCOMPARE(first(), m_entries.at(2));

    // The navigation buttons drive the same slots.
    m_bar->navFirst();
    const QList<RibbonSymbolButton *> buttons = m_bar->findChildren<RibbonSymbolButton *>();
    buttons.at(2)->click();
    QCOMPARE(first(), m_entries.at(1));
}

void tst_TabBar::tabsPastTheEdgeAreNotHit()
{
    fill(6);
    showBar(74 + 50); // room for two and a half tabs
    QCOMPARE(m_bar->hittable(), (QList<RibbonAction *>{m_entries.at(0), m_entries.at(1), m_entries.at(2)}));
    QCOMPARE(m_bar->actionByPoint(QPoint(123, 2)), m_entries.at(2));
    // The fourth tab would start at 134 on a wider bar.
    QCOMPARE(m_bar->actionByPoint(QPoint(140, 2)), nullptr);

    m_bar->navNext();
    m_bar->navNext();
    QCOMPARE(m_bar->hittable(), (QList<RibbonAction *>{m_entries.at(2), m_entries.at(3), m_entries.at(4)}));
}

void tst_TabBar::pressChoosesOnlyAnotherTab_data()
{
    QTest::addColumn<int>("buttonValue");
    QTest::addColumn<bool>("contextMenu");
    QTest::newRow("left") << int(Qt::LeftButton) << false;
    QTest::newRow("right") << int(Qt::RightButton) << false;
    QTest::newRow("middle") << int(Qt::MiddleButton) << false;
    QTest::newRow("context menu") << int(Qt::NoButton) << true;
}

void tst_TabBar::pressChoosesOnlyAnotherTab()
{
    QFETCH(int, buttonValue);
    QFETCH(bool, contextMenu);
    const auto button = Qt::MouseButton(buttonValue);
    fill(3);
    m_entries.at(0)->setChecked(true);
    showBar(300);
    QSignalSpy first(m_entries.at(0), &QAction::triggered);
    QSignalSpy second(m_entries.at(1), &QAction::triggered);

    auto press = [&](const QPoint &pos) {
        if (contextMenu) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, pos, m_bar->mapToGlobal(pos));
            QCoreApplication::sendEvent(m_bar.get(), &event);
        } else {
            sendMouse(*m_bar, QEvent::MouseButtonPress, pos, button, button);
            sendMouse(*m_bar, QEvent::MouseButtonRelease, pos, button, Qt::NoButton);
        }
    };
    press(QPoint(80, 5)); // the current tab
    QCOMPARE(first.count(), 0);
    QVERIFY(m_entries.at(0)->isChecked());

    press(QPoint(100, 5));
    QCOMPARE(second.count(), 1);
    QCOMPARE(m_menu->checkedAction(), m_entries.at(1));
    QVERIFY(!m_entries.at(0)->isChecked());

    press(QPoint(40, 5)); // the button area
    press(QPoint(250, 5)); // past the tabs
    QCOMPARE(first.count() + second.count(), 1);
    QCOMPARE(m_menu->checkedAction(), m_entries.at(1));
}

void tst_TabBar::dragStartsPastTenPixels_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<Qt::MouseButtons>("buttons");
    QTest::addColumn<bool>("drags");
    QTest::newRow("ten to the right") << QPoint(90, 5) << Qt::MouseButtons(Qt::LeftButton) << false;
    QTest::newRow("six and eight (ten)") << QPoint(86, 13) << Qt::MouseButtons(Qt::LeftButton) << false;
    QTest::newRow("eleven to the right") << QPoint(91, 5) << Qt::MouseButtons(Qt::LeftButton) << true;
    QTest::newRow("seven and eight") << QPoint(87, 13) << Qt::MouseButtons(Qt::LeftButton) << true;
    QTest::newRow("right button") << QPoint(110, 5) << Qt::MouseButtons(Qt::RightButton) << false;
    QTest::newRow("two buttons") << QPoint(110, 5) << (Qt::LeftButton | Qt::RightButton) << false;
    QTest::newRow("onto the button area") << QPoint(60, 5) << Qt::MouseButtons(Qt::LeftButton) << false;
}

// A press selects; only a move of more than ten pixels with the left button alone, ending
// on a tab, starts the drag.
void tst_TabBar::dragStartsPastTenPixels()
{
    QFETCH(QPoint, to);
    QFETCH(Qt::MouseButtons, buttons);
    QFETCH(bool, drags);
    fill(3);
    m_entries.at(2)->setChecked(true);
    showBar(300);
    // The y of the rows is within the bar at both resolutions.
    QVERIFY(to.y() < m_bar->height());

    const QPoint from(80, 5);
    sendMouse(*m_bar, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(m_menu->checkedAction(), m_entries.at(0));
    // The offscreen platform ends a drag at once; the drag object waits for deletion.
    sendMouse(*m_bar, QEvent::MouseMove, to, Qt::NoButton, buttons);
    QCOMPARE(m_bar->findChild<QDrag *>() != nullptr, drags);
    if (QDrag *drag = m_bar->findChild<QDrag *>()) {
        QVERIFY(drag->mimeData()->hasFormat(QStringLiteral("action")));
        QCOMPARE(drag->mimeData()->data(QStringLiteral("action")), QByteArray("tab-reordering"));
        QCOMPARE(drag->supportedActions(), Qt::MoveAction);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_TabBar::dropsOfOtherDataAreRefused_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("reordering") << QStringLiteral("action") << QByteArray("tab-reordering") << true;
    QTest::newRow("other action") << QStringLiteral("action") << QByteArray("tab-reordering-2") << false;
    QTest::newRow("empty action") << QStringLiteral("action") << QByteArray() << false;
    QTest::newRow("text") << QStringLiteral("text/plain") << QByteArray("tab-reordering") << false;
}

void tst_TabBar::dropsOfOtherDataAreRefused()
{
    QFETCH(QString, format);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, accepted);
    fill(3);
    m_entries.at(2)->setChecked(true);
    showBar(300);
    const std::unique_ptr<QMimeData> data(mime(format, bytes));

    QDragEnterEvent enter(QPoint(116, 5), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_bar.get(), &enter);
    QCOMPARE(enter.isAccepted(), accepted);
    QCOMPARE(enter.dropAction(), accepted ? Qt::MoveAction : Qt::IgnoreAction);

    // A move over the first tab walks the current tab left only for the bar's own data.
    // (Qt hands moves only to a widget that accepted the entry; the bar refuses them
    // on its own as well.)
    QDragMoveEvent move(QPoint(78, 5), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    m_bar->dragMoveEvent(&move);
    QCOMPARE(move.isAccepted(), accepted);
    const int expectedIndex = accepted ? 1 : 2;
    QCOMPARE(m_menu->menuActions().indexOf(m_entries.at(2)), expectedIndex);
}

// The current tab moves one place each time the drag crosses into a neighbour's half
// that lies towards the cursor, in the direction the cursor moves.
void tst_TabBar::draggingWalksTheCurrentTab()
{
    fill(4);
    m_entries.at(3)->setChecked(true);
    showBar(300);
    const std::unique_ptr<QMimeData> data(mime(QStringLiteral("action"), "tab-reordering"));
    auto dragTo = [&](int x) {
        QDragMoveEvent move(QPoint(x, 5), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_bar.get(), &move);
        QVERIFY(move.isAccepted());
    };
    auto order = [this] {
        QString s;
        for (RibbonAction *entry : m_menu->menuActions())
            s += QChar('A' + m_entries.indexOf(static_cast<RibbonSimpleAction *>(entry)));
        return s;
    };
    QDragEnterEvent enter(QPoint(140, 5), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_bar.get(), &enter);

    // Tabs of 20 pixels at 74, 94, 114 and 134; the middle of the second is at 103.
    dragTo(110); // right half of B, moving left: nothing yet
    QCOMPARE(order(), QStringLiteral("ABCD"));
    dragTo(100); // left half of B, moving left: D steps over C
    QCOMPARE(order(), QStringLiteral("ABDC"));
    dragTo(98); // still left of B's middle: D steps over B
    QCOMPARE(order(), QStringLiteral("ADBC"));
    dragTo(101); // over D's own tab now: nothing
    QCOMPARE(order(), QStringLiteral("ADBC"));
    dragTo(120); // left half of B (114..133, middle 123) although moving right: nothing
    QCOMPARE(order(), QStringLiteral("ADBC"));
    dragTo(126); // right half of B moving right: D steps back over B
    QCOMPARE(order(), QStringLiteral("ABDC"));
    dragTo(125); // over D's own tab again
    QCOMPARE(order(), QStringLiteral("ABDC"));
    QCOMPARE(m_menu->checkedAction(), m_entries.at(3));

    // The drag entered over C: toggleTab() chooses it.
    m_bar->toggleTab();
    QCOMPARE(m_menu->checkedAction(), m_entries.at(2));
}

// Texts, order and entries come from the menu as it changes.
void tst_TabBar::followsTheMenu()
{
    fill(2);
    showBar(400);
    const int before = m_bar->tabRect(QPoint(75, 2)).width();
    m_entries.at(0)->setText(QStringLiteral("A longer caption now"));
    QVERIFY(m_bar->tabRect(QPoint(75, 2)).width() > before);

    m_menu->insertAction(0, m_entries.at(1));
    QCOMPARE(m_bar->actionByPoint(QPoint(75, 2)), m_entries.at(1));
    delete m_entries.takeAt(0);
    QTRY_COMPARE(m_bar->hittable(), (QList<RibbonAction *>{m_entries.at(0)}));
    QTRY_COMPARE(m_bar->tabWidth(), 20);
}

// Row 0 of tabBarTabs for the other tabs, row 1 (white, underlined) for the current one.
void tst_TabBar::paintsTheCurrentTabFromItsRow()
{
    fill(3);
    m_entries.at(1)->setChecked(true);
    showBar(300);
    const QImage sheet = RibbonApplication::theApp().ribbonStyle().tabBarTabs().toImage();
    const QImage bar = m_bar->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    const int bottom = m_bar->height() - 1;
    // Middle columns of the first, second and third tab, on the bottom row.
    QCOMPARE(bar.pixel(84, bottom), sheet.pixel(4, 15));
    QCOMPARE(bar.pixel(104, bottom), sheet.pixel(4, 31));
    QCOMPARE(bar.pixel(124, bottom), sheet.pixel(4, 15));
    QVERIFY(sheet.pixel(4, 15) != sheet.pixel(4, 31));

    m_entries.at(2)->setChecked(true);
    const QImage after = m_bar->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    QCOMPARE(after.pixel(104, bottom), sheet.pixel(4, 15));
    QCOMPARE(after.pixel(124, bottom), sheet.pixel(4, 31));
}

void tst_TabBar::menuDeletedFirst()
{
    fill(3);
    showBar(300);
    delete m_menu;
    m_menu = nullptr;
    QVERIFY(m_bar->hittable().isEmpty());
    m_bar->navLast();
    m_bar->navNext();
    m_bar->toggleTab();
    m_bar->grab();
    sendMouse(*m_bar, QEvent::MouseButtonPress, QPoint(80, 5), Qt::LeftButton, Qt::LeftButton);
    sendMouse(*m_bar, QEvent::MouseMove, QPoint(120, 5), Qt::NoButton, Qt::LeftButton);
    QVERIFY(!m_bar->findChild<QDrag *>());
}

ZEL_TEST_MAIN(tst_TabBar)
#include "tst_tabbar.moc"
