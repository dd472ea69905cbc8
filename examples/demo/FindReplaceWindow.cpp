// A secondary window in the ribbon look: a frameless find-and-replace box with its own
// caption, system buttons and shadow border.

#include "DemoScreens.h"

#include "RibbonWindow.h"
#include "RibbonWindowBorder.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The shadow border only makes sense around a top-level window; the interactive demo
// embeds the screen in a tab, so the border is added when the window first shows alone.
class FindReplaceWindow : public zel::RibbonWindow
{
protected:
    void showEvent(QShowEvent *event) override
    {
        zel::RibbonWindow::showEvent(event);
        if (isWindow() && !m_border)
            m_border = new zel::RibbonWindowBorder(this, false);
    }

private:
    zel::RibbonWindowBorder *m_border = nullptr;
};

QWidget *makeFindReplaceWindow()
{
    auto *window = new FindReplaceWindow;
    window->setWindowTitle(QStringLiteral("Find and replace"));
    window->setMinimumSize(300, 180);

    auto *form = new QFormLayout;
    auto *find = new QLineEdit;
    find->setPlaceholderText(QStringLiteral("Text to find"));
    find->setText(QStringLiteral("quarterly"));
    auto *replace = new QLineEdit;
    replace->setPlaceholderText(QStringLiteral("Replacement"));
    form->addRow(QStringLiteral("Fi&nd what:"), find);
    form->addRow(QStringLiteral("Re&place with:"), replace);

    auto *options = new QHBoxLayout;
    options->addWidget(new QCheckBox(QStringLiteral("Match &case")));
    options->addWidget(new QCheckBox(QStringLiteral("&Whole words only")));
    options->addStretch();

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    auto *findNext = new QPushButton(QStringLiteral("&Find Next"));
    findNext->setDefault(true);
    buttons->addWidget(findNext);
    buttons->addWidget(new QPushButton(QStringLiteral("&Replace")));
    buttons->addWidget(new QPushButton(QStringLiteral("Replace &All")));
    auto *close = new QPushButton(QStringLiteral("Close"));
    QObject::connect(close, &QPushButton::clicked, window, &QWidget::close);
    buttons->addWidget(close);

    auto *layout = new QVBoxLayout(window);
    layout->addLayout(form);
    layout->addLayout(options);
    layout->addStretch();
    layout->addLayout(buttons);

    window->resize(440, 200);
    return window;
}

const bool registered = registerDemoScreen(
    {QStringLiteral("find-replace-window"), QStringLiteral("Find and replace window"),
     makeFindReplaceWindow, 80});

} // namespace
