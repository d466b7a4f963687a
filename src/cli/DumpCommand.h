#pragma once

#include "EncodingChoice.h"

#include <QString>

// `loreka dump FILE [--json]`: the file as readable text, or the same as JSON.
class DumpCommand
{
public:
    DumpCommand(const EncodingChoice& encoding, bool json);
    int run(const QString& path);

private:
    EncodingChoice encoding;
    bool asJson;
};
