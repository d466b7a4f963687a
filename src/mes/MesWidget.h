#pragma once

#include "MesDocument.h"
#include "Page.h"

#include <QString>
#include <QStringList>

#include <memory>

class FileEncoding;
class FindBar;
class MesTableModel;
class QAction;
class QLabel;
class QTextCodec;
class Ui_MesWidget;

// The "Mes" tab: one message or dialogue file as a table of entries, with the file header above,
// the selected cell's text below and the selected entry's source line under that.
class MesWidget : public Page
{
    Q_OBJECT

public:
    explicit MesWidget(QWidget* parent = nullptr, const QString& defaultEncoding = QStringLiteral("UTF-8"));
    ~MesWidget() override;

    // Opens the find bar (with its replace row for replace) over the table.
    void showFind(bool replace);

    // The entry tools, as the buttons over the table run them: each asks what it needs (a number through
    // Prompt), refuses bad input with a message and pushes one undo step.
    void addEntry();
    void duplicateEntry();
    void deleteSelectedEntries();
    void renumberEntry();
    void goToNumber();
    void sortByNumber();

    QStringList suffixes() const override;
    QString fileFilter() const override;
    std::unique_ptr<Document> fromBytes(const QString& path, const QByteArray& bytes, QString& error) const override;

    MesDocument* mesDocument() const;
    // The encoding of message files opened without a remembered one.
    QTextCodec* getCodec() const;
    // Selects the text of the entry with that number and scrolls to it; false when the file has none.
    bool goToEntry(int number);

protected:
    void showDocument() override;
    QList<QWidget*> fileControls() const override;

private slots:
    void on_reloadButton_clicked();
    void on_saveButton_clicked();
    void on_saveAsButton_clicked();

private:
    void createEntryTools();
    QAction* entryAction(const QString& name, const QString& text, const QString& tip, void (MesWidget::*run)());
    void connectSignals();
    void connectDocument(MesDocument* shown);
    // Asks for a number, offering proposed; false when cancelled or refused (after saying why).
    bool askNumber(const QString& title, const QString& label, int proposed, int& number);
    void refuse(const QString& title, const QString& reason);
    void selectCell(int row, int column);
    QList<int> selectedRows() const;
    void findNext(bool backwards);
    void replaceOne();
    void replaceAll();
    void showMatch(const MesDocument::Match& match);
    void fitColumns();
    void updateControls();
    void showCurrentCell();
    void showSourceLine();
    void itemViewEdited();
    void headerEdited();
    void setItemViewText(const QString& text);

    std::unique_ptr<Ui_MesWidget> ui;
    MesTableModel* table = nullptr;
    FindBar* findBar = nullptr;
    QLabel* entryStatus = nullptr;
    QList<QAction*> entryActions;
    QAction* duplicateAction = nullptr;
    QAction* deleteAction = nullptr;
    QAction* renumberAction = nullptr;
    // The match the find bar showed last; Replace replaces it when its cell still holds it.
    MesDocument::Match lastMatch;
    FileEncoding* encoding = nullptr;
    QString lineToolTip;
    // Set while the page fills its text boxes from the document, so that is not an edit.
    bool updating = false;
};
