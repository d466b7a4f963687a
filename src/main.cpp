#include "MainWindow.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    MainWindow window;
    window.setWindowIcon(QIcon(QStringLiteral(":/window/zq-icon-96.png")));
    window.show();
    return app.exec();
}
