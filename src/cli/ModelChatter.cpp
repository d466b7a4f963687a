#include "ModelChatter.h"

#include <QString>

#include <cstdio>
#include <iostream>

namespace {

// Keeps critical messages, which mean a fault of the program rather than of a data file.
void dropWarnings(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

// An output stream that throws everything away.
class NullBuffer : public std::streambuf
{
protected:
    int overflow(int c) override { return traits_type::not_eof(c); }
};

} // namespace

ModelChatter::ModelChatter()
{
    static NullBuffer nothing;
    savedBuffer = std::cout.rdbuf(&nothing);
    savedHandler = qInstallMessageHandler(dropWarnings);
}

ModelChatter::~ModelChatter()
{
    std::cout.rdbuf(savedBuffer);
    qInstallMessageHandler(savedHandler);
}
