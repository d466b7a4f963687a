#pragma once

#include "EncodingChoice.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class QTextCodec;
class QTextStream;

namespace arcanum {
struct FileFormat;
}

// `loreka roundtrip FILE...`: reads each file as the editor does, writes what a save would write (in
// memory) and compares the bytes with the original. For a text file that changes it also shows the
// first differing line before and after, naming what kind of rewrite it is.
class RoundtripCommand
{
public:
    explicit RoundtripCommand(const EncodingChoice& encoding);
    int run(const QStringList& paths);

private:
    int roundTrip(const QString& path, QTextStream& out) const;
    void showLine(QTextCodec* codec, const QByteArray& before, const QByteArray& after, qint64 at,
                  QTextStream& out) const;
    static qint64 firstDifference(const QByteArray& a, const QByteArray& b);
    static QString rewriteKind(const QByteArray& before, const QByteArray& after);

    EncodingChoice encoding;
};
