#pragma once

#include <QDir>
#include <QString>

#include <vector>

// The writers of the bundled sample game, one per kind of file; each writes below the game directory.
class SampleRegistry
{
public:
    using Writer = bool (*)(const QDir& gameDir);
    struct Entry
    {
        QString name;
        Writer write;
    };

    static void add(const QString& name, Writer write);
    static const std::vector<Entry>& all();
    // Creates the game's folders and runs every writer; false when any of them failed.
    static bool writeAll(const QDir& gameDir);
    // Writes bytes through a temporary file, so a failed run never leaves half a sample behind.
    static bool writeBytes(const QDir& gameDir, const QString& relativePath, const QByteArray& bytes);
};

struct SampleRegistration
{
    SampleRegistration(const char* name, SampleRegistry::Writer write)
    {
        SampleRegistry::add(QString::fromLatin1(name), write);
    }
};
