#include "FindBar.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

FindBar::FindBar(QWidget* parent)
    : QWidget(parent)
    , findEdit(new QLineEdit(this))
    , replaceEdit(new QLineEdit(this))
    , caseBox(new QCheckBox(tr("Match case"), this))
    , wordsBox(new QCheckBox(tr("Whole words"), this))
    , replaceRow(new QWidget(this))
    , status(new QLabel(this))
{
    setObjectName(QStringLiteral("findBar"));
    findEdit->setObjectName(QStringLiteral("findText"));
    findEdit->setPlaceholderText(tr("Find in texts and comments"));
    findEdit->setToolTip(tr("<b>Find</b><br/>Looks through the texts and comments of this file. Enter finds the "
                            "next match, Shift+Enter the one before, Escape closes the bar."));
    findEdit->setClearButtonEnabled(true);
    replaceEdit->setObjectName(QStringLiteral("replaceText"));
    replaceEdit->setPlaceholderText(tr("Replace with"));
    replaceEdit->setToolTip(tr("<b>Replace with</b><br/>Written in place of each match, exactly as typed."));
    caseBox->setObjectName(QStringLiteral("matchCase"));
    caseBox->setToolTip(tr("Find only matches with the same capitals"));
    wordsBox->setObjectName(QStringLiteral("wholeWords"));
    wordsBox->setToolTip(tr("Find only matches that are whole words, not parts of longer words"));
    status->setObjectName(QStringLiteral("findStatus"));
    status->setToolTip(tr("What the last search or replacement found"));

    auto* findRow = new QHBoxLayout;
    findRow->setContentsMargins(0, 0, 0, 0);
    findRow->addWidget(findEdit, 1);
    findRow->addWidget(caseBox);
    findRow->addWidget(wordsBox);
    QToolButton* previous = button(QStringLiteral("findPrevious"), tr("Previous"), tr("Find the match before (Shift+Enter)"));
    QToolButton* next = button(QStringLiteral("findNext"), tr("Next"), tr("Find the next match (Enter)"));
    QToolButton* close = button(QStringLiteral("closeFind"), tr("Close"), tr("Close the find bar (Escape)"));
    findRow->addWidget(previous);
    findRow->addWidget(next);
    findRow->addWidget(close);

    auto* replaceLayout = new QHBoxLayout(replaceRow);
    replaceLayout->setContentsMargins(0, 0, 0, 0);
    replaceLayout->addWidget(replaceEdit, 1);
    QToolButton* replaceOne = button(QStringLiteral("replaceOne"), tr("Replace"),
                                     tr("Replace the match shown, then find the next one"));
    QToolButton* replaceAll = button(QStringLiteral("replaceAll"), tr("Replace all"),
                                     tr("Replace every match in the file as one undo step"));
    replaceLayout->addWidget(replaceOne);
    replaceLayout->addWidget(replaceAll);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 2, 0, 2);
    column->setSpacing(2);
    column->addLayout(findRow);
    column->addWidget(replaceRow);
    column->addWidget(status);

    connect(findEdit, &QLineEdit::returnPressed, this, [this] {
        emit findRequested(QApplication::keyboardModifiers() & Qt::ShiftModifier);
    });
    connect(findEdit, &QLineEdit::textChanged, this, &FindBar::searchChanged);
    connect(caseBox, &QCheckBox::toggled, this, &FindBar::searchChanged);
    connect(wordsBox, &QCheckBox::toggled, this, &FindBar::searchChanged);
    connect(previous, &QToolButton::clicked, this, [this] { emit findRequested(true); });
    connect(next, &QToolButton::clicked, this, [this] { emit findRequested(false); });
    connect(replaceEdit, &QLineEdit::returnPressed, this, &FindBar::replaceRequested);
    connect(replaceOne, &QToolButton::clicked, this, &FindBar::replaceRequested);
    connect(replaceAll, &QToolButton::clicked, this, &FindBar::replaceAllRequested);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    replaceRow->hide();
    hide();
}

QToolButton* FindBar::button(const QString& name, const QString& text, const QString& tip)
{
    auto* made = new QToolButton(this);
    made->setObjectName(name);
    made->setText(text);
    made->setToolTip(tip);
    made->setToolButtonStyle(Qt::ToolButtonTextOnly);
    return made;
}

void FindBar::open(bool replace)
{
    show();
    replaceRow->setVisible(replace);
    findEdit->setFocus();
    findEdit->selectAll();
}

TextSearch FindBar::search() const
{
    return TextSearch(findEdit->text(), caseBox->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive,
                      wordsBox->isChecked());
}

QString FindBar::replacement() const
{
    return replaceEdit->text();
}

void FindBar::setStatus(const QString& text)
{
    status->setText(text);
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        hide();
        return;
    }
    QWidget::keyPressEvent(event);
}
