#include "RibbonProgressWidget.h"

#include "RibbonApplication.h"
#include "RibbonProgressAction.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace zel {

RibbonProgressWidget::RibbonProgressWidget(RibbonProgressAction &action, QWidget *parent)
    : QWidget(parent)
    , m_action(&action)
    , m_layout(new QHBoxLayout(this))
    , m_label(new QLabel(action.progressText(), this))
    , m_progressBar(new QProgressBar(this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_layout->setContentsMargins(3, 1, 3, 1);
    applyTextColor();
    m_progressBar->setTextVisible(false);
    m_progressBar->setRange(action.minimum(), action.maximum());
    // The action may already be under way when the bar shows it.
    m_progressBar->setValue(action.value());
    m_layout->addWidget(m_label, 0, Qt::AlignVCenter);
    m_layout->addWidget(m_progressBar, 0, Qt::AlignVCenter);

    addAction(&action);
    setEnabled(action.isEnabled());
    connect(&action, SIGNAL(progressValueChanged(int)), this, SLOT(setProgressValue(int)));
    connect(&action, SIGNAL(progressTextChanged(QString)), this, SLOT(setProgressText(QString)));
    connect(&action, SIGNAL(progressRangeChanged()), this, SLOT(onProgressRangeChanged()));
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this,
            [this] { applyTextColor(); });
}

RibbonProgressWidget::~RibbonProgressWidget() = default;

RibbonProgressAction *RibbonProgressWidget::action() const
{
    return qobject_cast<RibbonProgressAction *>(m_action);
}

QLabel *RibbonProgressWidget::label() const
{
    return m_label;
}

QProgressBar *RibbonProgressWidget::progressBar() const
{
    return m_progressBar;
}

QSize RibbonProgressWidget::sizeHint() const
{
    return QSize(160, 10);
}

void RibbonProgressWidget::applyTextColor()
{
    QPalette palette = m_label->palette();
    palette.setColor(QPalette::WindowText, RibbonApplication::theApp().ribbonStyle().statusBarTextColor());
    m_label->setPalette(palette);
}

void RibbonProgressWidget::setProgressValue(int value)
{
    m_progressBar->setValue(value);
}

void RibbonProgressWidget::setProgressText(const QString &text)
{
    m_label->setText(text);
}

void RibbonProgressWidget::onProgressRangeChanged()
{
    RibbonProgressAction *action = this->action();
    if (!action)
        return;
    m_progressBar->setRange(action->minimum(), action->maximum());
    // QProgressBar resets a value that fell outside the old range; take it again.
    m_progressBar->setValue(action->value());
}

void RibbonProgressWidget::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    if (event->type() == QEvent::ActionChanged && event->action() == m_action)
        setEnabled(m_action->isEnabled());
}

} // namespace zel
