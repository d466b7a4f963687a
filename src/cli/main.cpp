#include "CommandLine.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("loreka"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LOREKA_VERSION));
    return CommandLine().run(QCoreApplication::arguments());
}
