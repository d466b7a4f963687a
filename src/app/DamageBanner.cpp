#include "DamageBanner.h"

#include "Document.h"

DamageBanner::DamageBanner(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("damageBanner"));
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setMargin(6);
    setStyleSheet(QStringLiteral("QLabel { background: #fff3cd; color: #5c4400; border: 1px solid #e0b84c; }"));
    hide();
}

void DamageBanner::showDamageOf(const Document* document)
{
    const QString damage = document != nullptr ? document->damage() : QString();
    setText(damage.isEmpty() ? QString() : tr("%1 is damaged: %2").arg(document->displayName(), damage));
    setVisible(!damage.isEmpty());
}
