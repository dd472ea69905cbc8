#pragma once

// Checks shared by the tests of the two kinds of page buttons (the stacked panes' and the
// options dialog's): their size hint and how their looks map onto mainPanelButton.

#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QAbstractButton>
#include <QImage>
#include <QtTest>

namespace PanelButtonChecks {

inline QImage grabArgb(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// The centre of a grabbed button: the stretched centre of its frame.
inline QRgb centre(QWidget &button)
{
    const QImage image = grabArgb(button);
    return image.pixel(image.width() / 2, image.height() / 2);
}

// The centre pixel of a 23-pixel frame of mainPanelButton.
inline QRgb frameCentre(int frame)
{
    const QImage sheet =
        zel::RibbonApplication::theApp().ribbonStyle().mainPanelButton().toImage().convertToFormat(QImage::Format_ARGB32);
    return sheet.pixel(27, frame * 23 + 11);
}

// True when the button shows nothing but its background (no frame, no text).
inline bool drawsNothing(QWidget &button)
{
    const QImage image = grabArgb(button);
    QImage plain(image.size(), image.format());
    plain.fill(image.pixel(0, 0));
    for (int frame = 0; frame < 3; ++frame) {
        if (image.pixel(0, 0) == frameCentre(frame))
            return false;
    }
    return image == plain;
}

// 25 high; 120 wide up to a text of 110 pixels, else the text and 10.
inline void verifySizeHint(const QAbstractButton &button)
{
    const int textWidth = button.fontMetrics().horizontalAdvance(button.text());
    QCOMPARE(button.sizeHint().height(), 25);
    if (textWidth <= 110)
        QCOMPARE(button.sizeHint().width(), 120);
    else
        QCOMPARE(button.sizeHint().width(), textWidth + 10);
}

inline void addSizeHintRows()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("General");
    QTest::newRow("long") << QStringLiteral("Keyboard shortcuts of every command on the ribbon");
}

} // namespace PanelButtonChecks
