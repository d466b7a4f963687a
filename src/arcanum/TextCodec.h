#pragma once

#include <QByteArray>
#include <QString>

class QTextCodec;

namespace arcanum {

// QTextCodec::fromUnicode and toUnicode for whole files. Windows-1251, the code page of the game's texts,
// maps one byte to one character, so it is converted through tables made from the codec's own answers
// (its converter is slow on files of many megabytes); what the tables do not know still goes through
// the codec. Every other codec converts the whole text. tst_textcodec holds both ways to the codec.
class TextCodec
{
public:
    static QByteArray encode(QTextCodec* codec, const QString& text);
    static QString decode(QTextCodec* codec, const QByteArray& bytes);
};

} // namespace arcanum
