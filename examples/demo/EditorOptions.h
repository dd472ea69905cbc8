#pragma once

#include <QObject>
#include <QString>

class QSettings;

namespace zel {
class RibbonMainWindow;
class RibbonOptionsDialog;
} // namespace zel

// The editor's preferences, kept in its settings between runs. Each setter stores the
// value at once and announces a change.
class EditorPreferences : public QObject
{
    Q_OBJECT
public:
    explicit EditorPreferences(QSettings &settings, QObject *parent = nullptr);

    QString author() const { return m_author; }
    int recentLength() const { return m_recentLength; }
    bool startMinimised() const { return m_startMinimised; }
    int defaultZoom() const { return m_defaultZoom; }

    void setAuthor(const QString &author);
    void setRecentLength(int length);
    void setStartMinimised(bool minimised);
    void setDefaultZoom(int percent);

    static constexpr int MinRecentLength = 1;
    static constexpr int MaxRecentLength = 30;
    static constexpr int MinZoom = 50;
    static constexpr int MaxZoom = 200;

signals:
    void authorChanged();
    void recentLengthChanged();
    void defaultZoomChanged();

private:
    QSettings &m_settings;
    QString m_author;
    int m_recentLength;
    bool m_startMinimised;
    int m_defaultZoom;
};

// The options dialog with its General and View pages, showing the current preferences.
// OK stores what the pages show; Cancel and Escape leave the preferences as they were.
zel::RibbonOptionsDialog *makeEditorOptionsDialog(zel::RibbonMainWindow &window, EditorPreferences &preferences);
