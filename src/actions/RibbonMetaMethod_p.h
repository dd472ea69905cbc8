#pragma once

// Signals and slots looked up in a class's meta-object, for connections made per
// button. Not installed.
//
// A connection to a member function pointer or a lambda carries a slot object on the
// heap; a connection between two meta-methods (QObject::connect with QMetaMethod) does
// not. Widgets made for every command connect to their action this way:
//
//     static const QMetaMethod changed = ribbonMetaMethod<QAction>("changed()");
//     static const QMetaMethod update = ribbonMetaMethod<QWidget>("update()");
//     QObject::connect(&action, changed, this, update);

#include <QMetaMethod>
#include <QMetaObject>

namespace zel {

// The signal or slot of T with the given normalised signature; invalid when T has none
// (and a connection to it then fails with Qt's warning).
template<class T>
QMetaMethod ribbonMetaMethod(const char *signature)
{
    const QMetaObject &meta = T::staticMetaObject;
    return meta.method(meta.indexOfMethod(signature));
}

} // namespace zel
