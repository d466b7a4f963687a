// The window's own views of documents: the undo history after a few edits, and the strip a damaged
// file shows over its page.
#include "ShotRegistry.h"

#include "Document.h"
#include "MainWindow.h"
#include "MesWidget.h"
#include "constants.h"

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QTableView>
#include <QTemporaryDir>
#include <QUndoStack>

namespace {

QWidget* undoHistory(MainWindow& window)
{
    ShotRegistry::showTab(window, 1);
    window.openFiles({QDir::current().absoluteFilePath(arcanum::MES_DIR + QStringLiteral("sample_items.mes"))});
    auto* view = window.mesPage()->findChild<QTableView*>();
    if (view != nullptr) {
        QAbstractItemModel* model = view->model();
        const int column = 1;
        for (int row = 0; row < 3 && row < model->rowCount(); ++row) {
            const QModelIndex cell = model->index(row, column);
            model->setData(cell, model->data(cell).toString() + QStringLiteral(" (improved)"));
        }
    }
    if (auto* dock = window.findChild<QDockWidget*>(QStringLiteral("undoHistoryDock")))
        dock->show();
    return nullptr;
}

QWidget* damageBanner(MainWindow& window)
{
    if (auto* dock = window.findChild<QDockWidget*>(QStringLiteral("undoHistoryDock")))
        dock->hide();
    // Undo the edits of the previous shot, so opening another file asks nothing.
    if (window.mesPage()->document() != nullptr)
        window.mesPage()->document()->undoStack()->setIndex(0);
    static QTemporaryDir scratch;
    const QString broken = scratch.path() + QStringLiteral("/broken_items.mes");
    QFile source(QDir::current().absoluteFilePath(arcanum::MES_DIR + QStringLiteral("sample_items.mes")));
    QFile target(broken);
    if (source.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly)) {
        QByteArray bytes = source.readAll();
        bytes.replace("{104}", "{1o4}");
        target.write(bytes);
    }
    target.close();
    window.openFiles({broken});
    return nullptr;
}

const ShotRegistration historyShot(90, "window-undo-history", &undoHistory);
const ShotRegistration bannerShot(91, "window-damaged-file", &damageBanner);

} // namespace
