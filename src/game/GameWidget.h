#pragma once

#include "GameView.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

// The "Game" tab: every file of the game as the engine layers archives and loose folders, with the
// layer that wins and the ones it hides; opens, extracts and packs files without blocking the window.
class GameWidget : public QWidget
{
    Q_OBJECT

public:
    explicit GameWidget(QWidget* parent = nullptr);

    // Reads the layers below base again.
    void rescan(const QString& base);
    const arcanum::GameView& view() const { return game; }
    // Extracts the files below the selected items into folder, on a worker thread; false when cancelled
    // or when some file failed (each is reported).
    bool extractSelected(const QString& folder);
    // Asks the window to open a file of the view (see openRequested).
    void open(const arcanum::GameView::File& file);

signals:
    // The view was built again (a new base directory or module): lists drawn from it refill.
    void viewChanged();
    // A file the user wants to edit: its game path, the bytes the engine would read, and where a save
    // should write it (the loose file itself, or the loose override of an archived one).
    void openRequested(const QString& gamePath, const QByteArray& bytes, const QString& savePath, bool archived);

private:
    void build(const QString& module);
    void fill();
    QTreeWidgetItem* folderItem(const QString& folder);
    void applyFilter(const QString& text);
    QList<const arcanum::GameView::File*> selectedFiles() const;
    void openSelected();
    void extract();
    void pack();
    // Runs work on a worker thread behind a progress dialog with Cancel; false when cancelled.
    bool runWithProgress(const QString& title, int total, const std::function<bool(const std::function<bool(int)>&)>& work);

    arcanum::GameView game;
    QString baseDir;
    QLineEdit* filter = nullptr;
    QTreeWidget* tree = nullptr;
    QLabel* summary = nullptr;
    QComboBox* moduleBox = nullptr;
    QHash<QString, QTreeWidgetItem*> folders;
};
