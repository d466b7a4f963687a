#pragma once

#include "TextDecoding.h"

#include <QByteArray>
#include <QList>

class QTextCodec;

namespace arcanum {

// Which encoding a text file was written in. uchardet, the usual detector, names one encoding from
// byte statistics; on the short lines of game texts it is often wrong (a Russian item name as Mac
// Cyrillic, a Korean or Japanese one as Windows-1252) or has no answer. So each encoding a game file
// may be in is tried: those that read every byte are kept, and ranked by how much their text looks
// like writing (letters of one script, words without symbols or case flips inside them); uchardet's
// answer decides between equally good ones. tst_encodingguess measures both on texts of each language.
class EncodingGuess
{
public:
    // A file read in one encoding: what did not read, and when something did not, the encodings that
    // would read all of it, the most likely first.
    struct Findings
    {
        TextDecoding::Unreadable unreadable;
        QList<QTextCodec*> suggestions;
    };
    static Findings examine(QTextCodec* codec, const QByteArray& bytes);

    // uchardet's answer as a Qt codec, a name it reports for a subset taken as the superset Windows
    // uses (ISO-8859-1 as Windows-1252, EUC-KR as CP949); null when it has none that Qt knows.
    static QTextCodec* detector(const QByteArray& bytes);
    // The encodings that read bytes without an unreadable character, the most likely first. Plain
    // ASCII reads the same in all of them; valid UTF-8 with other characters puts UTF-8 first.
    static QList<QTextCodec*> cleanEncodings(const QByteArray& bytes);
    // The single answer of `--encoding auto`: UTF-8 for valid UTF-8 (ASCII included), else the first
    // clean encoding, else fallback.
    static QTextCodec* best(const QByteArray& bytes, QTextCodec* fallback);
    // How unlike writing the text is: suspicious characters per character outside ASCII (0 reads
    // as a language would be written). Lower is better.
    static double doubt(QTextCodec* codec, const QByteArray& bytes);
    // Whether the bytes are UTF-8 without an invalid sequence.
    static bool isUtf8(const QByteArray& bytes);
};

} // namespace arcanum
