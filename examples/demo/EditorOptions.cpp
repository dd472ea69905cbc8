// The editor's options dialog: a General page (author name, length of the recent
// documents list) and a View page (ribbon minimised at start, zoom of new documents).

#include "EditorOptions.h"

#include "RibbonOptionsDialog.h"
#include "RibbonOptionsPage.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

const QString KeyAuthor = QStringLiteral("options/author");
const QString KeyRecentLength = QStringLiteral("options/recentLength");
const QString KeyStartMinimised = QStringLiteral("options/startMinimised");
const QString KeyDefaultZoom = QStringLiteral("options/defaultZoom");

// A page body: a heading and a form under it.
QFormLayout *pageForm(zel::RibbonOptionsPage &page, const QString &heading)
{
    auto *layout = new QVBoxLayout(&page);
    layout->setContentsMargins(20, 16, 20, 16);
    auto *title = new QLabel(heading, &page);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    title->setFont(big);
    title->setStyleSheet(QStringLiteral("color: #2B579A;"));
    layout->addWidget(title);
    layout->addSpacing(8);
    auto *form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignLeft);
    layout->addLayout(form);
    layout->addStretch();
    return form;
}

class GeneralPage : public zel::RibbonOptionsPage
{
    Q_OBJECT
public:
    GeneralPage(zel::RibbonOptionsDialog &dialog, EditorPreferences &preferences)
        : RibbonOptionsPage(dialog)
        , m_preferences(preferences)
    {
        setWindowTitle(tr("General"));
        QFormLayout *form = pageForm(*this, tr("General options for working with the editor"));
        m_author = new QLineEdit(this);
        m_author->setObjectName(QStringLiteral("author"));
        m_author->setPlaceholderText(tr("Your name, shown in the document information"));
        form->addRow(tr("&Author name:"), m_author);
        m_recentLength = new QSpinBox(this);
        m_recentLength->setObjectName(QStringLiteral("recentLength"));
        m_recentLength->setRange(EditorPreferences::MinRecentLength, EditorPreferences::MaxRecentLength);
        m_recentLength->setSuffix(tr(" documents"));
        form->addRow(tr("&Recent documents list:"), m_recentLength);
        reject();
    }

public slots:
    void accept() override
    {
        m_preferences.setAuthor(m_author->text().trimmed());
        m_preferences.setRecentLength(m_recentLength->value());
    }

    // Shows the stored values again, dropping what was typed.
    void reject() override
    {
        m_author->setText(m_preferences.author());
        m_recentLength->setValue(m_preferences.recentLength());
    }

private:
    EditorPreferences &m_preferences;
    QLineEdit *m_author = nullptr;
    QSpinBox *m_recentLength = nullptr;
};

class ViewPage : public zel::RibbonOptionsPage
{
    Q_OBJECT
public:
    ViewPage(zel::RibbonOptionsDialog &dialog, EditorPreferences &preferences)
        : RibbonOptionsPage(dialog)
        , m_preferences(preferences)
    {
        setWindowTitle(tr("View"));
        QFormLayout *form = pageForm(*this, tr("How the editor looks when it starts"));
        m_startMinimised = new QCheckBox(tr("Start with the ribbon &minimised"), this);
        m_startMinimised->setObjectName(QStringLiteral("startMinimised"));
        form->addRow(m_startMinimised);
        m_defaultZoom = new QSpinBox(this);
        m_defaultZoom->setObjectName(QStringLiteral("defaultZoom"));
        m_defaultZoom->setRange(EditorPreferences::MinZoom, EditorPreferences::MaxZoom);
        m_defaultZoom->setSingleStep(10);
        m_defaultZoom->setSuffix(QStringLiteral(" %"));
        form->addRow(tr("Default &zoom:"), m_defaultZoom);
        reject();
    }

public slots:
    void accept() override
    {
        m_preferences.setStartMinimised(m_startMinimised->isChecked());
        m_preferences.setDefaultZoom(m_defaultZoom->value());
    }

    void reject() override
    {
        m_startMinimised->setChecked(m_preferences.startMinimised());
        m_defaultZoom->setValue(m_preferences.defaultZoom());
    }

private:
    EditorPreferences &m_preferences;
    QCheckBox *m_startMinimised = nullptr;
    QSpinBox *m_defaultZoom = nullptr;
};

} // namespace

EditorPreferences::EditorPreferences(QSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_author(settings.value(KeyAuthor).toString())
    , m_recentLength(qBound(MinRecentLength, settings.value(KeyRecentLength, 12).toInt(), MaxRecentLength))
    , m_startMinimised(settings.value(KeyStartMinimised, false).toBool())
    , m_defaultZoom(qBound(MinZoom, settings.value(KeyDefaultZoom, 100).toInt(), MaxZoom))
{
}

void EditorPreferences::setAuthor(const QString &author)
{
    if (author == m_author)
        return;
    m_author = author;
    m_settings.setValue(KeyAuthor, author);
    emit authorChanged();
}

void EditorPreferences::setRecentLength(int length)
{
    length = qBound(MinRecentLength, length, MaxRecentLength);
    if (length == m_recentLength)
        return;
    m_recentLength = length;
    m_settings.setValue(KeyRecentLength, length);
    emit recentLengthChanged();
}

void EditorPreferences::setStartMinimised(bool minimised)
{
    if (minimised == m_startMinimised)
        return;
    m_startMinimised = minimised;
    m_settings.setValue(KeyStartMinimised, minimised);
}

void EditorPreferences::setDefaultZoom(int percent)
{
    percent = qBound(MinZoom, percent, MaxZoom);
    if (percent == m_defaultZoom)
        return;
    m_defaultZoom = percent;
    m_settings.setValue(KeyDefaultZoom, percent);
    emit defaultZoomChanged();
}

zel::RibbonOptionsDialog *makeEditorOptionsDialog(zel::RibbonMainWindow &window, EditorPreferences &preferences)
{
    auto *dialog = new zel::RibbonOptionsDialog(window);
    dialog->setWindowTitle(QCoreApplication::translate("EditorOptions", "Writer Options"));
    dialog->addOptionsPage(new GeneralPage(*dialog, preferences));
    dialog->addOptionsPage(new ViewPage(*dialog, preferences));
    return dialog;
}

#include "EditorOptions.moc"
