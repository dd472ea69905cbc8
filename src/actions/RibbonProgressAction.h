#pragma once

#include "RibbonAction.h"

namespace zel {

// The state of a long task: a text and a value within a range, shown in the status
// bar as a label beside a progress bar.
class ZELRIBBON_EXPORT RibbonProgressAction : public RibbonAction
{
    Q_OBJECT
public:
    // Value 0 in the range 0 to 1.
    RibbonProgressAction(const QString &text, QObject *parent);
    RibbonProgressAction(int minimum, int maximum, int value, const QString &text, QObject *parent);
    ~RibbonProgressAction() override;

    QString progressText() const;
    int value() const;
    int minimum() const;
    int maximum() const;

    // A flag kept for the host; the library does not read it. Default true.
    void enableGrab(bool enable);
    bool isGrabEnabled() const;

public slots:
    void setProgressValue(int value);
    void setProgressText(const QString &text);
    void setRange(int minimum, int maximum);
    // done of total steps: the range becomes 0..total (announced first, and only when
    // it changes), then the value becomes done.
    void setProgress(int done, int total);

signals:
    void progressValueChanged(int value);
    void progressTextChanged(QString text);
    void progressRangeChanged();

private:
    QString m_progressText;
    int m_value;
    int m_minimum;
    int m_maximum;
    bool m_grabEnabled = true;
};

} // namespace zel
