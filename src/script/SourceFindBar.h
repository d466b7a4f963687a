#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

// Find and replace in one text editor, shown under it by Ctrl+F and hidden by Escape. Searches
// ignore letter case and wrap around; Replace all is one undo step of the editor.
class SourceFindBar : public QWidget
{
    Q_OBJECT

public:
    explicit SourceFindBar(QPlainTextEdit* editor, QWidget* parent = nullptr);

    void open();
    // False (and a note) when the text is not found anywhere.
    bool findNext(bool backward = false);
    void replace();
    // The number of places replaced.
    int replaceAll();

    QLineEdit* findEdit() const { return findText; }
    QLineEdit* replaceEdit() const { return replaceText; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Ctrl+F in the bar's fields selects the text to find again, whatever the window does with the key.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool selectionMatches() const;

    QPlainTextEdit* editor;
    QLineEdit* findText;
    QLineEdit* replaceText;
    QLabel* note;
};
