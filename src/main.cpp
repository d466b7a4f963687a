#include "MainWindow.h"
#include "Translations.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLocale>
#include <QTimer>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("qtLoreka"));
    Translations::install(QLocale::system());
    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate("main", "Editor for the data files of Arcanum"));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QApplication::translate("main", "Files to open (.mes, .dlg, .scr, .art, .pro)."),
                                 QStringLiteral("[FILE…]"));
    parser.process(app);

    MainWindow window;
    window.setWindowIcon(QIcon(QStringLiteral(":/window/zq-icon-96.png")));
    window.show();
    const QStringList files = parser.positionalArguments();
    // After the window is up, so questions about recovered work or unreadable files have a parent to sit on.
    QTimer::singleShot(0, &window, [&window, files] {
        window.offerRecovery();
        if (!files.isEmpty())
            window.openFiles(files);
    });
    return app.exec();
}
