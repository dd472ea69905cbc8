// ZEL_TEST_DPI_SENSITIVE: the rows of the lists scale with the resolution, the tiles do not.
#include "ZelTest.h"

#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonSeparatorAction.h"
#include "RibbonSimpleAction.h"
#include "RibbonStyle.h"
#include "RibbonViewButton.h"
#include "RibbonViewPopup.h"

#include <QActionGroup>
#include <QCursor>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QWindow>

#include <memory>

using namespace zel;

namespace {

const QColor kOutline(QStringLiteral("#C5C5C5"));
const QColor kGutter(QStringLiteral("#E9EEEE"));
const QColor kBackground(QStringLiteral("#F9F8F7"));

bool highResolution()
{
    return RibbonApplication::theApp().dpiFactor().second > 1.25;
}

const RibbonStyle &style()
{
    return RibbonApplication::theApp().ribbonStyle();
}

QIcon flatIcon(const QColor &colour, int extent = 32)
{
    QPixmap pixmap(extent, extent);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

QImage grabImage(QWidget *widget)
{
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The popup shown and exposed: the offscreen platform activates a window it shows, and
// that activation, handled only after the popup closed, would leave no active window.
bool shown(RibbonViewPopup &popup, const QPoint &at = QPoint(100, 100))
{
    popup.popup(at);
    QCoreApplication::processEvents();
    return popup.windowHandle()->isExposed() || QTest::qWaitForWindowExposed(&popup);
}

// Owns the actions a popup is built from.
struct Actions
{
    RibbonSimpleAction *add(const QString &text, const QIcon &icon = QIcon())
    {
        auto *action = new RibbonSimpleAction(icon, text, &owner);
        return action;
    }
    RibbonSimpleAction *separator() { return new RibbonSeparatorAction(&owner); }

    // count tiles, those marked '0' in enabled disabled.
    QActionGroup *group(const QString &enabled)
    {
        auto *group = new QActionGroup(&owner);
        for (int i = 0; i < enabled.size(); ++i) {
            RibbonSimpleAction *tile = add(QStringLiteral("Tile %1").arg(i), flatIcon(Qt::darkCyan, 48));
            tile->setEnabled(enabled.at(i) == QLatin1Char('1'));
            group->addAction(tile);
        }
        return group;
    }

    QObject owner;
};

QStringList texts(const QList<RibbonViewButton *> &entries)
{
    QStringList result;
    for (const RibbonViewButton *entry : entries)
        result << entry->text();
    return result;
}

QList<RibbonViewButton *> tiles(const RibbonViewPopup &popup)
{
    QList<RibbonViewButton *> result;
    for (RibbonViewButton *entry : popup.buttons()) {
        if (!entry->isListMode())
            result << entry;
    }
    return result;
}

// The lines inside the lists, as opposed to the two between the sections.
QList<QFrame *> listLines(const RibbonViewPopup &popup)
{
    QList<QFrame *> lines;
    for (QFrame *frame : popup.findChildren<QFrame *>()) {
        if (frame->frameShape() == QFrame::HLine && frame->x() > 1)
            lines << frame;
    }
    return lines;
}

QList<bool> sectionLinesShown(const RibbonViewPopup &popup)
{
    QList<bool> shown;
    for (QFrame *frame : popup.findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (frame->frameShape() == QFrame::HLine && frame->x() <= 1)
            shown << frame->isVisible();
    }
    return shown;
}

} // namespace

class tst_ViewPopup : public QObject
{
    Q_OBJECT

    int m_topLevels = 0;

private slots:
    void initTestCase() { qRegisterMetaType<RibbonSimpleAction *>("RibbonSimpleAction*"); }

    void init()
    {
        m_topLevels = QApplication::topLevelWidgets().size();
        // Away from where the popups open: an entry under the cursor shows the marker.
        QCursor::setPos(QPoint(790, 590));
    }

    void cleanup()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTRY_COMPARE(QApplication::topLevelWidgets().size(), m_topLevels);
    }

    void gridWithoutGaps_data()
    {
        QTest::addColumn<QString>("enabled");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QStringList>("tiles");
        QTest::addColumn<QList<QPoint>>("cells"); // (column, row) of each tile

        QTest::newRow("fifth tile starts the second row")
            << "11111" << 4 << QStringList{"Tile 0", "Tile 1", "Tile 2", "Tile 3", "Tile 4"}
            << QList<QPoint>{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}};
        QTest::newRow("a disabled tile leaves no gap")
            << "110111" << 4 << QStringList{"Tile 0", "Tile 1", "Tile 3", "Tile 4", "Tile 5"}
            << QList<QPoint>{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {0, 1}};
        QTest::newRow("three columns, first and last disabled")
            << "0111110" << 3 << QStringList{"Tile 1", "Tile 2", "Tile 3", "Tile 4", "Tile 5"}
            << QList<QPoint>{{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}};
        QTest::newRow("no columns counts as one")
            << "111" << 0 << QStringList{"Tile 0", "Tile 1", "Tile 2"}
            << QList<QPoint>{{0, 0}, {0, 1}, {0, 2}};
        QTest::newRow("all disabled") << "000" << 4 << QStringList() << QList<QPoint>();
    }

    void gridWithoutGaps()
    {
        QFETCH(QString, enabled);
        QFETCH(int, columns);
        QFETCH(QStringList, tiles);
        QFETCH(QList<QPoint>, cells);

        Actions actions;
        QActionGroup *group = actions.group(enabled);
        group->addAction(new QAction(QStringLiteral("not a ribbon action"), &actions.owner)); // skipped
        RibbonViewPopup popup({}, {}, group, columns, true, true, false, nullptr);
        QCOMPARE(texts(::tiles(popup)), tiles);
        auto *grid = popup.findChild<QGridLayout *>();
        QVERIFY(grid);
        QVERIFY(shown(popup));
        const QList<RibbonViewButton *> made = ::tiles(popup);
        for (int k = 0; k < made.size(); ++k) {
            int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
            grid->getItemPosition(grid->indexOf(made[k]), &row, &column, &rowSpan, &columnSpan);
            QCOMPARE(QPoint(column, row), cells[k]);
            QCOMPARE(made[k]->size(), QSize(64, 56));
            // Rows and columns touch: 64 by 56 pixels apart, inside a one-pixel border.
            QCOMPARE(made[k]->pos(), QPoint(1 + 64 * cells[k].x(), 1 + 56 * cells[k].y()));
        }
    }

    void listsAndLines()
    {
        Actions a;
        const QList<RibbonSimpleAction *> top{a.add(QStringLiteral("Print Layout")), a.separator(),
                                              a.add(QStringLiteral("Web Layout")), nullptr};
        const QList<RibbonSimpleAction *> bottom{a.add(QStringLiteral("Zoom...")), a.separator(),
                                                 a.separator(), a.add(QStringLiteral("Options"))};
        RibbonViewPopup popup(top, bottom, a.group(QStringLiteral("11")), nullptr);
        QCOMPARE(texts(popup.buttons()),
                 (QStringList{"Print Layout", "Web Layout", "Tile 0", "Tile 1", "Zoom...", "Options"}));
        QVERIFY(shown(popup));
        QCOMPARE(popup.size(), popup.sizeHint());
        QCOMPARE(popup.getWidgetWidth(), popup.width());
        QCOMPARE(popup.getWidgetHeight(), popup.height());

        // Separators become lines starting right of the gutter: 36 pixels into the list.
        const QList<QFrame *> lines = listLines(popup);
        QCOMPARE(lines.size(), 3);
        for (const QFrame *line : lines) {
            QCOMPARE(line->x(), 1 + 36);
            QCOMPARE(line->geometry().right(), popup.width() - 2);
            QCOMPARE(line->frameShadow(), QFrame::Sunken);
        }
        // Top to bottom: rows, lines and sections in order, nothing overlapping.
        QList<QWidget *> column;
        for (RibbonViewButton *entry : popup.buttons())
            column << entry;
        column << lines[0] << lines[1] << lines[2];
        std::sort(column.begin(), column.end(), [](QWidget *x, QWidget *y) { return x->y() < y->y(); });
        QCOMPARE(column.at(1), static_cast<QWidget *>(lines[0])); // between the two top rows
        for (int i = 1; i < column.size(); ++i) {
            if (column[i]->y() != column[i - 1]->y()) // tiles share their row
                QVERIFY(column[i]->y() > column[i - 1]->geometry().bottom());
        }
    }

    void sectionLines_data()
    {
        QTest::addColumn<bool>("top");
        QTest::addColumn<bool>("grid");
        QTest::addColumn<bool>("bottom");
        QTest::addColumn<QList<bool>>("lines"); // below the top list, below the grid
        QTest::newRow("all three") << true << true << true << QList<bool>{true, true};
        QTest::newRow("grid only") << false << true << false << QList<bool>{false, false};
        QTest::newRow("lists only") << true << false << true << QList<bool>{true, false};
        QTest::newRow("grid and bottom") << false << true << true << QList<bool>{false, true};
        QTest::newRow("top and grid") << true << true << false << QList<bool>{true, false};
        QTest::newRow("empty") << false << false << false << QList<bool>{false, false};
    }

    // A line separates two sections that are there, never an empty one.
    void sectionLines()
    {
        QFETCH(bool, top);
        QFETCH(bool, grid);
        QFETCH(bool, bottom);
        QFETCH(QList<bool>, lines);
        Actions a;
        QList<RibbonSimpleAction *> topList, bottomList;
        if (top)
            topList << a.add(QStringLiteral("Top"));
        if (bottom)
            bottomList << a.add(QStringLiteral("Bottom"));
        RibbonViewPopup popup(topList, bottomList, grid ? a.group(QStringLiteral("1")) : nullptr, nullptr);
        QVERIFY(shown(popup));
        QCOMPARE(sectionLinesShown(popup), lines);
    }

    void entrySizes()
    {
        Actions a;
        RibbonViewPopup popup({a.add(QString()), a.add(QStringLiteral("&Web Layout"))}, {},
                              a.group(QStringLiteral("1")), nullptr);
        const QList<RibbonViewButton *> entries = popup.buttons();
        const int rowHeight = highResolution() ? 39 : 26;
        QCOMPARE(entries[0]->sizeHint(), QSize(56, rowHeight)); // gutter and margins only
        QCOMPARE(entries[1]->sizeHint().height(), rowHeight);
        QVERIFY(entries[1]->sizeHint().width() > 56 + 30);
        QCOMPARE(entries[2]->sizeHint(), QSize(64, 56));
        QCOMPARE(entries[1]->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
        QCOMPARE(entries[1]->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);

        // A longer text makes the row wider; the popup takes the widest row.
        const int before = entries[1]->sizeHint().width();
        entries[1]->action()->setText(QStringLiteral("&Web Layout with a long name"));
        QVERIFY(entries[1]->sizeHint().width() > before);
        QCOMPARE(popup.sizeHint().width(), entries[1]->sizeHint().width() + 2);
    }

    void entryFollowsItsAction()
    {
        Actions a;
        RibbonSimpleAction *action = a.add(QStringLiteral("Draft"), flatIcon(Qt::red));
        QFont big = action->font();
        big.setPointSize(20);
        big.setItalic(true);
        action->setFont(big);
        action->setToolTip(QStringLiteral("Draft view"));
        RibbonViewButton entry(action, true, true, false, nullptr);
        QCOMPARE(entry.text(), QStringLiteral("Draft"));
        QCOMPARE(entry.toolTip(), QStringLiteral("Draft view"));
        QCOMPARE(entry.font().pointSize(), 8);
        QVERIFY(entry.font().italic());
        QVERIFY(!entry.icon().isNull());
        QCOMPARE(entry.focusPolicy(), Qt::StrongFocus);
        QVERIFY(entry.hasMouseTracking());

        action->setText(QStringLiteral("Outline"));
        action->setEnabled(false);
        action->setIcon(QIcon());
        QCOMPARE(entry.text(), QStringLiteral("Outline"));
        QVERIFY(!entry.isEnabled());
        QVERIFY(entry.icon().isNull());

        delete action;
        QVERIFY(!entry.action());
        entry.resize(entry.sizeHint());
        QVERIFY(!grabImage(&entry).isNull()); // paints without its action
    }

    void clicks_data()
    {
        QTest::addColumn<int>("how");
        QTest::addColumn<bool>("triggers");
        QTest::newRow("press and release") << 0 << true;
        QTest::newRow("release without press") << 1 << false;
        QTest::newRow("press on one entry, release on another") << 2 << false;
        QTest::newRow("press, release off the entry") << 3 << false;
        QTest::newRow("release carrying no button") << 4 << false;
        QTest::newRow("right button") << 5 << true;
    }

    void clicks()
    {
        QFETCH(int, how);
        QFETCH(bool, triggers);
        Actions a;
        RibbonSimpleAction *first = a.add(QStringLiteral("First"));
        RibbonSimpleAction *second = a.add(QStringLiteral("Second"));
        QPointer<RibbonViewPopup> popup = new RibbonViewPopup({first, second}, {}, nullptr, nullptr);
        popup->setAttribute(Qt::WA_DeleteOnClose);
        QVERIFY(shown(*popup));
        RibbonViewButton *one = popup->buttons().at(0);
        RibbonViewButton *two = popup->buttons().at(1);
        QSignalSpy firstTriggered(first, &QAction::triggered);
        QSignalSpy secondTriggered(second, &QAction::triggered);
        QSignalSpy clicked(one, &QAbstractButton::clicked);
        QSignalSpy buttonClicked(one, &RibbonViewButton::buttonClicked);
        const QPoint centre = one->rect().center();

        switch (how) {
        case 0:
            QTest::mouseClick(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        case 1:
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        case 2:
            QTest::mousePress(two, Qt::LeftButton, Qt::NoModifier, centre);
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        case 3:
            QTest::mousePress(one, Qt::LeftButton, Qt::NoModifier, centre);
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, QPoint(centre.x(), one->height() + 5));
            break;
        case 4: {
            QTest::mousePress(one, Qt::LeftButton, Qt::NoModifier, centre);
            QMouseEvent release(QEvent::MouseButtonRelease, centre, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(one, &release);
            // The press is spent: a later release alone does nothing either.
            QTest::mouseRelease(one, Qt::LeftButton, Qt::NoModifier, centre);
            break;
        }
        default:
            QTest::mouseClick(one, Qt::RightButton, Qt::NoModifier, centre);
            break;
        }
        QCOMPARE(firstTriggered.count(), triggers ? 1 : 0);
        QCOMPARE(secondTriggered.count(), 0);
        QCOMPARE(clicked.count(), triggers ? 1 : 0);
        QCOMPARE(buttonClicked.count(), triggers ? 1 : 0);
        if (triggers) {
            QCOMPARE(buttonClicked.at(0).at(0).value<RibbonSimpleAction *>(), first);
            QTRY_VERIFY(!popup);
        } else {
            QVERIFY(popup->isVisible());
            popup->close();
        }
    }

    void disabledEntryIgnoresClicks()
    {
        Actions a;
        RibbonSimpleAction *off = a.add(QStringLiteral("Off"));
        off->setEnabled(false);
        RibbonViewPopup popup({off}, {}, nullptr, nullptr);
        QVERIFY(shown(popup));
        QSignalSpy triggered(off, &QAction::triggered);
        QTest::mouseClick(popup.buttons().at(0), Qt::LeftButton);
        QCOMPARE(triggered.count(), 0);
        QVERIFY(popup.isVisible());
    }

    void hoverMarker()
    {
        Actions a;
        RibbonViewPopup popup({a.add(QStringLiteral("First")), a.add(QStringLiteral("Second"))}, {},
                              a.group(QStringLiteral("11")), nullptr);
        QVERIFY(shown(popup));
        RibbonViewButton *first = popup.buttons().at(0);
        RibbonViewButton *second = popup.buttons().at(1);
        RibbonViewButton *tile = popup.buttons().at(2);
        QVERIFY(!popup.hoveredButton());

        // The marker's left edge is the caption image's left column, its right edge the
        // arrow image's right column; both are opaque in their middle.
        const QColor left = style().horizontalMenuButtonCaption().toImage().pixelColor(0, 11);
        const QColor right = style().horizontalMenuButtonMenu().toImage().pixelColor(10, 11);
        QCOMPARE(left.alpha(), 255);
        QCOMPARE(right.alpha(), 255);
        const auto marked = [&](RibbonViewButton *entry) {
            const QImage image = grabImage(entry);
            const int y = entry->height() / 2;
            return image.pixelColor(0, y) == left.rgb() && image.pixelColor(entry->width() - 1, y) == right.rgb();
        };
        QVERIFY(!marked(first) && !marked(second) && !marked(tile));

        QTest::mouseMove(first, QPoint(40, 5));
        QTRY_COMPARE(popup.hoveredButton(), first);
        QVERIFY(marked(first));
        QTest::mouseMove(second, QPoint(40, 5));
        QTRY_COMPARE(popup.hoveredButton(), second);
        QVERIFY(marked(second));
        QVERIFY(!marked(first));
        QTest::mouseMove(tile, QPoint(30, 30));
        QTRY_COMPARE(popup.hoveredButton(), tile);
        QVERIFY(marked(tile));
        QVERIFY(!marked(second));
    }

    void checkMark()
    {
        Actions a;
        RibbonSimpleAction *plain = a.add(QStringLiteral("Plain"));
        RibbonSimpleAction *checked = a.add(QStringLiteral("Checked"));
        RibbonSimpleAction *checkedWithIcon = a.add(QStringLiteral("Checked"), flatIcon(Qt::red, 16));
        RibbonSimpleAction *uncheckedWithIcon = a.add(QStringLiteral("Checked"), flatIcon(Qt::red, 16));
        for (RibbonSimpleAction *action : {plain, checked, checkedWithIcon, uncheckedWithIcon})
            action->setCheckable(true);
        checked->setChecked(true);
        checkedWithIcon->setChecked(true);
        RibbonViewPopup popup({plain, checked, checkedWithIcon, uncheckedWithIcon}, {}, nullptr, nullptr);
        QVERIFY(shown(popup));
        const QList<RibbonViewButton *> rows = popup.buttons();
        QImage image[4];
        for (int i = 0; i < 4; ++i)
            image[i] = grabImage(rows[i]);
        const int h = rows[0]->height();
        const QRect mark(8, (h - 16) / 2, 16, 16); // a 16-pixel image centred in the 32-pixel gutter

        // No icon: the check mark appears in the gutter of the checked row only.
        QVERIFY(image[0].copy(mark) != image[1].copy(mark));
        // With an icon the icon shows, not the mark.
        QVERIFY(image[2].copy(mark) != image[1].copy(mark));
        QCOMPARE(image[2].pixelColor(mark.center()), QColor(Qt::red));
        // The marker lies behind the 32-pixel gutter of a checked row, not behind its text.
        const QColor right = style().horizontalMenuButtonMenu().toImage().pixelColor(10, 11);
        QCOMPARE(image[2].pixelColor(31, h / 2), right);
        QVERIFY(image[3].pixelColor(31, h / 2) != right);
        QCOMPARE(image[2].pixelColor(rows[2]->width() - 1, h / 2), image[3].pixelColor(rows[3]->width() - 1, h / 2));

        // Disabled, a checked row still shows its marker and its mark.
        checked->setEnabled(false);
        QCOMPARE(grabImage(rows[1]).pixelColor(31, h / 2), right);
    }

    void painting_data()
    {
        QTest::addColumn<bool>("topIcons");
        QTest::addColumn<bool>("bottomIcons");
        QTest::newRow("both gutters") << true << true;
        QTest::newRow("top only") << true << false;
        QTest::newRow("bottom only") << false << true;
        QTest::newRow("no gutters, centred") << false << false;
    }

    void painting()
    {
        QFETCH(bool, topIcons);
        QFETCH(bool, bottomIcons);
        Actions a;
        RibbonViewPopup popup({a.add(QStringLiteral("Top"))}, {a.add(QStringLiteral("Bottom"))},
                              a.group(QStringLiteral("1")), 4, topIcons, bottomIcons, !topIcons, nullptr);
        QVERIFY(shown(popup));
        const QImage image = grabImage(&popup);
        QCOMPARE(image.pixelColor(0, 0), kOutline);
        QCOMPARE(image.pixelColor(popup.width() - 1, popup.height() - 1), kOutline);
        const RibbonViewButton *top = popup.buttons().first();
        const RibbonViewButton *bottom = popup.buttons().last();
        const int topY = top->y() + 2;
        const int bottomY = bottom->y() + 2;
        QCOMPARE(image.pixelColor(3, topY), topIcons ? kGutter : kBackground);
        QCOMPARE(image.pixelColor(1 + 32, topY), topIcons ? kOutline : kBackground);
        QCOMPARE(image.pixelColor(3, bottomY), bottomIcons ? kGutter : kBackground);
        QCOMPARE(image.pixelColor(1 + 32, bottomY), bottomIcons ? kOutline : kBackground);
        QCOMPARE(image.pixelColor(popup.width() - 4, topY), kBackground);
    }

    // A view-popup menu command opens the view popup of its lists and group, and
    // opening and closing it leaves nothing behind.
    void openedByAMenuCommand()
    {
        RibbonCatMenuAction layout(QStringLiteral("Layout"), RibbonCatMenuAction::MenuTypeButton,
                                   RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupView, nullptr);
        RibbonSimpleAction print(QStringLiteral("Print Layout"), nullptr);
        RibbonSimpleAction options(QStringLiteral("Options..."), nullptr);
        RibbonSimpleAction page(QStringLiteral("Page"), nullptr);
        layout.addTopAction(&print);
        layout.addBottomAction(&options);
        layout.iconActionGroup()->addAction(&page);
        QWidget window;
        auto *row = new QHBoxLayout(&window);
        auto *edit = new QLineEdit(&window);
        auto *button = new RibbonCatMenuButton(layout, &window);
        row->addWidget(edit);
        row->addWidget(button);
        window.show();
        QApplication::setActiveWindow(&window);
        edit->setFocus();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        const auto open = [button]() -> RibbonViewPopup * {
            QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
            auto *popup = qobject_cast<RibbonViewPopup *>(QApplication::activePopupWidget());
            if (popup) {
                QCoreApplication::processEvents();
                if (!popup->windowHandle()->isExposed() && !QTest::qWaitForWindowExposed(popup))
                    return nullptr;
            }
            return popup;
        };
        QPointer<RibbonViewPopup> popup = open();
        QVERIFY(popup);
        QCOMPARE(texts(popup->buttons()), (QStringList{"Print Layout", "Page", "Options..."}));
        QCOMPARE(popup->pos(), button->mapToGlobal(QPoint(0, button->height())));
        QSignalSpy triggered(&options, &QAction::triggered);
        QTest::mouseClick(popup->buttons().last(), Qt::LeftButton);
        QCOMPARE(triggered.count(), 1);
        QTRY_VERIFY(!popup);
        QTRY_COMPARE(QApplication::focusWidget(), edit);

        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int widgets = QApplication::allWidgets().size();
        for (int i = 0; i < 1000; ++i) {
            popup = open();
            QVERIFY(popup);
            QTest::keyClick(popup, Qt::Key_Escape);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!popup);
        }
        QCOMPARE(QApplication::allWidgets().size(), widgets);
        QCOMPARE(QApplication::focusWidget(), edit);
    }

    // Actions that die while the popup is open leave entries that do nothing.
    void actionsDestroyedWhileOpen()
    {
        Actions a;
        RibbonSimpleAction *gone = a.add(QStringLiteral("Gone"));
        RibbonViewPopup popup({gone}, {}, a.group(QStringLiteral("1")), nullptr);
        QVERIFY(shown(popup));
        delete gone;
        RibbonViewButton *entry = popup.buttons().at(0);
        QVERIFY(!entry->action());
        QTest::mouseClick(entry, Qt::LeftButton);
        QTRY_VERIFY(!popup.isVisible()); // the click still closes the popup
    }
};

ZEL_TEST_MAIN(tst_ViewPopup)
#include "tst_viewpopup.moc"
