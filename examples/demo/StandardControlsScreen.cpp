// Standard Qt controls as the library's application style paints them next to the
// ribbon: a menu with checkable items, check and radio buttons, combo boxes, scroll
// bars, tabs, a tool box, a tool bar and a tool tip.

#include "DemoScreens.h"

#include <QActionGroup>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTabWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolTip>
#include <QVBoxLayout>

namespace {

// A label framed like a tool tip, so the tip's panel can be seen without hovering.
class TipSample : public QLabel
{
public:
    explicit TipSample(const QString &text, QWidget *parent = nullptr)
        : QLabel(text, parent)
    {
        setMargin(4);
        setPalette(QToolTip::palette());
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_PanelTipLabel, &option, &painter, this);
        painter.end();
        QLabel::paintEvent(event);
    }
};

QLabel *caption(const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

// The menu is a popup; the screen shows a picture of it with its second item active.
QLabel *menuPicture(QWidget *owner)
{
    auto *menu = new QMenu(owner);
    QStyle *style = QApplication::style();
    menu->addAction(QStringLiteral("&New"))->setShortcut(QKeySequence::New);
    menu->addAction(style->standardIcon(QStyle::SP_DialogOpenButton), QStringLiteral("&Open..."))
        ->setShortcut(QKeySequence::Open);
    menu->addAction(style->standardIcon(QStyle::SP_DialogSaveButton), QStringLiteral("&Save"))
        ->setShortcut(QKeySequence::Save);
    menu->addSeparator();
    QAction *ruler = menu->addAction(QStringLiteral("Show &ruler"));
    ruler->setCheckable(true);
    ruler->setChecked(true);
    QAction *grid = menu->addAction(QStringLiteral("Show &grid"));
    grid->setCheckable(true);
    menu->addSeparator();
    auto *orientation = new QActionGroup(menu);
    for (const QString &text : {QStringLiteral("&Portrait"), QStringLiteral("&Landscape")}) {
        QAction *action = menu->addAction(text);
        action->setCheckable(true);
        orientation->addAction(action);
    }
    orientation->actions().constFirst()->setChecked(true);
    menu->addAction(QStringLiteral("Print preview"))->setEnabled(false);
    QMenu *recent = menu->addMenu(QStringLiteral("Recent &files"));
    recent->addAction(QStringLiteral("Report.docx"));
    menu->adjustSize();
    menu->setActiveAction(menu->actions().at(1));

    auto *label = new QLabel;
    label->setPixmap(menu->grab());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

QWidget *makeStandardControls()
{
    auto *screen = new QWidget;
    screen->setAutoFillBackground(true);
    auto *grid = new QGridLayout(screen);
    grid->setContentsMargins(16, 16, 16, 16);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(10);

    auto *menuColumn = new QVBoxLayout;
    menuColumn->addWidget(caption(QStringLiteral("Menu")));
    menuColumn->addWidget(menuPicture(screen));
    menuColumn->addWidget(caption(QStringLiteral("Tool tip")));
    menuColumn->addWidget(new TipSample(QStringLiteral("Paste (Ctrl+V)")), 0, Qt::AlignLeft);
    menuColumn->addWidget(caption(QStringLiteral("Buttons and fields")));
    auto *buttonRow = new QHBoxLayout;
    auto *ok = new QPushButton(QStringLiteral("OK"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(QStringLiteral("Cancel"));
    auto *apply = new QPushButton(QStringLiteral("Apply"));
    apply->setEnabled(false);
    buttonRow->addWidget(ok);
    buttonRow->addWidget(cancel);
    buttonRow->addWidget(apply);
    menuColumn->addLayout(buttonRow);
    auto *fieldRow = new QHBoxLayout;
    auto *edit = new QLineEdit(QStringLiteral("Quarterly report"));
    auto *spin = new QSpinBox;
    spin->setValue(12);
    fieldRow->addWidget(edit);
    fieldRow->addWidget(spin);
    menuColumn->addLayout(fieldRow);
    menuColumn->addStretch();
    grid->addLayout(menuColumn, 0, 0, 2, 1);

    auto *buttons = new QVBoxLayout;
    buttons->addWidget(caption(QStringLiteral("Check and radio buttons")));
    auto *checked = new QCheckBox(QStringLiteral("Checked"));
    checked->setChecked(true);
    auto *partial = new QCheckBox(QStringLiteral("Partly checked"));
    partial->setTristate(true);
    partial->setCheckState(Qt::PartiallyChecked);
    auto *disabled = new QCheckBox(QStringLiteral("Disabled"));
    disabled->setChecked(true);
    disabled->setEnabled(false);
    auto *radioOn = new QRadioButton(QStringLiteral("Selected"));
    radioOn->setChecked(true);
    for (QWidget *w : std::initializer_list<QWidget *>{checked, new QCheckBox(QStringLiteral("Unchecked")), partial,
                                                       disabled, radioOn, new QRadioButton(QStringLiteral("Not selected"))})
        buttons->addWidget(w);
    buttons->addStretch();
    grid->addLayout(buttons, 0, 1);

    auto *combos = new QVBoxLayout;
    combos->addWidget(caption(QStringLiteral("Combo boxes")));
    auto *fonts = new QComboBox;
    fonts->addItems({QStringLiteral("Calibri"), QStringLiteral("Cambria"), QStringLiteral("Segoe UI")});
    auto *editable = new QComboBox;
    editable->setEditable(true);
    editable->addItems({QStringLiteral("100%"), QStringLiteral("150%")});
    auto *off = new QComboBox;
    off->addItem(QStringLiteral("Disabled"));
    off->setEnabled(false);
    combos->addWidget(fonts);
    combos->addWidget(editable);
    combos->addWidget(off);
    combos->addWidget(caption(QStringLiteral("Tool bar")));
    auto *toolBar = new QToolBar;
    QStyle *style = QApplication::style();
    toolBar->addAction(style->standardIcon(QStyle::SP_FileIcon), QStringLiteral("New"));
    toolBar->addAction(style->standardIcon(QStyle::SP_DirOpenIcon), QStringLiteral("Open"));
    QAction *pinned = toolBar->addAction(style->standardIcon(QStyle::SP_FileDialogDetailedView), QStringLiteral("Details"));
    pinned->setCheckable(true);
    pinned->setChecked(true);
    combos->addWidget(toolBar);
    combos->addWidget(caption(QStringLiteral("Scroll bar")));
    auto *horizontal = new QScrollBar(Qt::Horizontal);
    horizontal->setRange(0, 100);
    horizontal->setValue(35);
    combos->addWidget(horizontal);
    combos->addStretch();
    grid->addLayout(combos, 0, 2);

    auto *vertical = new QScrollBar(Qt::Vertical);
    vertical->setRange(0, 100);
    vertical->setValue(60);
    grid->addWidget(vertical, 0, 3, 2, 1);

    auto *tabs = new QTabWidget;
    auto *page = new QLabel(QStringLiteral("Tabs of a standard tab widget."));
    page->setMargin(8);
    page->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    tabs->addTab(page, QStringLiteral("General"));
    tabs->addTab(new QWidget, QStringLiteral("Layout"));
    tabs->addTab(new QWidget, QStringLiteral("Advanced"));
    tabs->setMinimumHeight(130);
    grid->addWidget(tabs, 1, 1);

    auto *toolBox = new QToolBox;
    auto *contents = new QLabel(QStringLiteral("Pages of a tool box."));
    contents->setMargin(6);
    contents->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    toolBox->addItem(contents, QStringLiteral("Shapes"));
    toolBox->addItem(new QWidget, QStringLiteral("Connectors"));
    toolBox->setMinimumHeight(130);
    grid->addWidget(toolBox, 1, 2);

    grid->setColumnMinimumWidth(1, 300);
    grid->setColumnMinimumWidth(2, 240);
    screen->resize(960, 520);
    return screen;
}

const bool registered = registerDemoScreen({QStringLiteral("standard-controls"),
                                            QStringLiteral("Standard controls in the ribbon style"),
                                            makeStandardControls, 90});

} // namespace
