#pragma once

#include <QJsonObject>
#include <QString>

class QTextCodec;

namespace arcanum {
class Artfile;
class Proto;
}

// What each kind of data file holds, read through its model, as a JSON object that DumpCommand
// prints as text or as JSON. A file its model cannot read gives an object with an "error" member.
class FileDump
{
public:
    static QJsonObject mes(const QString& path, QTextCodec* codec);
    static QJsonObject dialogue(const QString& path, QTextCodec* codec);
    static QJsonObject script(const QString& path);
    static QJsonObject art(const QString& path);
    static QJsonObject proto(const QString& path);
    static QJsonObject palette(const QString& path);

    // Why an art file was not loaded; a file that reads without error but holds no images says so.
    static QString artFailure(const arcanum::Artfile& art);

private:
    static QJsonObject artHeader(const arcanum::Artfile& art);
    static QJsonObject protoFields(const arcanum::Proto& proto);
};
