// Edit › Find in game files…: a text found in loose message and dialogue files and in the archive.
#include "ShotRegistry.h"

#include "FindInGameDialog.h"
#include "MainWindow.h"

#include <QEventLoop>
#include <QLineEdit>
#include <QTimer>

namespace {

QWidget* findInGame(MainWindow& window)
{
    FindInGameDialog* dialog = window.showFindInGame();
    dialog->findChild<QLineEdit*>(QStringLiteral("findPattern"))->setText(QStringLiteral("the"));
    QEventLoop wait;
    QObject::connect(dialog, &FindInGameDialog::searchFinished, &wait, &QEventLoop::quit);
    QTimer::singleShot(10000, &wait, &QEventLoop::quit);
    dialog->start();
    if (dialog->isRunning())
        wait.exec();
    return dialog;
}

const ShotRegistration shot(70, "find-in-game", &findInGame);

} // namespace
