#include "FindInGameDialog.h"

#include <QCheckBox>
#include <QHideEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPromise>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QtConcurrent>

using arcanum::GameSearch;

namespace {

enum Column { FileColumn, EntryColumn, TextColumn };
constexpr int HIT_ROLE = Qt::UserRole;

} // namespace

const QVector<GameSearch::Mode>& FindInGameDialog::modes()
{
    static const QVector<GameSearch::Mode> all = {GameSearch::Mode::Text, GameSearch::Mode::Flag,
                                                  GameSearch::Mode::Variable, GameSearch::Mode::Script,
                                                  GameSearch::Mode::Message};
    return all;
}

FindInGameDialog::FindInGameDialog(QWidget* parent)
    : QDialog(parent)
    , stop(std::make_shared<std::atomic_bool>(false))
{
    setWindowTitle(tr("Find in game files"));
    buildLayout();
    connectSignals();
    modeChosen();
    updateControls();
    resize(820, 520);
}

FindInGameDialog::~FindInGameDialog()
{
    *stop = true;
    watcher.waitForFinished();
}

void FindInGameDialog::buildLayout()
{
    patternEdit = new QLineEdit(this);
    patternEdit->setObjectName(QStringLiteral("findPattern"));
    patternEdit->setClearButtonEnabled(true);
    modeBox = new QComboBox(this);
    modeBox->setObjectName(QStringLiteral("findMode"));
    modeBox->addItems({tr("Text of messages and dialogue lines"), tr("Number used as a global flag"),
                       tr("Number used as a global variable"), tr("Number used as a script"),
                       tr("Number used as a message or dialogue line")});
    modeBox->setToolTip(tr("Number modes list dialogue tests and results, script statements and prototype "
                           "script points that use the number"));
    caseBox = new QCheckBox(tr("Match &case"), this);
    caseBox->setObjectName(QStringLiteral("findCase"));
    regexBox = new QCheckBox(tr("Regular e&xpression"), this);
    regexBox->setObjectName(QStringLiteral("findRegex"));
    findButton = new QPushButton(tr("&Find"), this);
    findButton->setObjectName(QStringLiteral("findStart"));
    findButton->setDefault(true);
    cancelButton = new QPushButton(tr("Cancel"), this);
    cancelButton->setObjectName(QStringLiteral("findCancel"));
    progress = new QProgressBar(this);
    progress->setObjectName(QStringLiteral("findProgress"));
    progress->setTextVisible(true);
    results = new QTreeWidget(this);
    results->setObjectName(QStringLiteral("findResults"));
    results->setRootIsDecorated(false);
    results->setUniformRowHeights(true);
    results->setHeaderLabels({tr("File:line"), tr("Entry"), tr("Text or use")});
    results->setToolTip(tr("Double-click a result, or press Enter, to open the file there"));
    results->header()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    results->header()->setStretchLastSection(true);
    status = new QLabel(this);
    status->setObjectName(QStringLiteral("findStatus"));
    status->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    layout->addLayout(form);
    form->addRow(tr("&Search for:"), patternEdit);
    form->addRow(tr("&Mode:"), modeBox);
    auto* options = new QHBoxLayout;
    layout->addLayout(options);
    options->addWidget(caseBox);
    options->addWidget(regexBox);
    options->addStretch();
    options->addWidget(findButton);
    options->addWidget(cancelButton);
    layout->addWidget(progress);
    layout->addWidget(results, 1);
    layout->addWidget(status);
}

void FindInGameDialog::connectSignals()
{
    connect(findButton, &QPushButton::clicked, this, &FindInGameDialog::start);
    connect(patternEdit, &QLineEdit::returnPressed, this, &FindInGameDialog::start);
    connect(cancelButton, &QPushButton::clicked, this, &FindInGameDialog::cancel);
    connect(modeBox, &QComboBox::currentIndexChanged, this, &FindInGameDialog::modeChosen);
    connect(results, &QTreeWidget::itemActivated, this, &FindInGameDialog::activate);
    connect(&watcher, &QFutureWatcherBase::progressRangeChanged, progress, &QProgressBar::setRange);
    connect(&watcher, &QFutureWatcherBase::progressValueChanged, progress, &QProgressBar::setValue);
    connect(&watcher, &QFutureWatcherBase::finished, this, &FindInGameDialog::showResult);
}

void FindInGameDialog::setGame(const QString& gameBase, const QString& gameModule, QTextCodec* mesCodec)
{
    base = gameBase;
    module = gameModule;
    codec = mesCodec;
}

void FindInGameDialog::modeChosen()
{
    const bool text = modes().value(modeBox->currentIndex()) == GameSearch::Mode::Text;
    caseBox->setEnabled(text);
    regexBox->setEnabled(text);
    patternEdit->setPlaceholderText(text ? tr("Text to find") : tr("A whole number, e.g. 42"));
}

bool FindInGameDialog::queryFromFields(GameSearch::Query& query)
{
    query.mode = modes().value(modeBox->currentIndex());
    query.pattern = patternEdit->text();
    query.caseSensitive = caseBox->isChecked();
    query.regex = regexBox->isChecked();
    if (query.mode == GameSearch::Mode::Text) {
        if (query.pattern.isEmpty())
            status->setText(tr("Type the text to find."));
        return !query.pattern.isEmpty();
    }
    bool ok = false;
    query.number = patternEdit->text().trimmed().toInt(&ok);
    if (!ok)
        status->setText(tr("\"%1\" is not a whole number from -2147483648 to 2147483647.").arg(patternEdit->text()));
    return ok;
}

void FindInGameDialog::start()
{
    if (isRunning())
        return;
    GameSearch::Query query;
    if (!queryFromFields(query))
        return;
    const GameSearch search(query, codec);
    if (!search.isValid()) {
        status->setText(tr("Cannot search: %1").arg(search.error()));
        return;
    }
    found.clear();
    results->clear();
    status->setText(tr("Searching…"));
    stop = std::make_shared<std::atomic_bool>(false);
    progress->setRange(0, 0);
    watcher.setFuture(QtConcurrent::run(
        [search, gameBase = base, gameModule = module, flag = stop](QPromise<GameSearch::Result>& promise) {
            promise.addResult(search.run(gameBase, gameModule, flag.get(), [&promise](int done, int total) {
                if (done == 1)
                    promise.setProgressRange(0, total);
                promise.setProgressValue(done);
            }));
        }));
    updateControls();
}

void FindInGameDialog::cancel()
{
    *stop = true;
}

// Closed, or put away with Escape: a search nobody looks at stops.
void FindInGameDialog::hideEvent(QHideEvent* event)
{
    cancel();
    QDialog::hideEvent(event);
}

void FindInGameDialog::showResult()
{
    updateControls();
    if (watcher.future().resultCount() == 0)
        return;
    const GameSearch::Result result = watcher.result();
    found = result.hits;
    fillList();
    QString text = result.cancelled ? tr("Cancelled after %n file(s): ", nullptr, result.searched)
                                    : tr("%n file(s) searched: ", nullptr, result.searched);
    text += found.isEmpty() ? tr("nothing found.") : tr("%n result(s).", nullptr, int(found.size()));
    if (!result.problems.isEmpty())
        text += QLatin1Char(' ') + tr("Could not read: %1").arg(result.problems.join(QStringLiteral("; ")));
    status->setText(text);
    progress->setRange(0, 1);
    progress->setValue(result.cancelled ? 0 : 1);
    emit searchFinished();
}

void FindInGameDialog::fillList()
{
    QList<QTreeWidgetItem*> items;
    for (int i = 0; i < found.size(); ++i) {
        const GameSearch::Hit& hit = found.at(i);
        auto* item = new QTreeWidgetItem;
        item->setText(FileColumn, QStringLiteral("%1:%2").arg(hit.file).arg(hit.line));
        item->setText(EntryColumn, hit.entry < 0 ? QString() : QString::number(hit.entry));
        item->setText(TextColumn, hit.text);
        item->setToolTip(TextColumn, hit.text);
        item->setData(FileColumn, HIT_ROLE, i);
        items.append(item);
    }
    results->addTopLevelItems(items);
    results->resizeColumnToContents(FileColumn);
    results->resizeColumnToContents(EntryColumn);
    if (!items.isEmpty())
        results->setCurrentItem(items.first());
}

void FindInGameDialog::updateControls()
{
    const bool running = isRunning();
    findButton->setEnabled(!running);
    cancelButton->setEnabled(running);
}

void FindInGameDialog::activate(QTreeWidgetItem* item)
{
    const int index = item ? item->data(FileColumn, HIT_ROLE).toInt() : -1;
    if (index >= 0 && index < found.size())
        emit hitActivated(found.at(index));
}
