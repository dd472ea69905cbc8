#pragma once

#include "RibbonAction.h"

namespace zel {

// A percentage within a range, shown in the status bar as a zoom slider. The range
// need not be centred on 100: the slider puts 100 % in its middle and gives each side
// its own scale.
class ZELRIBBON_EXPORT RibbonPercAction : public RibbonAction
{
    Q_OBJECT
public:
    // The values are stored as given; only setPercentage() clamps.
    RibbonPercAction(int minimum, int maximum, int percentage, QObject *parent);
    ~RibbonPercAction() override;

    int minimum() const;
    int maximum() const;
    int percentage() const;

    // Clamps p to [minimum, maximum]. Widgets are refreshed when the stored value
    // changed; percentageChanged() (with the stored value) and changed() follow
    // whenever p differs from the previous value, so a request beyond the range is
    // still answered with the value that was kept.
    void setPercentage(int p);

signals:
    void percentageChanged(int percentage);

private:
    int m_minimum;
    int m_maximum;
    int m_percentage;
};

} // namespace zel
