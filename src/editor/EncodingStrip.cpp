#include "EncodingStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextCodec>
#include <QVBoxLayout>

namespace {
// More choices than this are rarely right: the ranking has put the likely ones first.
const int SHOWN_SUGGESTIONS = 4;
} // namespace

EncodingStrip::EncodingStrip(QWidget* parent)
    : QFrame(parent)
    , message(new QLabel(this))
    , choices(new QHBoxLayout)
{
    setObjectName(QStringLiteral("encodingStrip"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setStyleSheet(QStringLiteral("#encodingStrip { background: #fff3cd; border: 1px solid #e0b84c; }"
                                 "#encodingStrip QLabel { color: #5c4400; }"));
    message->setWordWrap(true);
    message->setTextFormat(Qt::PlainText);
    message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 4, 6, 4);
    column->setSpacing(4);
    column->addWidget(message);
    column->addLayout(choices);
    hide();
}

void EncodingStrip::clearSuggestions()
{
    // A button may be the one whose click is being handled: it goes once that is over.
    while (QLayoutItem* item = choices->takeAt(0)) {
        if (QWidget* widget = item->widget()) {
            widget->hide();
            widget->setParent(nullptr);
            widget->deleteLater();
        }
        delete item;
    }
}

void EncodingStrip::showFindings(QTextCodec* codec, const arcanum::EncodingGuess::Findings& findings)
{
    clearSuggestions();
    if (codec == nullptr || findings.unreadable.isClean()) {
        hide();
        return;
    }
    const QString encoding = QString::fromLatin1(codec->name());
    const QString text = tr("The file does not read cleanly in %1: %2 character(s) stand for bytes it cannot read "
                            "(shown as %3 or as blanks), the first on line %4; saving would write them back changed.")
                       .arg(encoding)
                       .arg(findings.unreadable.characters)
                       .arg(QChar(0xFFFD))
                       .arg(findings.unreadable.firstLine);
    if (findings.suggestions.isEmpty()) {
        choices->addWidget(new QLabel(tr("No encoding of the game's languages reads it cleanly; pick one in the list."),
                                      this));
    } else {
        choices->addWidget(new QLabel(tr("It reads cleanly in (the most likely first):"), this));
        for (QTextCodec* suggestion : findings.suggestions.mid(0, SHOWN_SUGGESTIONS)) {
            auto* button = new QPushButton(QString::fromLatin1(suggestion->name()), this);
            button->setObjectName(QStringLiteral("encodingSuggestion"));
            button->setToolTip(tr("Reads the file again in %1 and remembers that for this file.")
                                   .arg(QString::fromLatin1(suggestion->name())));
            connect(button, &QPushButton::clicked, this, [this, suggestion] { emit codecChosen(suggestion); });
            choices->addWidget(button);
        }
    }
    choices->addStretch(1);
    message->setText(text);
    show();
}
