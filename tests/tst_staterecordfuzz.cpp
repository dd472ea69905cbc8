// The records a host stores between runs, read back damaged: the recent-document
// history of BackstageListModel and the hidden-command names of the quick-access bar.
// Each is fed thousands of truncated, mutated and random records, many of them made from
// real saved records. Every record carries what the reader must make of it, decided
// when the damage is done: reading never crashes, keeps every valid entry, and what it
// kept saves and reads back unchanged.

#include "ZelTest.h"

#include "BackstageListModel.h"
#include "RibbonButtonNormal.h"
#include "RibbonMainWindow.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonSimpleAction.h"

#include <QDataStream>
#include <QMenu>
#include <QRandomGenerator>

#include <memory>

using namespace zel;

namespace {

constexpr int Records = 10000;

// What a history element must turn into: an entry with this path and pin, or nothing.
struct Expected
{
    bool kept = false;
    QString path;
    bool pinned = false;
};

struct Record
{
    QList<QVariant> state;
    QList<Expected> expected;
    // A record read back from damaged bytes: its entries are not known one by one, only
    // that they come from the intact record, in its order.
    bool fromBytes = false;
};

class Damage
{
public:
    explicit Damage(quint32 seed)
        : random(seed)
    {
    }

    int bounded(int n) { return n > 0 ? int(random.bounded(quint32(n))) : 0; }
    bool chance(int percent) { return bounded(100) < percent; }

    QString path()
    {
        switch (bounded(8)) {
        case 0:
            return QString();
        case 1:
            return QStringLiteral("");
        case 2:
            return QString(bounded(3000) + 1, QChar(u'x')); // long
        case 3: {
            // Any UTF-16 units, lone surrogates and nulls included.
            QString text;
            for (int i = bounded(12); i > 0; --i)
                text += QChar(ushort(random.bounded(0x10000u)));
            return text;
        }
        default:
            return QStringLiteral("/home/user/Documents/report %1.zel").arg(bounded(40));
        }
    }

    // A value of a random kind, possibly nested.
    QVariant any(int depth = 0)
    {
        switch (bounded(depth > 2 ? 8 : 10)) {
        case 0:
            return QVariant();
        case 1:
            return QVariant(path());
        case 2:
            return QVariant(bool(bounded(2)));
        case 3:
            return QVariant(int(random.generate()));
        case 4:
            return QVariant(random.generateDouble());
        case 5:
            return QVariant(path().toUtf8());
        case 6:
            return QVariant(QStringList{path(), path()});
        case 7:
            return QVariant(QVariantMap{{path(), any(depth + 1)}});
        default: {
            QVariantList list;
            for (int i = bounded(4); i > 0; --i)
                list << any(depth + 1);
            return QVariant(list);
        }
        }
    }

    // One element of a history record, damaged now and then, with what must come of it.
    QPair<QVariant, Expected> element(const QString &path, bool pinned)
    {
        const Expected keep{true, path, pinned};
        const Expected lost{};
        switch (bounded(16)) {
        case 0: // cut after the path
            return {QVariant(QVariantList{path}), Expected{true, path, false}};
        case 1: // cut before it
            return {QVariant(QVariantList()), lost};
        case 2: // the pin as text or a number, as a settings file gives it back
            return {QVariant(QVariantList{path, pinned ? QStringLiteral("true") : QStringLiteral("false")}), keep};
        case 3:
            return {QVariant(QVariantList{path, pinned ? bounded(1000) + 1 : 0}), keep};
        case 4: // both as texts
            return {QVariant(QStringList{path, pinned ? QStringLiteral("true") : QStringLiteral("false")}), keep};
        case 5: // the path of another type
            return {QVariant(QVariantList{chance(50) ? QVariant(bounded(100)) : QVariant(), pinned}), lost};
        case 6:
            return {QVariant(QVariantList{QVariant(QVariantList{path}), pinned}), lost};
        case 7: // not a list at all
            return {chance(50) ? QVariant(path) : QVariant(), lost};
        case 8:
            return {QVariant(QVariantMap{{QStringLiteral("path"), path}}), lost};
        default:
            return {QVariant(QVariantList{path, pinned}), keep};
        }
    }

    // A record saved by a real model after a user's history, then damaged.
    Record mutatedSavedRecord()
    {
        BackstageListModel model;
        for (int i = bounded(12); i > 0; --i)
            model.addItem(path(), chance(80));
        for (int i = bounded(3); i > 0; --i)
            model.pinItem(model.index(bounded(model.rowCount()), 0));
        if (chance(20))
            model.addItem(QIcon(), path(), chance(50)); // a fixed entry is saved as well
        const QList<QVariant> saved = model.saveState();

        Record record;
        for (const QVariant &element : saved) {
            const QVariantList values = element.toList();
            if (chance(10))
                continue; // an element lost
            const auto damaged = chance(40) ? this->element(values.at(0).toString(), values.at(1).toBool())
                                             : qMakePair(element, Expected{true, values.at(0).toString(),
                                                                          values.at(1).toBool()});
            record.state << damaged.first;
            record.expected << damaged.second;
            if (chance(10)) { // an element doubled
                record.state << damaged.first;
                record.expected << damaged.second;
            }
        }
        if (chance(30)) { // cut at a random element
            const int size = bounded(record.state.size() + 1);
            record.state = record.state.mid(0, size);
            record.expected = record.expected.mid(0, size);
        }
        if (chance(20)) { // stray values in between
            const int at = bounded(record.state.size() + 1);
            QVariant stray = any();
            const bool aList = stray.userType() == QMetaType::QVariantList || stray.userType() == QMetaType::QStringList;
            if (!aList) {
                record.state.insert(at, stray);
                record.expected.insert(at, Expected{});
            }
        }
        return record;
    }

    // A record of elements made up from scratch, each with its expected outcome.
    Record madeUpRecord()
    {
        Record record;
        for (int i = bounded(20); i > 0; --i) {
            const auto made = element(path(), chance(30));
            record.state << made.first;
            record.expected << made.second;
        }
        return record;
    }

    // A saved record through a stream, as a host's settings file holds it, cut short at
    // a random byte.
    Record truncatedBytes()
    {
        Record intact = mutatedSavedRecord();
        QByteArray bytes;
        {
            QDataStream out(&bytes, QIODevice::WriteOnly);
            out << intact.state;
        }
        bytes.truncate(bounded(bytes.size() + 1));
        QDataStream in(bytes);
        Record record;
        in >> record.state;
        record.expected = intact.expected;
        record.fromBytes = true;
        return record;
    }

    QRandomGenerator random;
};

QList<QPair<QString, bool>> entriesOf(const QList<QVariant> &saved)
{
    QList<QPair<QString, bool>> entries;
    for (const QVariant &element : saved)
        entries << qMakePair(element.toList().value(0).toString(), element.toList().value(1).toBool());
    return entries;
}

// The history shown as rows, pinned entries first: what a view of the model lists.
QStringList rowsOf(const BackstageListModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows << model.index(row, 0).data().toString();
    return rows;
}

} // namespace

class tst_StateRecordFuzz : public QObject
{
    Q_OBJECT

private slots:
    void recentListReadsDamagedRecords();
    void quickAccessReadsDamagedRecords();
};

void tst_StateRecordFuzz::recentListReadsDamagedRecords()
{
    Damage damage(22);
    for (int n = 0; n < Records; ++n) {
        Record record;
        switch (n % 4) {
        case 0:
            record = damage.mutatedSavedRecord();
            break;
        case 1:
            record = damage.madeUpRecord();
            break;
        case 2:
            record = damage.truncatedBytes();
            break;
        default: // anything at all: only that it reads and round-trips
            for (int i = damage.bounded(8); i > 0; --i)
                record.state << damage.any();
        }
        const QString where = QStringLiteral("record %1").arg(n);

        // Read into a model that already holds a history, with a maximum now and then.
        const int maximum = damage.chance(30) ? damage.bounded(8) : -1;
        BackstageListModel model(nullptr, maximum);
        const QStringList before{QStringLiteral("kept 1"), QStringLiteral("kept 2")};
        for (const QString &path : before)
            model.addItem(path);
        const QList<QVariant> earlier = model.saveState();
        model.restoreState(record.state);
        const QList<QPair<QString, bool>> read = entriesOf(model.saveState());

        // The earlier history stays in front, the maximum holds.
        const QList<QPair<QString, bool>> earlierEntries = entriesOf(earlier);
        QVERIFY2(read.mid(0, earlierEntries.size()) == earlierEntries.mid(0, read.size()), qPrintable(where));
        if (maximum >= 0)
            QVERIFY2(read.size() <= maximum, qPrintable(where));
        const QList<QPair<QString, bool>> added = read.mid(earlierEntries.size());

        if (record.fromBytes) {
            // Whatever came out of the bytes is the intact record's entries, in order.
            QList<QPair<QString, bool>> intact;
            for (const Expected &e : record.expected) {
                if (e.kept)
                    intact << qMakePair(e.path, e.pinned);
            }
            int at = 0;
            for (const auto &entry : added) {
                while (at < intact.size() && intact.at(at) != entry)
                    ++at;
                QVERIFY2(at < intact.size(), qPrintable(where + QStringLiteral(": an entry that was not saved")));
                ++at;
            }
        } else if (!record.expected.isEmpty()) {
            // Every valid entry, in order, as far as the maximum leaves room.
            QList<QPair<QString, bool>> valid;
            for (const Expected &e : record.expected) {
                if (e.kept)
                    valid << qMakePair(e.path, e.pinned);
            }
            const int room = maximum < 0 ? valid.size() : qMax(0, maximum - earlierEntries.size());
            QVERIFY2(added == valid.mid(0, room), qPrintable(where));
        }

        // What was read is a clean record: saved and read again, it gives the same rows.
        BackstageListModel again(nullptr, maximum);
        again.restoreState(model.saveState());
        QVERIFY2(again.saveState() == model.saveState(), qPrintable(where));
        QVERIFY2(rowsOf(again) == rowsOf(model), qPrintable(where));
    }
}

void tst_StateRecordFuzz::quickAccessReadsDamagedRecords()
{
    RibbonMainWindow window;
    RibbonQuickAccessBar &bar = window.quickAccessBar();
    auto *menu = bar.findChild<QMenu *>();
    QVERIFY(menu);
    const QStringList names{QStringLiteral("save"), QStringLiteral("undo"), QStringLiteral("redo"),
                            QStringLiteral("print"), QStringLiteral("Save"), QString()};
    QList<RibbonSimpleAction *> commands;
    for (const QString &name : names) {
        commands << new RibbonSimpleAction(name.toUpper(), &window);
        commands.last()->setData(name);
    }
    auto buttonOf = [&](QAction *command) -> QWidget * {
        for (RibbonButtonNormal *button : bar.findChildren<RibbonButtonNormal *>()) {
            if (button->actions().value(0) == command)
                return button;
        }
        return nullptr;
    };
    auto entryOf = [&](QAction *command) -> QAction * {
        const int at = int(bar.actions().indexOf(command));
        return at < 0 ? nullptr : menu->actions().value(at);
    };

    Damage damage(19);
    QStringList saved;
    for (int n = 0; n < Records; ++n) {
        const QString where = QStringLiteral("record %1").arg(n);
        // A record: the one the bar saved last, damaged, or made up.
        QStringList record;
        switch (n % 3) {
        case 0:
            record = saved;
            for (int i = damage.bounded(3); i > 0 && !record.isEmpty(); --i) {
                QString &name = record[damage.bounded(record.size())];
                if (damage.chance(50))
                    name.truncate(damage.bounded(name.size() + 1));
                else
                    name.insert(damage.bounded(name.size() + 1), QChar(ushort(damage.random.bounded(0x10000u))));
            }
            if (damage.chance(30))
                record = record.mid(0, damage.bounded(record.size() + 1));
            if (damage.chance(30))
                record << record.value(0);
            break;
        case 1:
            for (int i = damage.bounded(6); i > 0; --i)
                record << (damage.chance(60) ? names.at(damage.bounded(names.size())) : damage.path());
            break;
        default: {
            // Through a stream cut short, as a damaged settings file gives it back.
            QStringList intact = saved;
            intact << damage.path() << names.at(damage.bounded(names.size()));
            QByteArray bytes;
            {
                QDataStream out(&bytes, QIODevice::WriteOnly);
                out << intact;
            }
            bytes.truncate(damage.bounded(bytes.size() + 1));
            QDataStream in(bytes);
            in >> record;
        }
        }

        bar.setQuickAccessBarItems(record);
        // Every name kept as given, unknown ones included.
        QVERIFY2(bar.disabledQuickAccessBarItems() == record, qPrintable(where));
        if (n % 4 != 0) {
            saved = record;
            continue;
        }

        // Every fourth record, the host restores it before it adds its commands: each
        // named command starts hidden exactly when the record names it.
        for (QAction *command : commands)
            bar.removeAction(command);
        bar.setQuickAccessBarItems(record);
        for (QAction *command : commands)
            bar.addAction(command);
        for (int i = 0; i < commands.size(); ++i) {
            const bool hidden = !names.at(i).isEmpty() && record.contains(names.at(i));
            QWidget *button = buttonOf(commands.at(i));
            QVERIFY2(button && button->isHidden() == hidden, qPrintable(where + QLatin1Char(' ') + names.at(i)));
            QVERIFY2(entryOf(commands.at(i))->isChecked() == !hidden, qPrintable(where));
        }

        // The user shows or hides a command; the record saved then names exactly the
        // hidden commands it knew plus the unknown names it was given.
        const int picked = damage.bounded(commands.size() - 1); // the nameless one is not listed
        entryOf(commands.at(picked))->trigger();
        saved = bar.disabledQuickAccessBarItems();
        const QString name = names.at(picked);
        QVERIFY2(saved.contains(name) == !record.contains(name), qPrintable(where));
        QStringList others = saved;
        others.removeAll(name);
        QStringList recordOthers = record;
        recordOthers.removeAll(name);
        QVERIFY2(others == recordOthers, qPrintable(where));
    }
}

ZEL_TEST_MAIN(tst_StateRecordFuzz)
#include "tst_staterecordfuzz.moc"
