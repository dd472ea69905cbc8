#include "RibbonScreenTip_p.h"

#include <QAction>
#include <QTextDocument>

namespace zel {

namespace {

QString asHtml(const QString &text)
{
    return Qt::mightBeRichText(text) ? text : text.toHtmlEscaped();
}

} // namespace

QString ribbonShownText(const QString &text)
{
    QString shown;
    shown.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('&') && i + 1 < text.size())
            ++i;
        shown += text.at(i);
    }
    return shown;
}

QString ribbonAccessibleName(const QAction *action)
{
    if (!action)
        return QString();
    const QString shown = ribbonShownText(action->text());
    return shown.isEmpty() ? action->toolTip() : shown;
}

QString ribbonDescription(const QAction *action)
{
    if (!action)
        return QString();
    return !action->statusTip().isEmpty() ? action->statusTip() : action->whatsThis();
}

QString ribbonScreenTip(const QAction *action)
{
    if (!action)
        return QString();
    const QString description = ribbonDescription(action);
    const QString reason = action->isEnabled() ? QString() : action->property("disabledReason").toString();
    if (description.isEmpty() && reason.isEmpty())
        return action->toolTip();

    QString title = ribbonShownText(action->text());
    if (title.isEmpty())
        title = action->toolTip();
    QString tip = QLatin1String("<p style='white-space:pre'><b>") + title.toHtmlEscaped() + QLatin1String("</b>");
    if (!action->shortcut().isEmpty())
        tip += QLatin1String(" (") + action->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped()
            + QLatin1Char(')');
    tip += QLatin1String("</p>");
    if (!description.isEmpty())
        tip += QLatin1String("<p>") + asHtml(description) + QLatin1String("</p>");
    if (!reason.isEmpty())
        tip += QLatin1String("<p><i>") + asHtml(reason) + QLatin1String("</i></p>");
    return tip;
}

} // namespace zel
