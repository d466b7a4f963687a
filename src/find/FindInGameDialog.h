#pragma once

#include "GameSearch.h"

#include <QDialog>
#include <QFutureWatcher>

#include <atomic>
#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTextCodec;
class QTreeWidget;
class QTreeWidgetItem;

// Edit › Find in game files…: a text in every message and dialogue file of the game, or the uses of a
// flag, variable, script or message number, loose files and archived ones alike. The search runs on a
// worker thread with its own view of the game, so the window stays usable and Cancel stops it between
// two files. Activating a result asks the window to open that file there.
class FindInGameDialog : public QDialog
{
    Q_OBJECT

public:
    // The order of the mode chooser.
    static const QVector<arcanum::GameSearch::Mode>& modes();

    explicit FindInGameDialog(QWidget* parent = nullptr);
    ~FindInGameDialog() override;

    // The game to search: its folder, the module and the code page of its message files.
    void setGame(const QString& base, const QString& module, QTextCodec* mesCodec);
    // Starts a search with what the fields say; a pattern that cannot be searched for is refused
    // with the reason below the list.
    void start();
    void cancel();
    bool isRunning() const { return watcher.isRunning(); }
    const QVector<arcanum::GameSearch::Hit>& hits() const { return found; }

signals:
    void hitActivated(const arcanum::GameSearch::Hit& hit);
    void searchFinished();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void buildLayout();
    void connectSignals();
    void modeChosen();
    bool queryFromFields(arcanum::GameSearch::Query& query);
    void showResult();
    void fillList();
    void updateControls();
    void activate(QTreeWidgetItem* item);

    QLineEdit* patternEdit = nullptr;
    QComboBox* modeBox = nullptr;
    QCheckBox* caseBox = nullptr;
    QCheckBox* regexBox = nullptr;
    QPushButton* findButton = nullptr;
    QPushButton* cancelButton = nullptr;
    QProgressBar* progress = nullptr;
    QTreeWidget* results = nullptr;
    QLabel* status = nullptr;

    QString base;
    QString module;
    QTextCodec* codec = nullptr;
    QFutureWatcher<arcanum::GameSearch::Result> watcher;
    // Shared with the worker, which may still be reading a file when the dialog goes.
    std::shared_ptr<std::atomic_bool> stop;
    QVector<arcanum::GameSearch::Hit> found;
};
