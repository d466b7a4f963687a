#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QTextCodec;

// `loreka roundtrip FILE...`: loads each file with its model, saves it to a temporary folder and
// compares the bytes with the original.
class RoundtripCommand
{
public:
    explicit RoundtripCommand(QTextCodec* mesCodec);
    int run(const QStringList& paths);

private:
    // False when the model could not read or write the file.
    bool saveCopy(const QString& path, const QString& copy);
    static qint64 firstDifference(const QByteArray& a, const QByteArray& b);

    QTextCodec* codec;
};
