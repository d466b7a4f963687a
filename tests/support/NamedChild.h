#pragma once

#include <QObject>
#include <QString>
#include <QtGlobal>

// The child of that type and object name; a test that cannot find a control it drives stops at once.
template <typename T>
T* namedChild(const QObject* parent, const char* name)
{
    T* widget = parent->findChild<T*>(QString::fromLatin1(name));
    if (!widget)
        qFatal("no child %s", name);
    return widget;
}
