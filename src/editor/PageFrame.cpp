#include "PageFrame.h"

#include "Document.h"
#include "FormatRegistry.h"
#include "Page.h"
#include "ToolTipFiller.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// "script", "message file": the kind of what the page opens, as the format registry names it.
QString kindOf(const Page* page, const Document* document)
{
    const QString path = document && !document->path().isEmpty()
                             ? document->path()
                             : QStringLiteral("x.") + page->suffixes().value(0);
    const arcanum::FileFormat* format = arcanum::FormatRegistry::byPath(path);
    return format ? format->description : QString();
}

} // namespace

PageFrame::PageFrame(Page* page, const QString& hint, QWidget* parent)
    : QWidget(parent)
    , shown(page)
    , emptyHint(hint)
    , title(new QLabel(this))
    , detail(new QLabel(this))
    , saveButton(new QPushButton(tr("Save"), this))
    , saveAsButton(new QPushButton(tr("Save As…"), this))
    , column(new QVBoxLayout(this))
{
    setObjectName(page->objectName() + QStringLiteral("Frame"));
    page->setFramed();
    title->setObjectName(QStringLiteral("frameTitle"));
    detail->setObjectName(QStringLiteral("frameDetail"));
    detail->setTextInteractionFlags(Qt::TextSelectableByMouse);
    detail->setMinimumWidth(0);
    detail->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    saveButton->setObjectName(QStringLiteral("frameSave"));
    saveAsButton->setObjectName(QStringLiteral("frameSaveAs"));
    saveButton->setToolTip(tr("Write the open file in place (Ctrl+S)"));
    saveAsButton->setToolTip(tr("Write the open file under another name (Ctrl+Shift+S)"));
    auto* header = new QHBoxLayout;
    header->setContentsMargins(2, 0, 2, 0);
    header->addWidget(title);
    header->addWidget(detail, 1);
    header->addWidget(saveButton);
    header->addWidget(saveAsButton);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addLayout(header);
    column->addWidget(page, 1);
    connect(saveButton, &QPushButton::clicked, page, [page] { page->save(); });
    connect(saveAsButton, &QPushButton::clicked, page, [page] { page->saveAs(); });
    connect(page, &Page::documentReplaced, this, [this](Document* document) {
        watch(document);
        refresh();
        ToolTipFiller::fill(shown);
    });
    watch(page->document());
    refresh();
    ToolTipFiller::fill(page);
}

void PageFrame::insertAbovePage(QWidget* widget)
{
    column->insertWidget(column->indexOf(shown), widget);
}

void PageFrame::watch(Document* document)
{
    if (document == nullptr)
        return;
    connect(document, &Document::modifiedChanged, this, &PageFrame::refresh);
    connect(document, &Document::pathChanged, this, &PageFrame::refresh);
    connect(document, &Document::saved, this, &PageFrame::refresh);
    // Forms grow rows as the document changes (a new test, another prototype type).
    connect(document, &Document::changed, this, [this] { ToolTipFiller::fill(shown); });
}

void PageFrame::refresh()
{
    const Document* document = shown->document();
    saveButton->setEnabled(document != nullptr && (document->isModified() || !document->origin().isEmpty()));
    saveAsButton->setEnabled(document != nullptr);
    if (document == nullptr) {
        title->setText(tr("No file open"));
        detail->setText(emptyHint);
        detail->setToolTip(QString());
        return;
    }
    title->setText(QStringLiteral("<b>%1</b>%2").arg(document->displayName().toHtmlEscaped(),
                                                     document->isModified() ? QStringLiteral(" *") : QString()));
    QString where = document->path().isEmpty() ? tr("not saved yet")
                                                : QDir::toNativeSeparators(QFileInfo(document->path()).absolutePath());
    if (!document->origin().isEmpty())
        where = tr("from %1; a save writes it to %2").arg(document->origin(), where);
    detail->setText(tr("%1 — %2").arg(kindOf(shown, document), where));
    detail->setToolTip(QDir::toNativeSeparators(document->path()));
}
