#pragma once

#include "Mesfile.h"

#include <QFont>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>

class QTableWidgetItem;
class QTextCodec;
class Ui_MesWidget;

// The "Mes" tab: one message or dialogue file as a table of entries, with the file header above,
// the selected cell's text below and the selected entry's source line under that.
class MesWidget : public QWidget
{
    Q_OBJECT

public:
    MesWidget(QWidget* parent, QString encoding);
    ~MesWidget() override;

    // Every codec name the platform offers, in its own order.
    static const QStringList& encodingList();

    void loadMes(const QString& path);
    void reloadMes();
    // False (after telling the user) when the file could not be written; the page stays modified.
    bool saveFile(const QString& path);
    void clear();
    void updateItems();
    void updateControls();
    void setModifiedState(bool state);
    void saveChangeToMem(int row, int column);
    void saveChangeToMemImpl(const QString& text, int row, int column);

    // The file the page shows.
    QString getFilename() const;
    arcanum::Mesfile* getModel() const { return mesfile.get(); }
    QTextCodec* getCodec() const { return codec; }
    bool isModified() const { return modified; }

private slots:
    void on_editCommentary_textChanged();
    void on_reloadButton_clicked();
    void on_saveButton_clicked();
    void on_saveAsButton_clicked();

public slots:
    void itemViewToTableSync();
    void encodingChange(QString text);
    void tableToItemViewSync(int row, int column);
    void changeCellText(int row, int column);
    void updateCompleteLine();

private:
    void connectSignals();
    void fillEncodings(const QString& encoding);
    void readModel();
    void fillColumnTitles();
    void fillRow(int row, const arcanum::Mesfile::Entry& entry);
    void fitColumns();
    int itemColumns() const;
    void setItemViewText(const QString& text);

    std::unique_ptr<Ui_MesWidget> ui;
    std::unique_ptr<arcanum::Mesfile> mesfile;
    QTextCodec* codec = nullptr;
    bool updating = false;
    bool modified = false;
    int currentRow = -1;
    int currentColumn = -1;
    QString lineToolTip;
    // The font of the number column while the table is filled.
    QFont boldFont;
};
