#pragma once

#include <QString>

class QTextCodec;

// `loreka dump FILE [--json]`: the file as readable text, or the same as JSON.
class DumpCommand
{
public:
    DumpCommand(QTextCodec* mesCodec, bool json);
    int run(const QString& path);

private:
    QTextCodec* codec;
    bool asJson;
};
