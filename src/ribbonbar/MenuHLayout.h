#pragma once

#include "zelribbon_export.h"

#include <QHBoxLayout>

namespace zel {

// The tab row of the ribbon bar: a horizontal box layout in every respect.
class ZELRIBBON_EXPORT MenuHLayout : public QHBoxLayout
{
    Q_OBJECT
public:
    MenuHLayout();
    explicit MenuHLayout(QWidget *parent);
    ~MenuHLayout() override;

    QSize sizeHint() const override;
    QSize minimumSize() const override;
    QSize maximumSize() const override;
};

} // namespace zel
