#pragma once

#include <QDir>

// Changes the working directory for one scope and restores it even when a check fails early.
class CurrentDirGuard
{
public:
    explicit CurrentDirGuard(const QString& path)
        : previous(QDir::currentPath())
    {
        ok = QDir::setCurrent(path);
    }
    ~CurrentDirGuard() { QDir::setCurrent(previous); }
    CurrentDirGuard(const CurrentDirGuard&) = delete;
    CurrentDirGuard& operator=(const CurrentDirGuard&) = delete;

    bool ok = false;

private:
    QString previous;
};
