#pragma once

#include <QWidget>

class Document;
class Page;
class QLabel;
class QPushButton;
class QVBoxLayout;

// The same frame around every page: what is open (its name, kind and place, or what to do when nothing
// is) on the left, Save and Save As on the right, always in the same spot and with the same behaviour.
class PageFrame : public QWidget
{
    Q_OBJECT

public:
    // hint: what to do on an empty page ("Pick a script on the left, or open one with Ctrl+O.").
    PageFrame(Page* page, const QString& hint, QWidget* parent = nullptr);

    Page* page() const { return shown; }
    // Where the window puts a banner above the page.
    void insertAbovePage(QWidget* widget);

private:
    void watch(Document* document);
    void refresh();

    Page* shown;
    QString emptyHint;
    QLabel* title = nullptr;
    QLabel* detail = nullptr;
    QPushButton* saveButton = nullptr;
    QPushButton* saveAsButton = nullptr;
    QVBoxLayout* column = nullptr;
};
