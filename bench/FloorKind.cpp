// The plain-Qt floor: a QTabWidget whose pages hold captioned QGroupBoxes of
// QToolButtons (and a combo and a check box where the ribbon has them) in ordinary
// layouts. Same numbers of tabs, groups and buttons as the ribbon.

#include "Workload.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace bench {
namespace {

struct FloorCommand
{
    Slot slot;
    QList<QAction *> actions; // three for a button group, otherwise one
};

struct FloorGroup
{
    QString caption;
    QList<FloorCommand> commands;
    QList<QAction *> gallery; // the tiles of the tab's gallery, in its first group
};

struct FloorTab
{
    QString caption;
    QList<FloorGroup> groups;
};

class FloorKind : public Kind
{
public:
    ~FloorKind() override
    {
        delete m_popup;
        delete m_minimised;
        delete m_window;
        delete m_menu;
        delete m_owner;
    }

    void buildActions(const Workload &w) override
    {
        m_owner = new QObject;
        m_menu = new QMenu;
        int n = 0;
        for (int t = 0; t < w.tabs; ++t) {
            FloorTab tab;
            tab.caption = QStringLiteral("Tab %1").arg(t);
            for (int g = 0; g < w.groups; ++g) {
                FloorGroup group;
                group.caption = QStringLiteral("Group %1.%2").arg(t).arg(g);
                for (Slot s : groupSlots(w.commands, g)) {
                    FloorCommand c{s, {}};
                    const QString text = QStringLiteral("Command %1").arg(n++);
                    for (int i = 0; i < buttonsOf(s); ++i)
                        c.actions << new QAction(icon(n + i), buttonsOf(s) > 1 ? text + QString::number(i) : text, m_owner);
                    group.commands << c;
                }
                if (g == 0) {
                    for (int i = 0; i < galleryTiles; ++i) {
                        auto *tile = new QAction(icon(n + i), QStringLiteral("Gallery %1").arg(t) + QString::number(i),
                                                 m_owner);
                        tile->setCheckable(true);
                        tile->setChecked(i == 0);
                        group.gallery << tile;
                    }
                }
                tab.groups << group;
            }
            m_tabs << tab;
        }
    }

    QToolButton *button(QAction *action, QWidget *parent, Qt::ToolButtonStyle style, int extent) const
    {
        auto *b = new QToolButton(parent);
        b->setDefaultAction(action);
        b->setToolButtonStyle(style);
        b->setIconSize(QSize(extent, extent));
        b->setAutoRaise(true);
        return b;
    }

    QGroupBox *groupBox(const FloorGroup &group, QWidget *parent) const
    {
        auto *box = new QGroupBox(group.caption, parent);
        auto *grid = new QGridLayout(box);
        grid->setContentsMargins(2, 2, 2, 2);
        grid->setSpacing(1);
        int col = 0;
        int row = 0;
        auto shortItem = [&](QWidget *w) {
            grid->addWidget(w, row, col);
            if (++row == 3) {
                row = 0;
                ++col;
            }
        };
        for (const FloorCommand &c : group.commands) {
            switch (c.slot) {
            case Slot::Large:
                if (row) {
                    row = 0;
                    ++col;
                }
                grid->addWidget(button(c.actions.first(), box, Qt::ToolButtonTextUnderIcon, 32), 0, col++, 3, 1);
                break;
            case Slot::Small:
                shortItem(button(c.actions.first(), box, Qt::ToolButtonIconOnly, 16));
                break;
            case Slot::Medium:
                shortItem(button(c.actions.first(), box, Qt::ToolButtonTextBesideIcon, 16));
                break;
            case Slot::Menu: {
                QToolButton *b = button(c.actions.first(), box, Qt::ToolButtonTextBesideIcon, 16);
                b->setMenu(m_menu);
                b->setPopupMode(QToolButton::MenuButtonPopup);
                shortItem(b);
                break;
            }
            case Slot::Color:
            case Slot::Palette: {
                // A drop-down of the shared menu standing for the colour grid and the
                // palette.
                QToolButton *b = button(c.actions.first(), box,
                                        c.slot == Slot::Color ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon, 16);
                b->setMenu(m_menu);
                b->setPopupMode(QToolButton::InstantPopup);
                shortItem(b);
                break;
            }
            case Slot::Group: {
                auto *strip = new QWidget(box);
                auto *h = new QHBoxLayout(strip);
                h->setContentsMargins(0, 0, 0, 0);
                h->setSpacing(0);
                for (QAction *a : c.actions)
                    h->addWidget(button(a, strip, Qt::ToolButtonIconOnly, 16));
                shortItem(strip);
                break;
            }
            case Slot::Combo: {
                // Editable, as the ribbon's combos are: an editable QComboBox builds its
                // line edit and item list up front, a read-only one only on first popup.
                auto *combo = new QComboBox(box);
                combo->setEditable(true);
                combo->addItems({QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third")});
                shortItem(combo);
                break;
            }
            case Slot::Check:
                shortItem(new QCheckBox(c.actions.first()->text(), box));
                break;
            }
        }
        if (!group.gallery.isEmpty()) {
            if (row) {
                row = 0;
                ++col;
            }
            grid->addWidget(galleryList(group.gallery, box), 0, col, 3, 1);
            auto *more = new QToolButton(box);
            more->setMenu(m_menu);
            more->setPopupMode(QToolButton::InstantPopup);
            grid->addWidget(more, 2, col + 1);
        }
        return box;
    }

    // What a gallery is in plain Qt: a one-row icon list of the tiles and a button
    // opening a menu.
    static QListWidget *galleryList(const QList<QAction *> &tiles, QWidget *parent)
    {
        auto *list = new QListWidget(parent);
        list->setViewMode(QListView::IconMode);
        list->setIconSize(QSize(32, 32));
        list->setFixedSize(4 * 60 + 18, 60);
        list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        for (QAction *tile : tiles) {
            auto *item = new QListWidgetItem(tile->icon(), QString(), list);
            item->setSizeHint(QSize(60, 60));
            item->setCheckState(tile->isChecked() ? Qt::Checked : Qt::Unchecked);
        }
        QObject::connect(list, &QListWidget::itemClicked, list, [list, tiles](QListWidgetItem *item) {
            tiles.at(list->row(item))->trigger();
        });
        return list;
    }

    QWidget *page(const FloorTab &tab) const
    {
        auto *p = new QWidget;
        auto *h = new QHBoxLayout(p);
        h->setContentsMargins(2, 2, 2, 2);
        for (const FloorGroup &g : tab.groups)
            h->addWidget(groupBox(g, p));
        h->addStretch(1);
        return p;
    }

    void createAndShow(const Workload &w) override
    {
        m_window = new QWidget;
        auto *v = new QVBoxLayout(m_window);
        // The groups do not fold: let the window narrow below their minimum, as the
        // ribbon does, instead of the layout forbidding it.
        v->setSizeConstraint(QLayout::SetNoConstraint);
        v->setContentsMargins(0, 0, 0, 0);
        m_tabWidget = new QTabWidget(m_window);
        v->addWidget(m_tabWidget);
        v->addWidget(new QWidget(m_window), 1);
        m_window->resize(w.showWidth, 800);
        for (const FloorTab &t : qAsConst(m_tabs))
            m_tabWidget->addTab(page(t), t.caption);
        showAndSettle(m_window);
    }

    QWidget *window() const override { return m_window; }

    void switchTab(int index) override
    {
        m_tabWidget->setCurrentIndex(index % m_tabWidget->count());
        settle();
    }

    int foldedCount() const override { return 0; }

    bool openFoldedPopup() override
    {
        // What a folded group shows: a popup window with a fresh copy of the group.
        m_popup = new QWidget(nullptr, Qt::Popup);
        auto *v = new QVBoxLayout(m_popup);
        v->setContentsMargins(1, 1, 1, 1);
        v->addWidget(groupBox(m_tabs.at(m_tabWidget->currentIndex()).groups.last(), m_popup));
        m_popup->move(m_window->mapToGlobal(QPoint(400, 120)));
        m_popup->show();
        settle();
        return true;
    }

    void closeFoldedPopup() override
    {
        if (m_popup) {
            m_popup->close();
            m_popup->deleteLater();
        }
        settle();
    }

    void prepareMinimised() override
    {
        // The panel of a minimised ribbon is one persistent popup that shows the page of
        // the clicked tab; the floor moves two of its pages into such a popup.
        m_minimised = new QStackedWidget(nullptr);
        m_minimised->setWindowFlags(Qt::Popup);
        for (int i = 0; i < 2 && m_tabWidget->count(); ++i) {
            QWidget *p = m_tabWidget->widget(0);
            m_tabWidget->removeTab(0);
            m_minimised->addWidget(p);
        }
        m_minimised->resize(m_window->width(), 94);
        settle();
    }

    void openMinimisedPopup(int tab) override
    {
        m_minimised->setCurrentIndex(tab % m_minimised->count());
        m_minimised->move(m_window->mapToGlobal(QPoint(0, 60)));
        m_minimised->show();
        settle();
    }

    void closeMinimisedPopup() override
    {
        m_minimised->hide();
        settle();
    }

private:
    QObject *m_owner = nullptr;
    QMenu *m_menu = nullptr;
    QList<FloorTab> m_tabs;
    QWidget *m_window = nullptr;
    QTabWidget *m_tabWidget = nullptr;
    QPointer<QWidget> m_popup;
    QStackedWidget *m_minimised = nullptr;
};

} // namespace

std::unique_ptr<Kind> makeFloorKind()
{
    return std::make_unique<FloorKind>();
}

} // namespace bench
