#include "DialogueProblemsPanel.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

using arcanum::DialogueCheck;

namespace {

constexpr int KIND_ROLE = Qt::UserRole;
constexpr int INDEX_ROLE = Qt::UserRole + 1;
constexpr int ERROR_ROLE = Qt::UserRole + 2;
constexpr int LIST_HEIGHT = 92;

} // namespace

DialogueProblemsPanel::DialogueProblemsPanel(QWidget* parent)
    : QWidget(parent)
    , summary(new QLabel(this))
    , list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("problemsPanel"));
    summary->setObjectName(QStringLiteral("labelProblems"));
    list->setObjectName(QStringLiteral("problemsList"));
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setColumnCount(3);
    list->header()->setStretchLastSection(true);
    list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    // A strip under the form: the form keeps the room it needs, the list scrolls.
    list->setMaximumHeight(LIST_HEIGHT);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(summary);
    layout->addWidget(list, 1);
    connect(list, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { rowClicked(item); });
    connect(list, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) { rowClicked(item); });
    showFindings({});
}

void DialogueProblemsPanel::showFindings(const QList<DialogueCheck::Finding>& findings)
{
    list->clear();
    errors = 0;
    notes = 0;
    const QIcon errorIcon = style()->standardIcon(QStyle::SP_MessageBoxCritical);
    const QIcon noteIcon = style()->standardIcon(QStyle::SP_MessageBoxInformation);
    for (const DialogueCheck::Finding& finding : findings) {
        const bool error = finding.severity == DialogueCheck::Severity::Error;
        ++(error ? errors : notes);
        auto* item = new QTreeWidgetItem({error ? tr("error") : tr("note"), QString::number(finding.fileLine),
                                          finding.message});
        item->setIcon(0, error ? errorIcon : noteIcon);
        item->setData(0, KIND_ROLE, int(finding.kind));
        item->setData(0, INDEX_ROLE, finding.index);
        item->setData(0, ERROR_ROLE, error);
        item->setToolTip(2, finding.message);
        list->addTopLevelItem(item);
    }
    showSummary();
}

void DialogueProblemsPanel::showSummary()
{
    list->setHeaderLabels({tr("Kind"), tr("File line"), tr("Message")});
    summary->setText(tr("<b>Problems:</b> %1 error(s), %2 note(s)").arg(errors).arg(notes));
    summary->setToolTip(tr("What loreka check reports for this file. Errors are what the game rejects; notes are "
                           "what the game reads although a stricter reading objects. Click a row to open its line."));
}

void DialogueProblemsPanel::rowClicked(QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    const auto kind = DialogueCheck::LineKind(item->data(0, KIND_ROLE).toInt());
    if (kind != DialogueCheck::LineKind::None)
        emit lineActivated(kind == DialogueCheck::LineKind::Pc, item->data(0, INDEX_ROLE).toInt());
}

void DialogueProblemsPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        showSummary();
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            QTreeWidgetItem* item = list->topLevelItem(row);
            item->setText(0, item->data(0, ERROR_ROLE).toBool() ? tr("error") : tr("note"));
        }
    }
    QWidget::changeEvent(event);
}
