#pragma once

#include "FileFormat.h"

#include <QByteArray>
#include <QString>

class QTextCodec;

// What `--encoding` asks for: nothing (each text kind's own default: UTF-8 for message files, the
// game's Windows-1251 for dialogue files), "auto" (UTF-8 when the file is valid UTF-8, else the best
// guess of arcanum::EncodingGuess, file by file), or one codec's name.
class EncodingChoice
{
public:
    explicit EncodingChoice(const QString& value = QString());

    // False for a name Qt knows no codec by.
    bool isValid() const { return automatic || fixed != nullptr || value.isEmpty(); }
    bool isAuto() const { return automatic; }
    // Whether --encoding was given at all.
    bool isChosen() const { return !value.isEmpty(); }

    // The codec to read the bytes of a text file of that kind in; never null for a valid choice.
    QTextCodec* codecFor(arcanum::FileFormat::Kind kind, const QByteArray& bytes) const;
    // The same for a file on disk (read only when the choice is "auto").
    QTextCodec* codecFor(const QString& path) const;
    // How a report names the codec: "windows-1251", with "(guessed)" after it under "auto".
    QString describe(QTextCodec* codec) const;
    // "3 characters cannot be read in UTF-8 (first: line 2); the file reads cleanly in windows-1251,
    // KOI8-R: pick one with --encoding, or --encoding auto", or empty when every byte reads.
    QString unreadable(QTextCodec* codec, const QByteArray& bytes) const;

private:
    QString value;
    bool automatic = false;
    QTextCodec* fixed = nullptr;
};
