// The workload built as a ribbon in a RibbonMainWindow.

#include "Workload.h"

#include "RibbonCatActionGroup.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCategoriesPanelAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryPanel.h"
#include "RibbonCategoryPanels.h"
#include "RibbonCategoryPanelsProxy.h"
#include "RibbonCategoryWrapper.h"
#include "RibbonCategoryWrapperPopup.h"
#include "RibbonMainWindow.h"
#include "RibbonMenuBar.h"
#include "RibbonSimpleAction.h"

#include <QActionGroup>
#include <QPointer>
#include <QTest>

namespace bench {
namespace {

using namespace zel;

// A styles gallery: a menu command shown in the ribbon as a row of tiles, one per
// action of its icon group, the first one checked.
RibbonCatMenuAction *gallery(const QString &text, int firstIcon, QObject *owner)
{
    auto *menu = new RibbonCatMenuAction(icon(firstIcon), text, RibbonCatMenuAction::MenuTypeButton,
                                         RibbonCatMenuAction::MenuSizeLarge, RibbonCatMenuAction::PopupListPreview,
                                         owner);
    for (int i = 0; i < galleryTiles; ++i) {
        auto *tile = new RibbonSimpleAction(icon(firstIcon + i), text + QString::number(i), owner);
        tile->setCheckable(true);
        tile->setChecked(i == 0);
        menu->iconActionGroup()->addAction(tile);
    }
    return menu;
}

class RibbonKind : public Kind
{
public:
    ~RibbonKind() override
    {
        delete m_window;
        delete m_owner;
    }

    void buildActions(const Workload &w) override
    {
        m_owner = new QObject;
        int n = 0;
        for (int t = 0; t < w.tabs; ++t) {
            auto *tab = new RibbonCategoriesPanelAction(QStringLiteral("Tab %1").arg(t), m_owner);
            for (int g = 0; g < w.groups; ++g) {
                auto *cat = new RibbonCategoryAction(icon(g), QStringLiteral("Group %1.%2").arg(t).arg(g), m_owner);
                const QVector<Slot> mix = groupSlots(w.commands, g);
                for (Slot s : mix) {
                    const QString text = QStringLiteral("Command %1").arg(n++);
                    switch (s) {
                    case Slot::Large:
                        cat->addAction(new RibbonCatSimpleAction(icon(n), text, RibbonCatSimpleAction::SizeLarge, m_owner), -1);
                        break;
                    case Slot::Small:
                        cat->addAction(new RibbonCatSimpleAction(icon(n), text, RibbonCatSimpleAction::SizeSmall, m_owner), -1);
                        break;
                    case Slot::Medium:
                        cat->addAction(new RibbonCatSimpleAction(icon(n), text, RibbonCatSimpleAction::SizeMedium, m_owner), -1);
                        break;
                    case Slot::Menu:
                        cat->addAction(new RibbonCatMenuAction(icon(n), text, RibbonCatMenuAction::MenuTypeButton,
                                                               RibbonCatMenuAction::MenuSizeMedium,
                                                               RibbonCatMenuAction::PopupMenu, m_owner), -1);
                        break;
                    case Slot::Color:
                        cat->addAction(new RibbonCatColorMenuAction(icon(n), text, RibbonCatColorMenuAction::ColorSizeSmall,
                                                                    m_owner), -1);
                        break;
                    case Slot::Palette:
                        cat->addAction(new RibbonCatMenuAction(icon(n), text, RibbonCatMenuAction::MenuTypeButton,
                                                               RibbonCatMenuAction::MenuSizeMedium,
                                                               RibbonCatMenuAction::PopupPalette, m_owner), -1);
                        break;
                    case Slot::Group: {
                        auto *strip = new RibbonCatActionGroup(m_owner);
                        for (int i = 0; i < 3; ++i)
                            strip->addAction(new RibbonCatSimpleAction(icon(n + i), text + QString::number(i),
                                                                       RibbonCatSimpleAction::SizeSmall, m_owner), false);
                        cat->addAction(strip, -1);
                        break;
                    }
                    case Slot::Combo: {
                        auto *combo = new RibbonCatComboAction(text, m_owner);
                        combo->addItem(QStringLiteral("First"));
                        combo->addItem(QStringLiteral("Second"));
                        combo->addItem(QStringLiteral("Third"));
                        cat->addAction(combo, -1);
                        break;
                    }
                    case Slot::Check:
                        cat->addAction(new RibbonCatCheckBoxAction(text, m_owner), -1);
                        break;
                    }
                }
                if (g == 0)
                    cat->addAction(gallery(QStringLiteral("Gallery %1").arg(t), n, m_owner), -1);
                tab->addCategory(cat);
            }
            m_tabs << tab;
        }
    }

    void createAndShow(const Workload &w) override
    {
        m_window = new RibbonMainWindow;
        m_window->setCentralWidget(new QWidget);
        m_window->resize(w.showWidth, 800);
        RibbonMenuBar &bar = m_window->ribbonMenuBar();
        for (RibbonCategoriesPanelAction *tab : qAsConst(m_tabs))
            bar.addAction(tab);
        showAndSettle(m_window);
        if (qEnvironmentVariableIsSet("BENCH_DEBUG")) {
            qWarning("window min %d, bar min %d, panels min %d, panels hint %d", m_window->minimumSizeHint().width(),
                     bar.minimumSizeHint().width(), bar.categoryPanels()->minimumSizeHint().width(),
                     bar.categoryPanels()->sizeHint().width());
        }
    }

    QWidget *window() const override { return m_window; }

    void switchTab(int index) override
    {
        m_tabs.at(index % m_tabs.size())->setChecked(true);
        settle();
    }

    RibbonCategoryPanel *currentPanel() const
    {
        RibbonCategoryPanels *panels = m_window->ribbonMenuBar().categoryPanels()->subject();
        return panels ? qobject_cast<RibbonCategoryPanel *>(panels->currentWidget()) : nullptr;
    }

    QList<RibbonCategoryWrapper *> folded() const
    {
        QList<RibbonCategoryWrapper *> out;
        if (RibbonCategoryPanel *panel = currentPanel()) {
            for (RibbonCategoryAction *cat : panel->panelAction().categories()) {
                RibbonCategoryWrapper *wrapper = panel->wrapper(cat);
                if (wrapper && wrapper->isColapsed())
                    out << wrapper;
            }
        }
        return out;
    }

    int foldedCount() const override { return folded().size(); }

    bool openFoldedPopup() override
    {
        const QList<RibbonCategoryWrapper *> list = folded();
        if (list.isEmpty())
            return false;
        m_wrapper = list.first();
        QTest::mouseClick(m_wrapper, Qt::LeftButton);
        settle();
        return m_wrapper->popup() != nullptr;
    }

    void closeFoldedPopup() override
    {
        if (m_wrapper && m_wrapper->popup())
            m_wrapper->popup()->close();
        settle();
    }

    void prepareMinimised() override
    {
        m_window->ribbonMenuBar().setMinimizeRibbon(true);
        settle();
    }

    void openMinimisedPopup(int tab) override
    {
        m_tabs.at(tab % m_tabs.size())->setChecked(true);
        settle();
    }

    void closeMinimisedPopup() override
    {
        m_window->ribbonMenuBar().collapse();
        settle();
    }

private:
    QObject *m_owner = nullptr;
    QList<RibbonCategoriesPanelAction *> m_tabs;
    RibbonMainWindow *m_window = nullptr;
    QPointer<RibbonCategoryWrapper> m_wrapper;
};

} // namespace

std::unique_ptr<Kind> makeRibbonKind()
{
    return std::make_unique<RibbonKind>();
}

} // namespace bench
