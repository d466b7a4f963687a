// Writes the bundled sample game: loreka-samplegen <game directory>
#include "SampleRegistry.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: loreka-samplegen <game directory>\n");
        return 2;
    }
    return SampleRegistry::writeAll(QDir(QString::fromLocal8Bit(argv[1]))) ? 0 : 1;
}
