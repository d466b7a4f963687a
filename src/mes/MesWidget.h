#pragma once

#include "Page.h"

#include <QString>
#include <QStringList>

#include <memory>

class FileEncoding;
class MesDocument;
class MesTableModel;
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
    void connectSignals();
    void fitColumns();
    void updateControls();
    void showCurrentCell();
    void showSourceLine();
    void itemViewEdited();
    void headerEdited();
    void setItemViewText(const QString& text);

    std::unique_ptr<Ui_MesWidget> ui;
    MesTableModel* table = nullptr;
    FileEncoding* encoding = nullptr;
    QString lineToolTip;
    // Set while the page fills its text boxes from the document, so that is not an edit.
    bool updating = false;
};
