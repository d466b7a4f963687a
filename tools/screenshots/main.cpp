// loreka-screenshots [--window] <output directory>
// Run inside a game directory. Offscreen it grabs widgets; with --window (under Xvfb) it shows the
// real window and grabs the screen, so window decorations and native rendering are checked too.
#include "MainWindow.h"
#include "ShotRegistry.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>

#include <cstdio>

namespace {

QPixmap grab(MainWindow& window, QWidget* target, bool realWindow)
{
    if (!realWindow)
        return (target ? target : &window)->grab();
    QWidget* shown = target ? target->window() : &window;
    return shown->screen()->grabWindow(0);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    const bool realWindow = args.contains(QStringLiteral("--window"));
    const QStringList rest = QStringList(args).filter(QRegularExpression(QStringLiteral("^[^-]")));
    if (rest.size() != 1) {
        std::fprintf(stderr, "usage: loreka-screenshots [--window] <output directory>\n");
        return 2;
    }
    const QDir out(rest.first());
    out.mkpath(QStringLiteral("."));

    MainWindow window;
    window.setWindowIcon(QIcon(QStringLiteral(":/window/zq-icon-96.png")));
    bool ok = true;
    // The default window and a small one: every page must fit both. Dialogs of their own are shot once.
    const std::vector<std::pair<QSize, QString>> sizes = {{QSize(1200, 800), QString()},
                                                          {QSize(1024, 700), QStringLiteral("-1024")}};
    for (const auto& [size, suffix] : sizes) {
        window.resize(size);
        window.show();
        ShotRegistry::settle();
        for (const ShotRegistry::Entry& shot : ShotRegistry::all()) {
            QWidget* target = shot.prepare(window);
            ShotRegistry::settle();
            const bool ownWindow = target && target->window() != &window;
            const QString name = (realWindow ? QStringLiteral("window-") : QString()) + shot.name + suffix
                                 + QStringLiteral(".png");
            if ((suffix.isEmpty() || !ownWindow) && !grab(window, target, realWindow).save(out.filePath(name))) {
                std::fprintf(stderr, "could not write %s\n", qPrintable(out.filePath(name)));
                ok = false;
            }
            if (ownWindow)
                target->window()->close();
        }
    }
    return ok ? 0 : 1;
}
