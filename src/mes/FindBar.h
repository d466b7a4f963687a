#pragma once

#include "TextSearch.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;

// The Mes page's find and replace bar: what to find, with case and whole-word options, and what to put
// in its place. It only asks; the page searches the document and says here what came of it.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);

    // Shows the bar (with the replace row for replace) and puts the cursor in the find field.
    void open(bool replace);
    TextSearch search() const;
    QString replacement() const;
    void setStatus(const QString& text);

signals:
    void findRequested(bool backwards);
    void replaceRequested();
    void replaceAllRequested();
    // The pattern or an option changed: a match found before no longer counts.
    void searchChanged();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* button(const QString& name, const QString& text, const QString& tip);

    QLineEdit* findEdit;
    QLineEdit* replaceEdit;
    QCheckBox* caseBox;
    QCheckBox* wordsBox;
    QWidget* replaceRow;
    QLabel* status;
};
