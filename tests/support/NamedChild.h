#pragma once

#include <QObject>
#include <QString>


// The child of a page that its form names; a test without it cannot go on, so a missing one ends it.
template <typename T>
T* namedChild(const QObject* parent, const char* name)
{
    T* widget = parent->findChild<T*>(QString::fromLatin1(name));
    if (!widget)
        qFatal("no child %s", name);
    return widget;
}
